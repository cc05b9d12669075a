#pragma once

#include "tools/publish/site_folder.h"

#include <filesystem>
#include <string>

/// What the user is told while an application is published.
namespace pozhil::tools {

/// Said where a signal ends it, on standard output.
constexpr const char* INTERRUPTED = "\nநிறுத்தப்பட்டது; எதுவும் வெளியிடப்படவில்லை.\n";

/// Tells what is being done now.
void printStep(const std::string& step);

/// Tells what a finished folder holds, how large it is, and how much of it goes over the wire.
void printSizes(const std::filesystem::path& folder);

/// Tells why a folder can't be published to.
void printProblem(const FolderProblem& problem);

/// Tells that files couldn't be written.
void printUnfinished(const std::filesystem::path& folder);

/// Tells what is wrong with the arguments.
void printWrongUse(const std::string& text);

/// Tells that a source can't be read.
void printMissingSource(const std::string& path);

/// Tells that a source has no application.
void printNoApplication(const std::string& path);

} // namespace pozhil::tools
