#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace pozhil {

/// Puts an Emscripten SDK that lies in the installation, in the folder emsdk, in front of PATH and names it in the
/// variables that its tools read. Without one nothing changes, and em++ is the one in the user's own PATH.
void injectEmscriptenEnvironment(const std::filesystem::path& appDirectory);

/// The em++ to call: that of the installation's own SDK, or the name to look up in PATH.
std::string emscriptenCompiler(const std::filesystem::path& appDirectory);

/// Precompiled headers for em++.
struct PrecompiledHeaders {
    /// Empty if there are none
    std::filesystem::path file;
    /// How many bytes at the head of the source they stand for
    std::size_t sourceLength = 0;
};

/// The installation's precompiled headers, which stand for no part of the source; none if \p compiler can't be the one
/// that they were made with.
PrecompiledHeaders precompiledHeaders(const std::filesystem::path& appDirectory, const std::string& compiler);

/// Variables that em++ needs beside its command line for what the language promises.
std::vector<std::pair<std::string, std::string>> emscriptenVariables(const PrecompiledHeaders& headers);

} // namespace pozhil
