#include "platform/fresh_path.h"

#include <random>
#include <string>

namespace pozhil::platform {

std::filesystem::path freshBeside(const std::filesystem::path& path) {
    return path.u8string() + "." + std::to_string(std::random_device{}());
}

} // namespace pozhil::platform
