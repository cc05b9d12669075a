#include "tools/publish/font_tables.h"

namespace pozhil::tools {
namespace {

constexpr std::string_view TRUE_TYPE{"\0\1\0\0", 4};
constexpr std::size_t HEAD_BYTES = 12;
constexpr std::size_t ROW_BYTES = 16;
constexpr std::size_t TAG_BYTES = 4;
/// Tables begin at multiples of this.
constexpr std::size_t ALIGNMENT = 4;

/// Where in the table "head" the sum over the whole font stands, and what it is the difference to.
constexpr std::size_t WHOLE_SUM_PLACE = 8;
constexpr std::uint32_t WHOLE_SUM = 0xB1B0AFBA;

std::uint32_t numberAt(std::string_view bytes, std::size_t place, std::size_t length) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < length; ++i) {
        const auto byte = place + i < bytes.size() ? static_cast<unsigned char>(bytes[place + i]) : 0U;
        number = number << 8U | byte;
    }
    return number;
}

/// A row of the list of tables.
std::string_view rowOf(std::string_view font, std::size_t index) {
    return part(font, HEAD_BYTES + index * ROW_BYTES, ROW_BYTES);
}

std::size_t rowCount(std::string_view font) {
    return shortAt(font, 4);
}

std::uint32_t sumOf(std::string_view bytes) {
    std::uint32_t sum = 0;
    for (std::size_t place = 0; place < bytes.size(); place += 4) {
        sum += longAt(bytes, place);
    }
    return sum;
}

void fillUp(std::string& bytes) {
    bytes.append((ALIGNMENT - bytes.size() % ALIGNMENT) % ALIGNMENT, '\0');
}

/// What a font begins with: its kind, and what a search for a tag among so many needs.
std::string headOf(std::size_t count) {
    std::size_t power = 0;
    while ((std::size_t{2} << power) <= count) {
        ++power;
    }
    const std::size_t range = ROW_BYTES << power;
    return std::string(TRUE_TYPE) + shortBytes(count) + shortBytes(range) + shortBytes(power) +
           shortBytes(count * ROW_BYTES - range);
}

} // namespace

std::uint32_t shortAt(std::string_view bytes, std::size_t place) {
    return numberAt(bytes, place, 2);
}

std::uint32_t longAt(std::string_view bytes, std::size_t place) {
    return numberAt(bytes, place, 4);
}

std::string shortBytes(std::size_t number) {
    return {static_cast<char>(number >> 8U & 0xFFU), static_cast<char>(number & 0xFFU)};
}

std::string longBytes(std::size_t number) {
    return shortBytes(number >> 16U) + shortBytes(number);
}

std::string_view part(std::string_view bytes, std::size_t begin, std::size_t length) {
    return begin <= bytes.size() ? bytes.substr(begin, length) : std::string_view();
}

bool isFont(std::string_view file) {
    const std::string_view kind = file.substr(0, TRUE_TYPE.size());
    return kind == TRUE_TYPE || kind == "OTTO" || kind == "true";
}

std::string_view tableOf(std::string_view font, std::string_view tag) {
    for (std::size_t i = 0; i < rowCount(font); ++i) {
        const std::string_view row = rowOf(font, i);
        if (row.substr(0, TAG_BYTES) == tag) {
            return part(font, longAt(row, 8), longAt(row, 12));
        }
    }
    return {};
}

std::optional<FontTables> readTables(std::string_view font) {
    if (!isFont(font)) {
        return std::nullopt;
    }
    FontTables tables;
    for (std::size_t i = 0; i < rowCount(font); ++i) {
        const std::string_view row = rowOf(font, i);
        const std::size_t length = longAt(row, 12);
        const std::string_view table = part(font, longAt(row, 8), length);
        const bool isWhole = row.size() == ROW_BYTES && table.size() == length;
        if (!isWhole || !tables.emplace(row.substr(0, TAG_BYTES), table).second) {
            return std::nullopt;
        }
    }
    return tables;
}

std::string writeFont(const FontTables& tables) {
    std::string rows;
    std::string contents;
    const std::size_t start = HEAD_BYTES + tables.size() * ROW_BYTES;
    std::size_t wholeSumPlace = 0;
    for (const auto& [tag, bytes] : tables) {
        std::string table(bytes);
        if (tag == "head") {
            table.replace(WHOLE_SUM_PLACE, 4, longBytes(0));
            wholeSumPlace = start + contents.size() + WHOLE_SUM_PLACE;
        }
        rows += tag + longBytes(sumOf(table)) + longBytes(start + contents.size()) + longBytes(table.size());
        contents += table;
        fillUp(contents);
    }
    std::string font = headOf(tables.size()) + rows + contents;
    return font.replace(wholeSumPlace, 4, longBytes(WHOLE_SUM - sumOf(font)));
}

} // namespace pozhil::tools
