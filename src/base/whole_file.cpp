#include "base/whole_file.h"

#include <array>
#include <cstddef>
#include <system_error>
#include <utility>

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
    std::string bytes;
    std::array<char, std::size_t(64) * 1024> piece{};
    while (file.read(piece.data(), piece.size()) || file.gcount() > 0) {
        bytes.append(piece.data(), static_cast<std::size_t>(file.gcount()));
    }
    return file.bad() ? std::nullopt : std::optional(std::move(bytes));
}

} // namespace pozhil
