#include "driver/web/emscripten_environment.h"

#include "platform/environment.h"
#include "platform/paths.h"
#include "platform/process.h"

#include <system_error>

namespace pozhil {
namespace {

namespace fs = std::filesystem;

/// Generated programs catch exceptions, which em++ leaves out unless told otherwise. The objects of the installation are
/// compiled with the same (cmake/WebProgramFiles.cmake).
///
/// Of the two kinds of std::function that the library of em++ has, this one takes a part of the time to compile; every
/// handler of a page is one.
///
/// Widgets inside each other become brackets inside each other, several for each: far more than em++ takes by itself.
constexpr const char* COMPILER_FLAGS = "-fwasm-exceptions -D_LIBCPP_ABI_OPTIMIZED_FUNCTION -fbracket-depth=16384";

bool pathExists(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(path, ignored);
}

fs::path sdkDirectory(const fs::path& appDirectory) {
    return appDirectory / "emsdk";
}

/// The directory of the first file called \p tool below \p root; empty if there is none.
fs::path findTool(const fs::path& root, const std::string& tool) {
    std::error_code error;
    for (fs::recursive_directory_iterator entry(root, error), end; !error && entry != end; entry.increment(error)) {
        std::error_code ignored;
        if (entry->path().filename() == tool && entry->is_regular_file(ignored)) {
            return entry->path().parent_path();
        }
    }
    return {};
}

std::string toolPath(const fs::path& directory, const std::string& tool) {
    return directory.empty() ? tool : (directory / tool).u8string();
}

/// The user's own value comes first.
std::string extended(const std::string& variable, const std::string& separator, const std::string& addition) {
    const std::string own = platform::environmentVariable(variable).value_or("");
    return own.empty() ? addition : own + separator + addition;
}

/// A word of EMCC_CFLAGS that holds \p text as it is.
std::string quoted(const std::string& text) {
    std::string word = "'";
    for (const char c : text) {
        word += c == '\'' ? std::string("'\"'\"'") : std::string(1, c);
    }
    return word + "'";
}

} // namespace

void injectEmscriptenEnvironment(const fs::path& appDirectory) {
    const fs::path sdk = sdkDirectory(appDirectory);
    if (!pathExists(sdk)) {
        return;
    }
    const fs::path node = findTool(sdk / "node", "node");
    const fs::path python = findTool(sdk / "python", "python3");
    std::string path = (sdk / "upstream" / "emscripten").u8string() + platform::PATH_LIST_SEPARATOR + sdk.u8string();
    for (const fs::path& directory : {python, node}) {
        if (!directory.empty()) {
            path += platform::PATH_LIST_SEPARATOR + directory.u8string();
        }
    }
    // An empty entry would stand for the current directory.
    const std::string own = platform::environmentVariable("PATH").value_or("");
    platform::setEnvironmentVariable("PATH", own.empty() ? path : path + platform::PATH_LIST_SEPARATOR + own);
    platform::setEnvironmentVariable("EMSDK", sdk.u8string());
    platform::setEnvironmentVariable("EMSDK_PYTHON", toolPath(python, "python3"));
    platform::setEnvironmentVariable("EMSDK_NODE", toolPath(node, "node"));
}

std::string emscriptenCompiler(const fs::path& appDirectory) {
    const fs::path own = sdkDirectory(appDirectory) / "upstream" / "emscripten" / "em++";
    return pathExists(own) ? own.u8string() : "em++";
}

PrecompiledHeaders precompiledHeaders(const fs::path& appDirectory, const std::string& compiler) {
    const fs::path headers = appDirectory / "உள்ளடக்கம்" / "web_headers.pch";
    const auto found = platform::findProgram(compiler);
    std::error_code error;
    if (!found || !pathExists(headers)) {
        return {};
    }
    // Emscripten's own em++ has its script beside it. A program in front of it, such as a cache, goes without.
    const bool isEmscripten = pathExists(fs::canonical(*found, error).replace_filename("em++.py"));
    return isEmscripten ? PrecompiledHeaders{headers} : PrecompiledHeaders();
}

std::vector<std::pair<std::string, std::string>> emscriptenVariables(const PrecompiledHeaders& headers) {
    std::string flags = COMPILER_FLAGS;
    if (!headers.file.empty()) {
        flags += " -include-pch " + quoted(headers.file.u8string());
    }
    if (headers.sourceLength > 0) {
        // The 1 tells that a line begins after them.
        flags += " -Xclang -preamble-bytes=" + std::to_string(headers.sourceLength) + ",1";
    }
    std::vector<std::pair<std::string, std::string>> variables = {{"EMCC_CFLAGS", extended("EMCC_CFLAGS", " ", flags)}};
    // A packaged Emscripten asks for modules there; a Node from elsewhere doesn't look.
    const fs::path modules = platform::nodeModulesDirectory();
    if (!modules.empty()) {
        variables.emplace_back("NODE_PATH", extended("NODE_PATH", platform::PATH_LIST_SEPARATOR, modules.u8string()));
    }
    return variables;
}

} // namespace pozhil
