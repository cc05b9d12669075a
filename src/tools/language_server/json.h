#pragma once

#include <nlohmann/json.hpp>

namespace pozhil::language_server {

/// A value of JSON. What it is asked for and doesn't have, it throws as Json::exception.
using Json = nlohmann::json;

} // namespace pozhil::language_server
