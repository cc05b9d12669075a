#include "base/source_text.h"

#include "base/text.h"
#include "base/whole_file.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace pozhil {
namespace {

constexpr const char* BYTE_ORDER_MARK = "\xEF\xBB\xBF";

} // namespace

SourcePtr makeSource(std::string path, std::string text) {
    return std::make_shared<const SourceText>(SourceText{std::move(path), std::move(text)});
}

std::string sourceTextOf(std::string bytes) {
    bytes.erase(std::remove(bytes.begin(), bytes.end(), '\r'), bytes.end());
    if (startsWith(bytes, BYTE_ORDER_MARK)) {
        bytes.erase(0, 3);
    }
    return bytes;
}

bool hasLoneCarriageReturns(std::string_view bytes) {
    for (std::size_t at = bytes.find('\r'); at != std::string_view::npos; at = bytes.find('\r', at + 1)) {
        if (at + 1 == bytes.size() || bytes[at + 1] != '\n') {
            return true;
        }
    }
    return false;
}

bool canReadSource(const std::string& path) {
    return openFile(std::filesystem::u8path(path)).is_open();
}

std::optional<std::string> readSourceText(const std::string& path) {
    std::optional<std::string> bytes = readFile(std::filesystem::u8path(path));
    return bytes ? std::optional(sourceTextOf(std::move(*bytes))) : std::nullopt;
}

std::string_view lineOf(std::string_view text, std::int32_t number) {
    for (std::int32_t line = 1; line < number; ++line) {
        const std::size_t end = text.find('\n');
        if (end == std::string_view::npos) {
            return {};
        }
        text.remove_prefix(end + 1);
    }
    return number < 1 ? std::string_view() : text.substr(0, text.find('\n'));
}

} // namespace pozhil
