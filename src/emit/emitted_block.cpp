#include "emit/emitted_block.h"

#include <algorithm>
#include <limits>
#include <locale>
#include <sstream>
#include <stdexcept>

namespace pozhil {
namespace {

const Filling* findFilling(std::string_view name, const Holes& holes) {
    const auto hole = std::find_if(holes.begin(), holes.end(), [&](const Hole& one) { return one.first == name; });
    return hole == holes.end() ? nullptr : &hole->second;
}

/// What stands in the holes of a block.
struct Fillings {
    const Holes& own;
    const Holes& standing;

    bool write(std::ostream& out, std::string_view name) const {
        const Filling* filling = findFilling(name, own);
        filling = filling == nullptr ? findFilling(name, standing) : filling;
        if (filling != nullptr) {
            filling->writeTo(out);
        }
        return filling != nullptr;
    }
};

void refuseUnused(const Block& block, const Holes& holes) {
    for (const Hole& hole : holes) {
        if (!block.has(hole.first)) {
            throw std::logic_error("no hole for the filling " + std::string(hole.first));
        }
    }
}

/// Whether \p hole is all that \p line has, blanks apart.
bool isAlone(const Block::Found& hole, std::string_view line) {
    return hole.begin != Block::NOWHERE && hole.begin == line.find_first_not_of(' ') && hole.end == line.size();
}

void refuseUnknown(bool isKnown, std::string_view hole) {
    if (!isKnown) {
        throw std::logic_error("no filling for the hole " + std::string(hole));
    }
}

template <class Write> void writePiece(std::ostream& out, std::string_view piece, const Write& writeHole) {
    std::size_t written = 0;
    for (Block::Found hole = Block::find(piece, 0); hole.begin != Block::NOWHERE; hole = Block::find(piece, hole.end)) {
        out << piece.substr(written, hole.begin - written);
        refuseUnknown(writeHole(hole.name), hole.name);
        written = hole.end;
    }
    out << piece.substr(written);
}

void writeLine(std::ostream& out, std::string_view line, const Fillings& fillings, std::size_t indent) {
    const Block::Found first = Block::find(line, 0);
    if (isAlone(first, line)) {
        refuseUnknown(fillings.write(out, first.name), first.name);
        return;
    }
    if (!line.empty()) {
        out << std::string(indent, ' ');
    }
    writePiece(out, line, [&](std::string_view name) { return fillings.write(out, name); });
    out << "\n";
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

void writeBlock(std::ostream& out, const Block& block, const Holes& holes, std::size_t indent, const Holes& standing) {
    refuseUnused(block, holes);
    std::string_view text = block.text();
    if (!text.empty() && text.front() == '\n') {
        text.remove_prefix(1);
    }
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        writeLine(out, text.substr(0, end), {holes, standing}, indent);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

void writeInline(std::ostream& out, const Block& pattern, const WriteHole& writeHole) {
    writePiece(out, pattern.text(), writeHole);
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
