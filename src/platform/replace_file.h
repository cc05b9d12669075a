#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace pozhil::platform {

/// Puts \p contents in the place of those of a file, at one stroke: whoever reads it finds the one or the other, whatever
/// happens meanwhile. Mode and owner stay. A link stays one; the file that it leads to is replaced. A file that has more
/// names, or an owner whose files we can't make, is written over instead, so that it stays the same file; a copy of the
/// contents stands beside it meanwhile, and stays there if the disk fails in the middle.
/// \return what kept it from that, otherwise the file being as it was: it may not be written to, the disk is full
std::error_code replaceFile(const std::filesystem::path& file, std::string_view contents);

} // namespace pozhil::platform
