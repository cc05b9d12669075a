#include "tools/publish/measuring_font.h"

#include "tools/publish/font_tables.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace pozhil::tools {
namespace {

/// What pages measure a text by, in NanoVG's reader of fonts, and the names. A font with TrueType outlines has them all.
constexpr std::array<std::string_view, 8> NEEDED = {"cmap", "glyf", "head", "hhea", "hmtx", "loca", "maxp", "name"};
/// What that reader asks for where it is there: how near to each other two letters stand.
constexpr std::array<std::string_view, 2> USEFUL = {"GPOS", "kern"};

struct Outlines {
    std::string bytes;
    std::string places;
};

/// The table of where each outline begins, and at its end where the last one ends.
class Places {
public:
    Places(std::string_view table, bool areLong) : table_(table), areLong_(areLong) {}

    bool holds(std::size_t count) const { return table_.size() >= count * (areLong_ ? 4 : 2); }

    std::size_t operator[](std::size_t index) const {
        return areLong_ ? longAt(table_, index * 4) : std::size_t{2} * shortAt(table_, index * 2);
    }

    std::string written(std::size_t place) const { return areLong_ ? longBytes(place) : shortBytes(place / 2); }

private:
    std::string_view table_;
    bool areLong_;
};

/// Of each outline its box alone. Letters without an outline, such as the blank, remain without a box.
std::optional<Outlines> boxesOf(const FontTables& tables) {
    constexpr std::size_t BOX_BEGIN = 2;
    constexpr std::size_t BOX_END = 10;
    const std::size_t count = shortAt(tables.at("maxp"), 4);
    const std::string_view outlines = tables.at("glyf");
    const Places places(tables.at("loca"), shortAt(tables.at("head"), 50) == 1);
    if (count == 0 || !places.holds(count + 1)) {
        return std::nullopt;
    }
    Outlines boxes;
    for (std::size_t i = 0; i < count; ++i) {
        boxes.places += places.written(boxes.bytes.size());
        const std::size_t begin = places[i];
        const std::size_t end = places[i + 1];
        if (begin == end) {
            continue;
        }
        if (end < begin || end > outlines.size() || end - begin < BOX_END) {
            return std::nullopt;
        }
        // That it consists of no contours is what its first number then says.
        boxes.bytes += shortBytes(0);
        boxes.bytes += outlines.substr(begin + BOX_BEGIN, BOX_END - BOX_BEGIN);
    }
    boxes.places += places.written(boxes.bytes.size());
    return boxes;
}

bool isOfLicence(std::uint32_t number) {
    constexpr std::uint32_t COPYRIGHT = 0;
    constexpr std::uint32_t TRADEMARK = 7;
    constexpr std::uint32_t LICENCE = 13;
    constexpr std::uint32_t ADDRESS = 14;
    return number == COPYRIGHT || number == TRADEMARK || number == LICENCE || number == ADDRESS;
}

/// Of the table of names what a licence wants to go with the font, in all languages.
std::optional<std::string> licenceNames(std::string_view names) {
    constexpr std::size_t HEAD_BYTES = 6;
    constexpr std::size_t ROW_BYTES = 12;
    constexpr std::size_t MOST_TEXT = 0xFFFF;
    const std::size_t count = shortAt(names, 2);
    const std::string_view allTexts = part(names, shortAt(names, 4));
    if (shortAt(names, 0) != 0 || names.size() < HEAD_BYTES + count * ROW_BYTES) {
        return std::nullopt;
    }
    std::string rows;
    std::string texts;
    for (std::size_t i = 0; i < count; ++i) {
        const std::string_view row = names.substr(HEAD_BYTES + i * ROW_BYTES, ROW_BYTES);
        const std::string_view text = part(allTexts, shortAt(row, 10), shortAt(row, 8));
        if (text.size() != shortAt(row, 8)) {
            return std::nullopt;
        }
        if (isOfLicence(shortAt(row, 6))) {
            rows += std::string(row.substr(0, 10)) + shortBytes(texts.size());
            texts += text;
        }
    }
    if (texts.size() > MOST_TEXT) {
        return std::nullopt;
    }
    return shortBytes(0) + shortBytes(rows.size() / ROW_BYTES) + shortBytes(HEAD_BYTES + rows.size()) + rows + texts;
}

bool isHeadValid(std::string_view head) {
    constexpr std::size_t BYTES = 54;
    constexpr std::uint32_t MAGIC = 0x5F0F3CF5;
    return head.size() == BYTES && longAt(head, 12) == MAGIC && shortAt(head, 50) <= 1;
}

/// Whether all letters have an advance.
bool hasAdvances(const FontTables& tables) {
    constexpr std::size_t HEAD_BYTES = 36;
    constexpr std::size_t ADVANCE_BYTES = 4;
    const std::string_view head = tables.at("hhea");
    const std::size_t count = shortAt(head, 34);
    return head.size() == HEAD_BYTES && count > 0 && tables.at("hmtx").size() >= count * ADVANCE_BYTES;
}

/// The tables that measuring takes, as they are; nothing if one of them is missing or wrong.
std::optional<FontTables> usedTables(std::string_view font) {
    const auto all = readTables(font);
    if (!all) {
        return std::nullopt;
    }
    FontTables used;
    for (const auto& [tag, table] : *all) {
        if (std::find(NEEDED.begin(), NEEDED.end(), tag) != NEEDED.end() ||
            std::find(USEFUL.begin(), USEFUL.end(), tag) != USEFUL.end()) {
            used.emplace(tag, table);
        }
    }
    const bool hasNeeded =
        std::all_of(NEEDED.begin(), NEEDED.end(), [&](std::string_view tag) { return used.count(tag) == 1; });
    const bool isRight = hasNeeded && isHeadValid(used.at("head")) && hasAdvances(used);
    return isRight ? std::optional(used) : std::nullopt;
}

} // namespace

std::optional<std::string> measuringFont(std::string_view font) {
    auto tables = usedTables(font);
    if (!tables) {
        return std::nullopt;
    }
    const auto boxes = boxesOf(*tables);
    const auto names = licenceNames(tables->at("name"));
    if (!boxes || !names) {
        return std::nullopt;
    }
    tables->at("glyf") = boxes->bytes;
    tables->at("loca") = boxes->places;
    tables->at("name") = *names;
    return writeFont(*tables);
}

} // namespace pozhil::tools
