#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace pozhil {

/// Whether a source file can be opened for reading.
/// \param path the file's path in UTF-8
bool canReadSource(const std::string& path);

/// Reads a source file as text: carriage returns and a byte order mark are dropped, so that files of every editor scan
/// alike.
/// \param path the file's path in UTF-8
/// \return the text, or nothing if the file can't be read (missing, not permitted, a directory)
std::optional<std::string> readSourceText(const std::string& path);

/// Line \p number of \p text, counted from 1, without its end; empty if there is no such line.
std::string_view lineOf(std::string_view text, std::int32_t number);

} // namespace pozhil
