#include "platform/environment.h"

#include <cstdlib>

namespace pozhil::platform {

std::optional<std::string> environmentVariable(const std::string& name) {
    const char* value = std::getenv(name.c_str());
    if (value == nullptr) {
        return std::nullopt;
    }
    return std::string(value);
}

} // namespace pozhil::platform
