#include "driver/server/http_response.h"

#include "base/text.h"
#include "base/whole_file.h"
#include "driver/server/build_fault.h"
#include "driver/server/file_part.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>
#include <utility>

namespace pozhil {
namespace {

/// The first ending that fits decides.
constexpr std::array<std::pair<std::string_view, const char*>, 14> TYPES = {{
    {".html", "text/html; charset=utf-8"},
    {".js", "application/javascript"},
    {".wasm", "application/wasm"},
    {".css", "text/css"},
    {".png", "image/png"},
    {".jpg", "image/jpeg"},
    {".jpeg", "image/jpeg"},
    {".svg", "image/svg+xml"},
    {".json", "application/json"},
    {".gif", "image/gif"},
    {".mp4", "video/mp4"},
    {".ttf", "font/ttf"},
    {".woff", "font/woff"},
    {".woff2", "font/woff2"},
}};

/// The length is less than that of the text, so a client shows its beginning.
constexpr const char* NOT_FOUND = "HTTP/1.1 404 Not Found\r\nContent-Length: 26\r\n\r\n404 - பக்கம் காணவில்லை";

/// What the build makes for the page.
constexpr std::array<std::string_view, 3> BUILT_FILES = {"/index.js", "/index.wasm", "/index.data"};

constexpr const char* COMPRESSED_ENDING = ".gz";
constexpr const char* COMPRESSED = "Content-Encoding: gzip\r\nVary: Accept-Encoding\r\n";

/// What an answer's head says beside the length of what follows it.
struct Head {
    std::string type;
    const char* status = "200 OK";
    /// Further lines
    std::string more{};
};

/// Pages of other hosts may read what whoever asks gets.
std::string textOf(const Head& head, std::uint64_t length, Access access) {
    const char* const others =
        access == Access::Strict ? "Cross-Origin-Resource-Policy: same-origin" : "Access-Control-Allow-Origin: *";
    return std::string("HTTP/1.1 ") + head.status + "\r\nContent-Type: " + head.type +
           "\r\nContent-Length: " + std::to_string(length) + "\r\n" + head.more + "Connection: close\r\n" + others +
           "\r\n\r\n";
}

std::string withText(const std::string& type, const std::string& text, Access access) {
    return textOf({type}, text.size(), access) + text;
}

std::string refusal() {
    const std::string text = "403 - அனுமதி இல்லை";
    return textOf({"text/plain; charset=utf-8", "403 Forbidden"}, text.size(), Access::Strict) + text;
}

std::ifstream openServed(const std::string& path) {
    const bool hasNullByte = path.find('\0') != std::string::npos; // the system would look for what stands before it
    return hasNullByte ? std::ifstream() : openFile(std::filesystem::u8path(path));
}

/// gzip gives what it makes the time of the file that it was made of; whatever has another is older or unfinished.
bool hasCompressedCopy(const std::string& path) {
    std::error_code error;
    const auto original = std::filesystem::last_write_time(std::filesystem::u8path(path), error);
    const auto copy = std::filesystem::last_write_time(std::filesystem::u8path(path + COMPRESSED_ENDING), error);
    return !error && copy == original;
}

bool isBuilt(const std::string& path) {
    return std::find(BUILT_FILES.begin(), BUILT_FILES.end(), path) != BUILT_FILES.end();
}

} // namespace

std::string getMimeType(const std::string& path) {
    const auto* const type =
        std::find_if(TYPES.begin(), TYPES.end(), [&](const auto& row) { return endsWith(path, row.first); });
    return type != TYPES.end() ? type->second : "application/octet-stream";
}

std::string servedFile(const std::string& path, const std::string& results) {
    return (isBuilt(path) ? "./" + results : ".") + path;
}

std::optional<HttpResponse> HttpResponse::to(const HttpRequest& request, Access access) {
    const bool isRefused = access == Access::Strict && !comesFromOwnPage(request);
    auto response = isRefused ? HttpResponse(refusal()) : whole(request, access);
    if (response && request.isHead) {
        response->keepHead();
    }
    return response;
}

std::optional<HttpResponse> HttpResponse::whole(const HttpRequest& request, Access access) {
    if (request.path == "/version") {
        return HttpResponse(withText("text/plain", std::to_string(g_appVersion.load()), access));
    }
    if (request.path == "/version/fault") {
        return HttpResponse(withText(getMimeType(".json"), answerToPage(), access));
    }
    if (request.path == "/" || request.path == "/index.html") {
        return withPage(request, access);
    }
    const bool isOpen = access == Access::Open || isBuilt(request.path);
    return isOpen || isApplicationFile(request.path, g_web_html.load()->files) ? withFile(request, access)
                                                                               : HttpResponse(NOT_FOUND);
}

HttpResponse HttpResponse::withPage(const HttpRequest& request, Access access) {
    auto page = g_web_html.load();
    const bool isCompressed = request.acceptsGzip && !page->compressed.empty();
    const std::string& sent = isCompressed ? page->compressed : page->text;
    HttpResponse response(
        textOf({getMimeType(".html"), "200 OK", isCompressed ? COMPRESSED : ""}, sent.size(), access));
    response.unsentPage_ = sent;
    response.page_ = std::move(page);
    return response;
}

std::optional<HttpResponse> HttpResponse::withFile(const HttpRequest& request, Access access) {
    std::string path = servedFile(request.path, g_web_html.load()->results);
    Head head = {getMimeType(request.path)};
    if (request.acceptsGzip && request.range.empty() && isBuilt(request.path) && hasCompressedCopy(path)) {
        path += COMPRESSED_ENDING;
        head.more = COMPRESSED;
    }
    std::ifstream file = openServed(path);
    if (!file.is_open()) {
        return HttpResponse(NOT_FOUND);
    }
    const std::streamoff end = file.seekg(0, std::ios::end).tellg();
    if (!file || end < 0) {
        return std::nullopt;
    }
    const auto size = static_cast<std::uint64_t>(end);
    FilePart range = rangeOf(request.range, size);
    switch (range.kind) {
    case FilePart::Kind::Whole: range.length = size; break;
    case FilePart::Kind::Part:
        head.status = "206 Partial Content";
        head.more = "Content-Range: bytes " + std::to_string(range.first) + "-" +
                    std::to_string(range.first + range.length - 1) + "/" + std::to_string(size) + "\r\n";
        break;
    case FilePart::Kind::Impossible:
        head.status = "416 Range Not Satisfiable";
        head.more = "Content-Range: bytes */" + std::to_string(size) + "\r\n";
    }
    HttpResponse response(textOf(head, range.length, access));
    response.file_ = std::move(file);
    response.file_.seekg(static_cast<std::streamoff>(range.first));
    response.unread_ = range.length;
    if (!response.appendFromFile()) {
        return std::nullopt;
    }
    return response;
}

void HttpResponse::keepHead() {
    constexpr std::string_view END = "\r\n\r\n";
    piece_.resize(piece_.find(END) + END.size());
    page_.reset();
    unread_ = 0;
}

std::string_view HttpResponse::nextPiece() {
    if (!isHeadGiven_) {
        isHeadGiven_ = true;
        return piece_;
    }
    if (page_) {
        return std::exchange(unsentPage_, {});
    }
    piece_.clear();
    return appendFromFile() ? piece_ : std::string_view();
}

bool HttpResponse::appendFromFile() {
    constexpr std::uint64_t PIECE_BYTES = std::uint64_t{64} * 1024;
    const auto count = static_cast<std::size_t>(std::min(unread_, PIECE_BYTES));
    const std::size_t before = piece_.size();
    piece_.resize(before + count);
    unread_ -= count;
    return count == 0 || file_.read(piece_.data() + before, static_cast<std::streamsize>(count));
}

} // namespace pozhil
