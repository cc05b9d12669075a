#include "tools/language_server/transport.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace pozhil::language_server {
namespace {

constexpr std::string_view LINE_END = "\r\n";
constexpr std::string_view HEADER_END = "\r\n\r\n";
constexpr std::string_view LENGTH_FIELD = "content-length";

/// No client has more to say before a message.
constexpr std::size_t MOST_HEADER_BYTES = 8192;
/// A source of 100 MB, each of its bytes escaped.
constexpr std::size_t MOST_CONTENT_BYTES = std::size_t(640) << 20U;

std::string_view withoutBlanks(std::string_view text) {
    constexpr std::string_view BLANKS = " \t";
    text.remove_prefix(std::min(text.find_first_not_of(BLANKS), text.size()));
    return text.substr(0, text.find_last_not_of(BLANKS) + 1);
}

bool isLengthField(std::string_view name) {
    return std::equal(name.begin(), name.end(), LENGTH_FIELD.begin(), LENGTH_FIELD.end(), [](char a, char b) {
        return std::tolower(static_cast<unsigned char>(a)) == static_cast<unsigned char>(b);
    });
}

std::size_t lengthOf(std::string_view written) {
    std::size_t length = 0;
    const auto [end, error] = std::from_chars(written.data(), written.data() + written.size(), length);
    if (error != std::errc() || end != written.data() + written.size() || length > MOST_CONTENT_BYTES) {
        throw BrokenStream("Content-Length: " + std::string(written));
    }
    return length;
}

/// \throws BrokenStream if no line of the header tells the length
std::size_t lengthIn(std::string_view header) {
    std::optional<std::size_t> length;
    while (!header.empty()) {
        const std::string_view line = header.substr(0, header.find(LINE_END));
        header.remove_prefix(std::min(line.size() + LINE_END.size(), header.size()));
        const std::size_t colon = std::min(line.find(':'), line.size());
        if (isLengthField(withoutBlanks(line.substr(0, colon)))) {
            length = lengthOf(withoutBlanks(line.substr(std::min(colon + 1, line.size()))));
        }
    }
    if (!length) {
        throw BrokenStream("Content-Length?");
    }
    return *length;
}

} // namespace

std::optional<std::string> MessageReader::next() {
    if (!length_ && !takeHeader()) {
        return std::nullopt;
    }
    if (bytes_.size() - taken_ < *length_) {
        return std::nullopt;
    }
    std::string content = bytes_.substr(taken_, *length_);
    taken_ += *length_;
    length_.reset();
    if (taken_ == bytes_.size()) {
        bytes_ = std::string();
        taken_ = 0;
    }
    return content;
}

bool MessageReader::takeHeader() {
    bytes_.erase(0, taken_);
    taken_ = 0;
    const std::size_t end = bytes_.find(HEADER_END);
    if (std::min(end, bytes_.size()) > MOST_HEADER_BYTES) {
        throw BrokenStream("header > 8192");
    }
    if (end == std::string::npos) {
        return false;
    }
    length_ = lengthIn(std::string_view(bytes_).substr(0, end));
    taken_ = end + HEADER_END.size();
    return true;
}

std::string framed(std::string_view content) {
    return "Content-Length: " + std::to_string(content.size()) + std::string(HEADER_END) + std::string(content);
}

} // namespace pozhil::language_server
