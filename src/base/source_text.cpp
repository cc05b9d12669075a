#include "base/source_text.h"

#include "base/text.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

namespace pozhil {
namespace {

constexpr const char* BYTE_ORDER_MARK = "\xEF\xBB\xBF";

/// The open file; a stream that is not open if there is no readable file at \p path.
std::ifstream openSource(const std::string& path) {
    const std::filesystem::path file = std::filesystem::u8path(path);
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(file, ignored)) {
        return {}; // a directory has no text, and a pipe or device might never end
    }
    return std::ifstream(file, std::ios::binary);
}

} // namespace

SourcePtr makeSource(std::string path, std::string text) {
    return std::make_shared<const SourceText>(SourceText{std::move(path), std::move(text)});
}

bool canReadSource(const std::string& path) {
    return openSource(path).is_open();
}

std::optional<std::string> readSourceText(const std::string& path) {
    std::ifstream stream = openSource(path);
    if (!stream.is_open()) {
        return std::nullopt;
    }
    std::string text((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
    if (startsWith(text, BYTE_ORDER_MARK)) {
        text.erase(0, 3);
    }
    return text;
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
