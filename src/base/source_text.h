#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace pozhil {

/// One source file as it was read. It never changes, and all stages share it.
struct SourceText {
    /// The path that diagnostics show, in UTF-8
    std::string path;
    /// The whole text, without carriage returns and byte order mark
    std::string text;
};

using SourcePtr = std::shared_ptr<const SourceText>;

/// A source of this path and text, to be shared.
SourcePtr makeSource(std::string path, std::string text);

/// The text of a source file with these bytes: carriage returns and a byte order mark are dropped, so that files of every
/// editor scan alike.
std::string sourceTextOf(std::string bytes);

/// Whether a carriage return among these bytes stands elsewhere than before a line feed. Where it ends a line, or what it
/// does, is then not what the stages see, which never see it.
bool hasLoneCarriageReturns(std::string_view bytes);

/// Whether a source file can be opened for reading.
/// \param path the file's path in UTF-8
bool canReadSource(const std::string& path);

/// Reads a source file as text.
/// \param path the file's path in UTF-8
/// \return the text, or nothing if the file can't be read (missing, not permitted, a directory)
std::optional<std::string> readSourceText(const std::string& path);

/// Line \p number of \p text, counted from 1, without its end; empty if there is no such line.
std::string_view lineOf(std::string_view text, std::int32_t number);

} // namespace pozhil
