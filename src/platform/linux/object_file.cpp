#include "platform/object_file.h"

#include <cstdint>
#include <cstring>
#include <elf.h>
#include <fstream>
#include <system_error>

namespace pozhil::platform {

/// What is written last, the table of sections, stands at the end.
bool isWholeObject(const std::filesystem::path& path) {
    Elf64_Ehdr header{};
    std::ifstream file(path, std::ios::binary);
    if (!file.read(reinterpret_cast<char*>(&header), sizeof header) ||
        std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0) {
        return false;
    }
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    const std::uintmax_t table = std::uintmax_t{header.e_shnum} * header.e_shentsize;
    return !error && table > 0 && header.e_shoff <= size && table <= size - header.e_shoff;
}

} // namespace pozhil::platform
