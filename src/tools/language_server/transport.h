#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace pozhil::language_server {

/// The bytes are no message, and nobody knows where the next one begins.
class BrokenStream : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Cuts the bytes that arrive into messages: header lines with the length, an empty line, the content.
class MessageReader {
public:
    /// Takes the bytes that arrived, however they are cut.
    void add(std::string_view bytes) { bytes_ += bytes; }

    /// The content of the next message, nothing if it isn't whole yet.
    /// \throws BrokenStream
    std::optional<std::string> next();

private:
    /// \return whether the header is whole
    bool takeHeader();

    std::string bytes_;
    /// Bytes that were handed out already.
    std::size_t taken_ = 0;
    /// Length of the content whose header was taken.
    std::optional<std::size_t> length_;
};

/// The content with its header.
std::string framed(std::string_view content);

} // namespace pozhil::language_server
