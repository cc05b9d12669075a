#pragma once

#include "diagnostics/second_hint.h"
#include "front_end/front_end.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace pozhil {

/// What a hint begins with.
constexpr const char* HINT_TITLE = "💡 குறிப்பு: ";

/// What is said where the first line of a program of the first edition almost asks for the second.
constexpr const char* ALMOST_MARKED_HINT =
    "இந்த வரி இரண்டாம் பதிப்பைக் கேட்பது போல் உள்ளது, ஆனால் நிரல் முதல் பதிப்பில்தான் தொகுக்கப்படுகிறது; இரண்டாம் பதிப்பு "
    "வேண்டுமென்றால் முதல் வரியில் 'ஃ பொழில் 2' என்று மட்டும் எழுதவும்.";

/// A hint on a line of a source, after its title.
std::string hintText(const std::string& path, std::size_t line, std::string_view text);

/// Shows the first hints on a program on standard error, a line each, unless the user has switched them off.
void reportHints(const ParsedSource& parsed);
/// The same on a program of the second edition.
void reportHints(const SecondHints& hints);

/// Tells in the same way that the first line of a program of the first edition almost asks for the second.
void reportAlmostMarked(const SourceText& source);

} // namespace pozhil
