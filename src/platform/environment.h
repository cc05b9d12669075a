#pragma once

#include <optional>
#include <string>

namespace pozhil::platform {

/// The value of an environment variable, nothing if it isn't set.
std::optional<std::string> environmentVariable(const std::string& name);

/// Sets an environment variable for this process and for all that it starts from now on.
void setEnvironmentVariable(const std::string& name, const std::string& value);

} // namespace pozhil::platform
