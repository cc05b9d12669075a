#pragma once

#include <optional>
#include <string>
#include <string_view>

/// What the local server makes of the bytes that it has received.
namespace pozhil {

/// What a client asks for.
struct HttpRequest {
    /// Decoded
    std::string path;
    /// Whether only the head of the answer is wanted
    bool isHead = false;
    /// Whether the client takes answers that are compressed by gzip
    bool acceptsGzip = false;
    /// The value of the header Range; empty if there is none, or if the whole is wanted all the same
    std::string range{};
    /// The values of the headers Host and Origin; nothing where one is missing or stands there twice
    std::optional<std::string> host{};
    std::optional<std::string> origin{};
    bool hasOrigin = false;
};

/// Decodes "+" and "%XX". A "%" without a number after it stays as it is.
std::string urlDecode(const std::string& text);

/// The request in what came with the first packet. The path is what stands between the first two blanks; all methods but
/// HEAD are the same. Of the headers, those count that came whole.
/// \param received ends for us at its first null byte
/// \return nothing if there are no two blanks
std::optional<HttpRequest> readRequest(std::string_view received);

} // namespace pozhil
