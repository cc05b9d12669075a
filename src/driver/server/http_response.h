#pragma once

#include "driver/server/access.h"
#include "driver/server/http_request.h"
#include "driver/server/web_state.h"

#include <cstdint>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

/// What the local server answers to what it has received, without any sockets.
namespace pozhil {

/// The type of a file by the ending of its path, in which capital letters count.
std::string getMimeType(const std::string& path);

/// Where the file behind a requested path lies, seen from the current directory.
/// \param results the directory of what is built for the page
std::string servedFile(const std::string& path, const std::string& results);

/// An answer, given away piece by piece, so that a large file never lies in memory as a whole.
class HttpResponse {
public:
    /// The answer to a request: the version, what is wrong with it, the page, a file or a part of one, or that there is no
    /// such file. The page and what is built for it go compressed to whoever takes that, once a compressed copy is there.
    /// \return nothing if the file is there but can't be read
    static std::optional<HttpResponse> to(const HttpRequest& request, Access access = Access::Open);

    /// The next bytes to send, valid until the next call. Empty after the last, or where a file breaks off.
    std::string_view nextPiece();

private:
    explicit HttpResponse(std::string head) : piece_(std::move(head)) {}

    static std::optional<HttpResponse> whole(const HttpRequest& request, Access access);
    static HttpResponse withPage(const HttpRequest& request, Access access);
    static std::optional<HttpResponse> withFile(const HttpRequest& request, Access access);
    void keepHead();
    /// Puts more of the file after the piece. False if the file is shorter than it was.
    bool appendFromFile();

    std::string piece_;
    bool isHeadGiven_ = false;
    /// What follows the head, if anything: a page, or a file of which this much is still to be read.
    std::shared_ptr<const ServedPage> page_;
    std::string_view unsentPage_;
    std::ifstream file_;
    std::uint64_t unread_ = 0;
};

} // namespace pozhil
