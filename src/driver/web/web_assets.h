#pragma once

#include "generator/web/page/application.h"

#include <string>
#include <vector>

namespace pozhil {

/// Whether an application has files that are packed: if so, em++ writes index.data.
bool hasFilesToPack(const Application& application);

/// What of an application's files the page may ask for: what is packed, seen from the current directory, and the icon.
std::vector<std::string> applicationFiles(const Application& application);

/// The em++ arguments that pack an application's files: the directory assets, the files that its widgets show, and its
/// background video. Files that don't exist are left out; a missing video is told on standard error.
std::vector<std::string> packingArguments(const Application& application);

} // namespace pozhil
