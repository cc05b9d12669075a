#pragma once

#include <optional>
#include <string>

namespace pozhil {

/// A colour, each component from 0 to 1.
struct Colour {
    float red;
    float green;
    float blue;
    float alpha;
};

/// The colour that a text in a source names.
///
/// \param text "#RRGGBB" or "#RRGGBBAA", the "#" may be missing; or a colour word of the language
/// \param isHex whether the text is of the first kind
/// \return opaque black for fewer than six hex digits and for an unknown word
Colour parsePozhilColor(const std::string& text, bool isHex);

struct Expression;

/// The colour that \p value is known to be before the program runs: a colour, a text, or `நிறம்.` and a colour word.
/// Nothing for any other value.
std::optional<Colour> colourOf(const Expression* value);

/// The colour of a text style: a hex text, or a colour word.
Colour styleColour(const std::string& text);

/// A colour's components from 0 to 255, cut off.
struct ByteColour {
    int red;
    int green;
    int blue;
    int alpha;
};

ByteColour byteColour(const Colour& colour);

/// rgba(255,128,0,1.000000), as the text canvas reads it
std::string cssColour(const Colour& colour);

/// nvgRGBA(255, 128, 0, 255)
std::string byteColourText(const Colour& colour);

/// nvgRGBAf(1.0f, 0.5f, 0.0f, 1.0f)
std::string floatColour(const Colour& colour);

} // namespace pozhil
