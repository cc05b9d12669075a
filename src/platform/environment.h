#pragma once

#include <optional>
#include <string>

namespace pozhil::platform {

/// The value of an environment variable, nothing if it isn't set.
std::optional<std::string> environmentVariable(const std::string& name);

/// Sets an environment variable for this process and for all that it starts from now on.
void setEnvironmentVariable(const std::string& name, const std::string& value);

/// Stands between the entries of a variable that lists directories, such as PATH.
extern const char* const PATH_LIST_SEPARATOR;

} // namespace pozhil::platform
