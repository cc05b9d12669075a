#include "driver/server/http_response.h"

#include "driver/server/build_fault.h"
#include "driver/server/web_state.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <stdexcept>
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

bool endsWith(std::string_view text, std::string_view ending) {
    return text.size() >= ending.size() && text.substr(text.size() - ending.size()) == ending;
}

std::string headOf(const std::string& type, std::uint64_t length) {
    return "HTTP/1.1 200 OK\r\nContent-Type: " + type + "\r\nContent-Length: " + std::to_string(length) +
           "\r\nConnection: close\r\nAccess-Control-Allow-Origin: *\r\n\r\n";
}

/// Opened if it is a file. Folders can't be sent; pipes and devices might never end.
std::ifstream openFile(const std::string& path) {
    const bool hasNullByte = path.find('\0') != std::string::npos; // the system would look for what stands before it
    const std::filesystem::path file = std::filesystem::u8path(path);
    std::error_code ignored;
    if (hasNullByte || !std::filesystem::is_regular_file(file, ignored)) {
        return {};
    }
    return std::ifstream(file, std::ios::binary);
}

} // namespace

std::string urlDecode(const std::string& text) {
    constexpr std::size_t DIGITS = 2;
    constexpr int HEXADECIMAL = 16;
    std::string decoded;
    decoded.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '+') {
            decoded += ' ';
        } else if (text[i] == '%' && i + DIGITS < text.size()) {
            try {
                decoded += static_cast<char>(std::stoi(text.substr(i + 1, DIGITS), nullptr, HEXADECIMAL));
                i += DIGITS;
            } catch (const std::invalid_argument&) {
                decoded += '%';
            }
        } else {
            decoded += text[i];
        }
    }
    return decoded;
}

std::string getMimeType(const std::string& path) {
    const auto* const type =
        std::find_if(TYPES.begin(), TYPES.end(), [&](const auto& row) { return endsWith(path, row.first); });
    return type != TYPES.end() ? type->second : "application/octet-stream";
}

std::optional<std::string> requestedPath(std::string_view received) {
    const std::string_view text = received.substr(0, received.find('\0'));
    const std::size_t before = text.find(' ');
    const std::size_t after = before == std::string_view::npos ? before : text.find(' ', before + 1);
    if (after == std::string_view::npos) {
        return std::nullopt;
    }
    return urlDecode(std::string(text.substr(before + 1, after - before - 1)));
}

std::string servedFile(const std::string& path) {
    const bool isBuilt = path == "/index.js" || path == "/index.wasm" || path == "/index.data";
    return (isBuilt ? "./வெளியீடு" : ".") + path;
}

std::optional<HttpResponse> HttpResponse::to(const std::string& path) {
    if (path == "/version") {
        return withVersion();
    }
    if (path == "/version/fault") {
        return withBuildFault();
    }
    if (path == "/" || path == "/index.html") {
        return withPage();
    }
    return withFile(path);
}

HttpResponse HttpResponse::withVersion() {
    const std::string version = std::to_string(g_appVersion.load());
    return HttpResponse(headOf("text/plain", version.size()) + version);
}

HttpResponse HttpResponse::withBuildFault() {
    const std::string fault = answerToPage();
    return HttpResponse(headOf(getMimeType(".json"), fault.size()) + fault);
}

HttpResponse HttpResponse::withPage() {
    auto page = g_web_html.load();
    HttpResponse response(headOf(getMimeType(".html"), page->size()));
    response.unsentPage_ = *page;
    response.page_ = std::move(page);
    return response;
}

std::optional<HttpResponse> HttpResponse::withFile(const std::string& path) {
    std::ifstream file = openFile(servedFile(path));
    if (!file.is_open()) {
        return HttpResponse(NOT_FOUND);
    }
    const std::streamoff size = file.seekg(0, std::ios::end).tellg();
    file.seekg(0);
    if (!file || size < 0) {
        return std::nullopt;
    }
    HttpResponse response(headOf(getMimeType(path), static_cast<std::uint64_t>(size)));
    response.file_ = std::move(file);
    response.unread_ = static_cast<std::uint64_t>(size);
    if (!response.appendFromFile()) {
        return std::nullopt;
    }
    return response;
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
