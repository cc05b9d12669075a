#include "tools/language_server/client_text.h"

#include "report/code_point.h"

#include <algorithm>
#include <cstddef>
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

ClientText::ClientText(std::string text, Encoding encoding)
    : text_(std::move(text)), encoding_(encoding), lines_(lineBegins(0, text_.size())) {
    lines_.insert(lines_.begin(), 0);
}

std::vector<std::size_t> ClientText::lineBegins(std::size_t from, std::size_t to) const {
    std::vector<std::size_t> begins;
    for (std::size_t at = text_.find_first_of("\r\n", from); at < to; at = text_.find_first_of("\r\n", at)) {
        const bool isPair = text_[at] == '\r' && at + 1 < text_.size() && text_[at + 1] == '\n';
        at += isPair ? 2 : 1;
        begins.push_back(at);
    }
    return begins;
}

std::size_t ClientText::lineOf(std::size_t offset) const {
    return static_cast<std::size_t>(
               std::distance(lines_.begin(), std::upper_bound(lines_.begin(), lines_.end(), offset))) -
           1;
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
    const std::size_t line = lineOf(within);
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

/// Only the lines around it are looked at anew: a client may send thousands of edits at once.
void ClientText::replace(Range range, std::string_view text) {
    const auto [begin, end] = std::minmax({offsetAt(range.begin), offsetAt(range.end)});
    // A line more at either end, since an edit may join a carriage return and a line feed, or part them.
    const std::size_t first = std::max<std::size_t>(lineOf(begin), 1) - 1;
    const std::size_t after = std::min(lineOf(end) + 2, lines_.size());
    const std::size_t oldEnd = after < lines_.size() ? lines_[after] : text_.size();
    text_.replace(begin, end - begin, text);
    const std::size_t newEnd = oldEnd - (end - begin) + text.size();
    // The line that begins at the end of what is looked at keeps its place in the list.
    std::vector<std::size_t> begins = lineBegins(lines_[first], newEnd);
    if (after < lines_.size()) {
        begins.pop_back();
    }
    for (std::size_t line = after; line < lines_.size(); ++line) {
        lines_[line] = lines_[line] - oldEnd + newEnd;
    }
    const auto place = lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(first) + 1,
                                    lines_.begin() + static_cast<std::ptrdiff_t>(after));
    lines_.insert(place, begins.begin(), begins.end());
}

} // namespace pozhil::language_server
