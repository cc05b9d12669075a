#pragma once

#include <cstdint>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

/// What the local server answers to what it has received, without any sockets.
namespace pozhil {

/// Decodes "+" and "%XX". A "%" without a number after it stays as it is.
std::string urlDecode(const std::string& text);

/// The type of a file by the ending of its path, in which capital letters count.
std::string getMimeType(const std::string& path);

/// The decoded path of a request: what stands between its first two blanks. Method and headers count for nothing.
/// \param received ends for us at its first null byte
/// \return nothing if there are no two blanks
std::optional<std::string> requestedPath(std::string_view received);

/// Where the file behind a requested path lies, seen from the current directory.
std::string servedFile(const std::string& path);

/// An answer, given away piece by piece, so that a large file never lies in memory as a whole.
class HttpResponse {
public:
    /// The answer to a requested path: the version, what is wrong with it, the page, a file, or that there is no such file.
    /// \return nothing if the file is there but can't be read
    static std::optional<HttpResponse> to(const std::string& path);

    /// The next bytes to send, valid until the next call. Empty after the last, or where a file breaks off.
    std::string_view nextPiece();

private:
    explicit HttpResponse(std::string head) : piece_(std::move(head)) {}

    static HttpResponse withVersion();
    static HttpResponse withBuildFault();
    static HttpResponse withPage();
    static std::optional<HttpResponse> withFile(const std::string& path);
    /// Puts more of the file after the piece. False if the file is shorter than it was.
    bool appendFromFile();

    std::string piece_;
    bool isHeadGiven_ = false;
    /// What follows the head, if anything: a page, or a file of which this much is still to be read.
    std::shared_ptr<const std::string> page_;
    std::string_view unsentPage_;
    std::ifstream file_;
    std::uint64_t unread_ = 0;
};

} // namespace pozhil
