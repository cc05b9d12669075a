#include "platform/environment.h"

#include <cstdlib>

namespace pozhil::platform {

const char* const PATH_LIST_SEPARATOR = ":";

std::optional<std::string> environmentVariable(const std::string& name) {
    const char* value = std::getenv(name.c_str());
    if (value == nullptr) {
        return std::nullopt;
    }
    return std::string(value);
}

void setEnvironmentVariable(const std::string& name, const std::string& value) {
    setenv(name.c_str(), value.c_str(), 1);
}

} // namespace pozhil::platform
