#include "base/whole_file.h"

#include <iterator>
#include <system_error>

namespace pozhil {

std::ifstream openFile(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored) ? std::ifstream(path, std::ios::binary) : std::ifstream();
}

std::optional<std::string> readFile(const std::filesystem::path& path) {
    std::ifstream file = openFile(path);
    if (!file.is_open()) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

} // namespace pozhil
