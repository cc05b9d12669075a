#include "tools/language_server/client_text.h"

#include "report/code_point.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace pozhil::language_server {
namespace {

/// From here on a character takes two units of UTF-16.
constexpr std::int32_t FIRST_OF_TWO_UNITS = 0x10000;

std::size_t unitsOf(const report::CodePoint& point, Encoding encoding) {
    if (encoding == Encoding::Utf8) {
        return point.size;
    }
    return point.value >= FIRST_OF_TWO_UNITS ? 2 : 1;
}

} // namespace

ClientText::ClientText(std::string text, Encoding encoding) : text_(std::move(text)), encoding_(encoding) {
    indexLines();
}

void ClientText::indexLines() {
    lines_.assign(1, 0);
    for (std::size_t at = text_.find_first_of("\r\n"); at != std::string::npos;) {
        const bool isPair = text_[at] == '\r' && at + 1 < text_.size() && text_[at + 1] == '\n';
        const std::size_t next = at + (isPair ? 2 : 1);
        lines_.push_back(next);
        at = text_.find_first_of("\r\n", next);
    }
}

std::string_view ClientText::lineText(std::size_t line) const {
    const std::size_t end = line + 1 < lines_.size() ? lines_[line + 1] : text_.size();
    const std::string_view all = std::string_view(text_).substr(lines_[line], end - lines_[line]);
    return all.substr(0, all.find_first_of("\r\n"));
}

std::size_t ClientText::offsetAt(Position position) const {
    if (position.line >= lines_.size()) {
        return text_.size();
    }
    const std::string_view line = lineText(position.line);
    std::size_t at = 0;
    for (std::size_t units = 0; at < line.size();) {
        const report::CodePoint point = report::codePointAt(line, at);
        units += unitsOf(point, encoding_);
        if (units > position.character) {
            break;
        }
        at += point.size;
    }
    return lines_[position.line] + at;
}

Position ClientText::positionAt(std::size_t offset) const {
    const std::size_t within = std::min(offset, text_.size());
    const auto after = std::upper_bound(lines_.begin(), lines_.end(), within);
    const auto line = static_cast<std::size_t>(std::distance(lines_.begin(), after)) - 1;
    const std::string_view text = lineText(line);
    const std::size_t bytes = std::min(within - lines_[line], text.size());
    std::size_t units = 0;
    for (std::size_t at = 0; at < bytes;) {
        const report::CodePoint point = report::codePointAt(text, at);
        units += unitsOf(point, encoding_);
        at += point.size;
    }
    return {line, units};
}

void ClientText::replace(Range range, std::string_view text) {
    const auto [begin, end] = std::minmax({offsetAt(range.begin), offsetAt(range.end)});
    text_.replace(begin, end - begin, text);
    indexLines();
}

} // namespace pozhil::language_server
