#include "tools/language_server/uri.h"

#include "base/text.h"

#include <cctype>
#include <filesystem>
#include <system_error>

namespace pozhil::language_server {
namespace {

constexpr std::string_view FILE_SCHEME = "file://";
constexpr std::string_view HEX_DIGITS = "0123456789ABCDEF";
/// What stands for itself besides letters and digits.
constexpr std::string_view PLAIN_SIGNS = "/-._~";

int hexValue(char digit) {
    const std::size_t value = HEX_DIGITS.find(static_cast<char>(std::toupper(static_cast<unsigned char>(digit))));
    return value == std::string_view::npos ? -1 : static_cast<int>(value);
}

std::string decoded(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool isEscape =
            text[at] == '%' && at + 2 < text.size() && hexValue(text[at + 1]) >= 0 && hexValue(text[at + 2]) >= 0;
        if (isEscape) {
            plain += static_cast<char>(hexValue(text[at + 1]) * 16 + hexValue(text[at + 2]));
            at += 2;
        } else {
            plain += text[at];
        }
    }
    return plain;
}

bool isPlain(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte < 0x80 && (std::isalnum(byte) != 0 || PLAIN_SIGNS.find(character) != std::string_view::npos);
}

} // namespace

std::string pathOf(std::string_view uri) {
    if (!startsWith(uri, FILE_SCHEME)) {
        return std::string(uri);
    }
    std::string_view rest = uri.substr(FILE_SCHEME.size());
    rest.remove_prefix(std::min(rest.find('/'), rest.size())); // the name of this machine
    std::string path = decoded(rest);
    // No path of a file goes on after a zero byte.
    return path.substr(0, path.find('\0'));
}

std::string uriOf(const std::string& path) {
    std::error_code ignored;
    std::filesystem::path whole = std::filesystem::absolute(std::filesystem::u8path(path), ignored);
    std::string uri(FILE_SCHEME);
    for (const char character : whole.lexically_normal().u8string()) {
        if (isPlain(character)) {
            uri += character;
        } else {
            const auto byte = static_cast<unsigned char>(character);
            uri += '%';
            uri += HEX_DIGITS[byte >> 4U];
            uri += HEX_DIGITS[byte & 0xFU];
        }
    }
    return uri;
}

} // namespace pozhil::language_server
