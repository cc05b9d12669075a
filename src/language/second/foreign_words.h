#pragma once

#include "language/rows.h"

#include <cstdint>
#include <string>
#include <string_view>

/// Words that people bring along from other languages, and what to write in this one.

namespace pozhil::language::second {

/// Where such a word stands.
enum class ForeignPlace : std::uint8_t {
    Statement, ///< begins a statement
    Inside,    ///< stands within a statement, beside values
    Name,      ///< is a value or a function
    Member     ///< stands after a dot
};

struct ForeignWord {
    std::string_view word;
    ForeignPlace place;
    /// What to write in its place, with {1} for the parent of the structure around; empty if there is nothing of the kind.
    std::string_view own;
    /// What else there is to say, a whole sentence; may be empty.
    std::string_view remark;
};

/// What to do about a loop inside of a list, in whichever language's words it stands.
constexpr const char* NO_COMPREHENSION =
    "பட்டியலுக்குள்ள சுற்று எழுத முடியாது; வெற்றுப் பட்டியல்ல தொடங்கி, 'ஒவ்வொன்றாக' பிளாக்குக்குள்ள 'பட்டியல்.சேர்(மதிப்பு)' என்று சேர் மச்சி!";

/// All of them.
Rows<ForeignWord> foreignWords();

/// The row of a word of this place, null if there is none.
const ForeignWord* findForeignWord(std::string_view word, ForeignPlace place);

/// The row of a word that stands anywhere but after a dot, null if there is none.
const ForeignWord* findForeignWord(std::string_view word);

/// The word of this language that can stand where the foreign one stands, whatever is around it; empty if the statement
/// takes another shape, or if it depends on what is meant.
std::string_view dropIn(const ForeignWord& foreign);

/// What to do about the word, for the user.
/// \param parent the name of the parent of the structure around, for words that mean it
std::string remedyOf(const ForeignWord& foreign, std::string_view parent = "பெற்றோர்_பெயர்");

} // namespace pozhil::language::second
