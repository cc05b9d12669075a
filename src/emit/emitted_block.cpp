#include "emit/emitted_block.h"

#include <algorithm>
#include <limits>
#include <locale>
#include <sstream>
#include <stdexcept>

namespace pozhil {
namespace {

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isNameCharacter(char c) {
    return isLetter(c) || (c >= '0' && c <= '9') || c == '_';
}

/// A hole found in a line: where it stands, with its dollar sign and braces, and its name.
struct FoundHole {
    std::size_t begin;
    std::size_t end;
    std::string_view name;
};

/// The first hole of \p line at or behind \p from; begin is npos when there is none.
FoundHole findHole(std::string_view line, std::size_t from) {
    for (std::size_t dollar = line.find('$', from); dollar != std::string_view::npos;
         dollar = line.find('$', dollar + 1)) {
        const std::size_t next = dollar + 1;
        if (next < line.size() && line[next] == '{') {
            const std::size_t close = line.find('}', next);
            return {dollar, close + 1, line.substr(next + 1, close - next - 1)};
        }
        if (next < line.size() && isLetter(line[next])) {
            const auto stop = std::find_if_not(line.begin() + next, line.end(), isNameCharacter);
            const auto end = static_cast<std::size_t>(stop - line.begin());
            return {dollar, end, line.substr(next, end - next)};
        }
    }
    return {std::string_view::npos, 0, {}};
}

const Filling& fillingOf(std::string_view name, const Holes& holes) {
    const auto hole = std::find_if(holes.begin(), holes.end(), [&](const Hole& one) { return one.first == name; });
    if (hole == holes.end()) {
        throw std::logic_error("no filling for the hole " + std::string(name));
    }
    return hole->second;
}

/// The hole that \p line consists of, blanks apart; begin is npos for any other line.
FoundHole onlyHole(std::string_view line) {
    const std::size_t start = line.find_first_not_of(' ');
    const FoundHole hole = findHole(line, 0);
    const bool isAlone = hole.begin != std::string_view::npos && hole.begin == start && hole.end == line.size();
    return isAlone ? hole : FoundHole{std::string_view::npos, 0, {}};
}

void writeLine(std::ostream& out, std::string_view line, const Holes& holes, std::size_t indent) {
    const FoundHole alone = onlyHole(line);
    if (alone.begin != std::string_view::npos) {
        fillingOf(alone.name, holes).writeTo(out);
        return;
    }
    if (!line.empty()) {
        out << std::string(indent, ' ');
    }
    std::size_t written = 0;
    for (FoundHole hole = findHole(line, 0); hole.begin != std::string_view::npos; hole = findHole(line, hole.end)) {
        out << line.substr(written, hole.begin - written);
        fillingOf(hole.name, holes).writeTo(out);
        written = hole.end;
    }
    out << line.substr(written) << "\n";
}

} // namespace

void Filling::writeTo(std::ostream& out) const {
    if (const auto* text = std::get_if<std::string>(&content_)) {
        out << *text;
    } else if (const auto* writer = std::get_if<std::function<void()>>(&content_)) {
        (*writer)();
    } else {
        for (const Filling& part : std::get<std::vector<Filling>>(content_)) {
            part.writeTo(out);
        }
    }
}

void writeBlock(std::ostream& out, std::string_view block, const Holes& holes, std::size_t indent) {
    if (!block.empty() && block.front() == '\n') {
        block.remove_prefix(1);
    }
    while (!block.empty()) {
        const std::size_t end = std::min(block.find('\n'), block.size());
        writeLine(out, block.substr(0, end), holes, indent);
        block.remove_prefix(std::min(end + 1, block.size()));
    }
}

std::string floatConstant(float value) {
    constexpr float LARGEST = std::numeric_limits<float>::max();
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text.precision(std::numeric_limits<float>::digits10 + 1);
    text << std::clamp(value, -LARGEST, LARGEST);
    std::string constant = text.str();
    if (constant.find_first_of(".e") == std::string::npos) {
        constant += ".0";
    }
    return constant + "f";
}

} // namespace pozhil
