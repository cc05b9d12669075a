#include "language/colours.h"

#include <algorithm>
#include <iterator>

namespace pozhil::language {
namespace {

// clang-format off
constexpr ColourWord COLOUR_WORDS[] = {
    {"வெள்ளை", "white", 1.0F, 1.0F, 1.0F},
    {"கருப்பு", "black", 0.0F, 0.0F, 0.0F},
    {"சிவப்பு", "red", 1.0F, 0.0F, 0.0F},
    {"பச்சை", "green", 0.0F, 1.0F, 0.0F},
    {"நீலம்", "blue", 0.0F, 0.0F, 1.0F},
    {"மஞ்சள்", "yellow", 1.0F, 1.0F, 0.0F},
    {"ஆரஞ்சு", "orange", 1.0F, 0.647F, 0.0F},
    {"ஊதா", "purple", 0.5F, 0.0F, 0.5F},
    {"இளஞ்சிவப்பு", "pink", 1.0F, 0.75F, 0.8F},
    {"சாம்பல்", "grey", 0.5F, 0.5F, 0.5F},
    {"பழுப்பு", "brown", 0.65F, 0.16F, 0.16F},
    {"வானநீலம்", "sky blue", 0.53F, 0.81F, 0.92F},
    {"தங்கம்", "gold", 1.0F, 0.84F, 0.0F},
    {"வெள்ளி", "silver", 0.75F, 0.75F, 0.75F},
    {"சுண்ணாம்பு", "lime", 0.0F, 1.0F, 0.0F},
    {"கடல்நீலம்", "sea blue", 0.0F, 0.41F, 0.58F},
};
// clang-format on

} // namespace

Rows<ColourWord> colourWords() {
    return COLOUR_WORDS;
}

const ColourWord* findColourWord(std::string_view word) {
    const auto* found = std::find_if(std::begin(COLOUR_WORDS), std::end(COLOUR_WORDS),
                                     [&](const ColourWord& row) { return row.word == word; });
    return found == std::end(COLOUR_WORDS) ? nullptr : found;
}

} // namespace pozhil::language
