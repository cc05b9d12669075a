#pragma once

#include "language/rows.h"
#include "tools/language_server/outline.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What the language itself gives a name, with what the guide says of it.
namespace pozhil::language_server {

enum class WordKind : std::uint8_t { Function, Member, Widget, Style, Keyword, Operator };

/// A word of the language.
struct LanguageWord {
    std::string_view word;
    WordKind kind;
    /// Names of the arguments of a function, without the value before the dot.
    std::vector<std::string_view> parameters{};
    language::Bilingual description{};
    language::Bilingual remark{};
};

/// The functions that come with the edition, called by their name.
std::vector<LanguageWord> functionWords(Edition edition);
/// What values have after a dot.
std::vector<LanguageWord> memberWords(Edition edition);
/// What values of these kinds have after a dot; in the first edition only lists are told apart.
/// \param owners of language::second::owner
std::vector<LanguageWord> memberWords(Edition edition, unsigned owners);
/// The widgets.
std::vector<LanguageWord> widgetWords();
/// The words that statements and values are made of.
std::vector<LanguageWord> statementWords();

/// The first of the words of this name, null if there is none.
const LanguageWord* findWord(const std::vector<LanguageWord>& words, std::string_view name);

/// name(a, b), or the name alone of what takes nothing.
std::string headingOf(const LanguageWord& word);

} // namespace pozhil::language_server
