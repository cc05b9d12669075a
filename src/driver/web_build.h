#pragma once

#include "parser/syntax_tree.h"

#include <filesystem>
#include <string>

namespace pozhil {

/// Builds an application: makes its page anew for the server and compiles its output text with em++ into the directory
/// வெளியீடு. The server's version number grows once all files are in place. What goes wrong is told to the user.
/// \param appDirectory the installation
/// \param temporaryDirectory where the output text is written for em++
/// \return whether em++ succeeded
bool buildWeb(const Program& program, const std::string& text, const std::filesystem::path& appDirectory,
              const std::filesystem::path& temporaryDirectory);

} // namespace pozhil
