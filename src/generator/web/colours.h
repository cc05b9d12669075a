#pragma once

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

} // namespace pozhil
