#pragma once

#include <ostream>
#include <string>

namespace pozhil::tools {

/// The switch by which shells ask what could be typed next: `பொழில் --நிறைவு [word]`. It is for them alone, so no help
/// names it.
constexpr const char* COMPLETION_SWITCH = "--நிறைவு";

/// Writes what may follow the command's name: all words in both languages, a line each, with a tab and what the word does.
void printWords(std::ostream& out);

/// The same of the switches of a word, as its help tells them; nothing for a word that isn't known.
/// \param name of the word, in either language
void printSwitches(std::ostream& out, const std::string& name);

} // namespace pozhil::tools
