/// Writes the tables of utf8proc anew for web programs, which would be three quarters tables otherwise: without what the
/// engine never asks for, and with what few characters have in lists of their own.
///
///   letter_tables >utf8proc_data.c

#include <utf8proc.h>
// NOLINTNEXTLINE(bugprone-suspicious-include): it is data
#include <utf8proc_data.c>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr std::uint32_t CHARACTERS = 0x110000;
constexpr std::uint16_t NONE = UINT16_MAX;
/// Utf8proc looks up blocks of so many characters.
constexpr std::uint32_t BLOCK = 256;

const utf8proc_property_t& originalOf(std::uint32_t character) {
    return utf8proc_properties[utf8proc_stage2table[utf8proc_stage1table[character / BLOCK] + character % BLOCK]];
}

/// Texts of utf8proc, of which only those are taken that are asked for.
class Sequences {
public:
    /// \param index in the original: where the text begins, and in the two upper bits its length where that is small
    /// \return the index of the same text here
    std::uint16_t textAt(std::uint16_t index) {
        constexpr unsigned LENGTH_BITS = 14;
        constexpr unsigned LONG = 3;
        const unsigned length = index >> LENGTH_BITS;
        const std::uint16_t* const begin = utf8proc_sequences + (index & ((1U << LENGTH_BITS) - 1));
        const bool isLong = length >= LONG;
        const std::uint16_t* const first = begin + (isLong ? 1 : 0);
        const std::uint16_t* const end = after(first, isLong ? *begin + 1U : length + 1U);
        return static_cast<std::uint16_t>(indexOf({begin, end}) | length << LENGTH_BITS);
    }
    /// The same of one character, whose index has no length.
    std::uint16_t characterAt(std::uint16_t index) {
        const std::uint16_t* const begin = utf8proc_sequences + index;
        return indexOf({begin, after(begin, 1)});
    }

    const std::vector<std::uint16_t>& units() const { return units_; }

private:
    static const std::uint16_t* after(const std::uint16_t* unit, unsigned characters) {
        constexpr std::uint16_t SURROGATES = 0xF800;
        constexpr std::uint16_t SURROGATE = 0xD800;
        for (; characters > 0; --characters) {
            unit += (*unit & SURROGATES) == SURROGATE ? 2 : 1;
        }
        return unit;
    }
    std::uint16_t indexOf(const std::vector<std::uint16_t>& text) {
        const auto [found, isNew] = known_.try_emplace(text, static_cast<std::uint16_t>(units_.size()));
        if (isNew) {
            units_.insert(units_.end(), text.begin(), text.end());
        }
        return found->second;
    }

    std::vector<std::uint16_t> units_;
    std::map<std::vector<std::uint16_t>, std::uint16_t> known_;
};

/// Few characters, and a number for each.
using Numbers = std::map<std::uint32_t, std::uint16_t>;

void note(Numbers& numbers, std::uint32_t character, std::uint16_t number) {
    if (number != NONE) {
        numbers.emplace(character, number);
    }
}

struct Tables {
    /// What a character has in common with many others, as it is written, and the characters by row.
    std::map<std::string, unsigned> rows;
    std::vector<unsigned> rowOf;
    Numbers decompositions;
    Numbers combinations;
    Numbers upper;
    Numbers lower;
    Sequences sequences;
};

/// The row of a character. Of what has lists of its own it says only whether the character is in one.
std::string rowText(const utf8proc_property_t& property) {
    constexpr unsigned SECOND_OF_PAIR = 0x8000;
    const bool decomposes = property.decomp_seqindex != NONE && property.decomp_type == 0;
    const unsigned combination = property.comb_index == NONE ? NONE : property.comb_index & SECOND_OF_PAIR;
    const bool isMark = property.category == UTF8PROC_CATEGORY_MC;
    const auto flag = [](bool isSet) { return std::string(isSet ? "0, " : "UINT16_MAX, "); };
    return "{" + std::string(isMark ? "UTF8PROC_CATEGORY_MC" : "0") + ", " + std::to_string(property.combining_class) +
           ", 0, 0, " + flag(decomposes) + "UINT16_MAX, " + flag(property.uppercase_seqindex != NONE) +
           flag(property.lowercase_seqindex != NONE) + "UINT16_MAX, " + std::to_string(combination) + ", 0, " +
           std::to_string(property.comp_exclusion) + ", 0, 0, " + std::to_string(property.charwidth) + ", 0, " +
           std::to_string(property.boundclass) + "}";
}

