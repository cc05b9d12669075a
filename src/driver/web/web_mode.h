#pragma once

#include "driver/second_translation.h"
#include "driver/translation.h"

#include <filesystem>
#include <string>

namespace pozhil {

/// Builds an application, opens it in the browser, serves it, and builds it anew whenever its source changes. Never
/// returns: without a good build the server waits for one.
/// \param output the output text of \p source
/// \param appDirectory the installation
/// \param temporaryDirectory where the output text is written for em++
/// \throws std::filesystem::filesystem_error if the source file vanishes
[[noreturn]] void runWeb(const ParsedSource& source, const OutputText& output, const FrontEndOptions& options,
                         const std::filesystem::path& appDirectory, const std::filesystem::path& temporaryDirectory);

/// The same for an application of the second edition. After a fault the next change is waited for.
/// \param path the source
/// \param translation of it, without faults
[[noreturn]] void runWeb(const std::string& path, const SecondTranslation& translation, const FrontEndOptions& options,
                         const std::filesystem::path& appDirectory, const std::filesystem::path& temporaryDirectory);

} // namespace pozhil
