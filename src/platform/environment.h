#pragma once

#include <optional>
#include <string>

namespace pozhil::platform {

/// The value of an environment variable, nothing if it isn't set.
std::optional<std::string> environmentVariable(const std::string& name);

} // namespace pozhil::platform