Tables makeTables() {
    Tables tables;
    tables.rows.emplace(rowText(originalOf(0)), 0);
    for (std::uint32_t character = 0; character < CHARACTERS; ++character) {
        const utf8proc_property_t& property = originalOf(character);
        const auto row = tables.rows.try_emplace(rowText(property), static_cast<unsigned>(tables.rows.size())).first;
        tables.rowOf.push_back(row->second);
        if (property.decomp_seqindex != NONE && property.decomp_type == 0) {
            note(tables.decompositions, character, tables.sequences.textAt(property.decomp_seqindex));
        }
        note(tables.combinations, character, property.comb_index);
        if (property.uppercase_seqindex != NONE) {
            note(tables.upper, character, tables.sequences.characterAt(property.uppercase_seqindex));
        }
        if (property.lowercase_seqindex != NONE) {
            note(tables.lower, character, tables.sequences.characterAt(property.lowercase_seqindex));
        }
    }
    return tables;
}

template <class Values> void write(const char* type, const std::string& name, const Values& values) {
    constexpr int A_LINE = 16;
    std::cout << "static const " << type << " " << name << "[] = {";
    int count = 0;
    for (const auto& value : values) {
        std::cout << (count++ % A_LINE == 0 ? "\n" : " ") << value << ",";
    }
    std::cout << "\n};\n";
}

/// The list, and the function that looks a character up in it.
void write(const std::string& name, const Numbers& numbers) {
    std::vector<std::uint32_t> characters;
    std::vector<std::uint16_t> values;
    for (const auto& [character, value] : numbers) {
        characters.push_back(character);
        values.push_back(value);
    }
    write("utf8proc_uint32_t", name + "_characters", characters);
    write("utf8proc_uint16_t", name + "_values", values);
    std::cout << "static utf8proc_uint16_t " << name << "_of(utf8proc_int32_t character) {\n"
              << "  return looked_up(" << name << "_characters, " << name << "_values, " << numbers.size()
              << ", (utf8proc_uint32_t)character);\n}\n";
}

constexpr const char* LOOK_UP = R"(
static utf8proc_uint16_t looked_up(const utf8proc_uint32_t *characters, const utf8proc_uint16_t *values,
                                   unsigned count, utf8proc_uint32_t character) {
  unsigned begin = 0;
  while (count > 0) {
    const unsigned half = count / 2;
    if (characters[begin + half] == character) return values[begin + half];
    if (characters[begin + half] < character) {
      begin += half + 1;
      count -= half + 1;
    } else count = half;
  }
  return UINT16_MAX;
}
)";

void writeRows(const Tables& tables) {
    std::vector<std::string> rows(tables.rows.size());
    for (const auto& [text, number] : tables.rows) {
        rows[number] = text;
    }
    std::map<std::vector<unsigned>, std::size_t> blocks;
    std::vector<std::size_t> first;
    std::vector<unsigned> second;
    for (auto block = tables.rowOf.begin(); block != tables.rowOf.end(); block += BLOCK) {
        const auto [found, isNew] = blocks.try_emplace({block, block + BLOCK}, second.size());
        if (isNew) {
            second.insert(second.end(), block, block + BLOCK);
        }
        first.push_back(found->second);
    }
    write("utf8proc_property_t", "utf8proc_properties", rows);
    write("utf8proc_uint16_t", "utf8proc_stage1table", first);
    write(rows.size() <= UINT8_MAX ? "utf8proc_uint8_t" : "utf8proc_uint16_t", "utf8proc_stage2table", second);
}

} // namespace

int main() {
    const Tables tables = makeTables();
    write("utf8proc_uint16_t", "utf8proc_sequences", tables.sequences.units());
    write("utf8proc_uint16_t", "utf8proc_combinations", utf8proc_combinations);
    writeRows(tables);
    std::cout << LOOK_UP;
    write("decomp_seqindex", tables.decompositions);
    write("comb_index", tables.combinations);
    write("uppercase_seqindex", tables.upper);
    write("lowercase_seqindex", tables.lower);
    std::cout.flush();
    return std::cout ? EXIT_SUCCESS : EXIT_FAILURE;
}
