#pragma once

#include <string>
#include <string_view>

namespace pozhil::language_server {

/// The path that a URI of a file names; the URI itself if it names none, as for a text that was never saved.
std::string pathOf(std::string_view uri);

/// The URI of a file.
/// \param path from the root or from the working directory
std::string uriOf(const std::string& path);

} // namespace pozhil::language_server
