#pragma once

#include "base/source_place.h"
#include "diagnostics/mend.h"
#include "parser/parser.h"
#include "parser/tree/program.h"

#include <cstdint>
#include <string>
#include <vector>

namespace pozhil {

/// What a hint is about.
enum class HintKind {
    UnassignedName,      ///< a variable that is read and never given a value
    SharedInRecursion,   ///< a variable that a function's own call overwrites before it is read
    AssignmentCondition, ///< "=" where a condition is
    CurlyQuote,          ///< a curly quote in code, where it is a letter of a name
    OddBlank,            ///< a blank other than the usual one in code, where it is a letter of a name
    Tab,                 ///< a tab before a line, which loses its first letters
    TwoSpellings,        ///< a name in two spellings that look alike
    CompoundOverwrite,   ///< a compound assignment to an element or field, which only sets it
    LengthAsIndex,       ///< an index that is the length of the same list
    UnsetMember,         ///< a member that nothing sets
    DroppedStatement,    ///< a statement in a structure, which is never carried out
    InputOrder           ///< inputs of one expression that are asked for from right to left
};

/// Something that runs but surely isn't meant.
struct Hint {
    HintKind kind;
    /// The part of a source that it is about; empty where only the line is known
    SourcePlace place;
    /// As the diagnostics count it
    std::int32_t line;
    /// What happens and what to write instead, a sentence or two for the user
    std::string text;
    /// What to write in its place, where one thing alone is right
    Mend mend{};
};

/// Looks for what runs but surely isn't meant. Whatever may be meant is passed over in silence. Takes time in line with
/// the length of the program.
/// \param program the whole program, which has no faults
/// \param parser that made it
/// \return those of the program's own file first, then those of imported ones, each in the order of the text; of each
///         kind one a line at most
std::vector<Hint> hintsOf(const Program& program, const Parser& parser);

} // namespace pozhil
