#include "platform/paths.h"

#include "platform/environment.h"

#include <unistd.h>

#include <system_error>

namespace pozhil::platform {

std::filesystem::path executableDirectory() {
    return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

std::filesystem::path userCacheDirectory() {
    const auto cache = environmentVariable("XDG_CACHE_HOME");
    if (cache && !cache->empty()) {
        return *cache;
    }
    const auto home = environmentVariable("HOME");
    return home && !home->empty() ? std::filesystem::path(*home) / ".cache" : std::filesystem::path();
}

std::filesystem::path fastLinkerDirectory() {
    // Debian's mold package keeps a linker there under the plain name ld.
    const std::filesystem::path mold = "/usr/libexec/mold";
    std::error_code ignored;
    return std::filesystem::exists(mold / "ld", ignored) ? mold : std::filesystem::path();
}

std::filesystem::path nodeModulesDirectory() {
    const std::filesystem::path modules = "/usr/share/nodejs";
    std::error_code ignored;
    return std::filesystem::exists(modules, ignored) ? modules : std::filesystem::path();
}

bool isWritableDirectory(const std::filesystem::path& directory) {
    std::error_code ignored;
    return std::filesystem::is_directory(directory, ignored) && access(directory.c_str(), W_OK | X_OK) == 0;
}

bool isWritableFile(const std::filesystem::path& file) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(file, ignored) && access(file.c_str(), W_OK) == 0;
}

std::string systemName() {
    return "Linux";
}

} // namespace pozhil::platform
