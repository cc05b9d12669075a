#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pozhil {

/// Something in a program that the target compiler refused.
struct Refusal {
    /// What the target compiler says of it, as plainMessage makes it.
    std::string message;
    /// The statement that it says it of; of several lines the first. Empty if nobody knows it.
    std::string_view statement{};
    /// Whether the statement stands in a structure.
    bool isInStructure = false;
};

/// One way of writing that the compiler takes and the target compiler refuses: how it is recognised, and what the user
/// is told of it.
///
/// A pattern is alternatives with | between them; each is pieces with * between them, which stand in the text in this
/// order. In cause and remedy, $name is the function or variable that the message speaks of, and $word the word of
/// C++ in the statement.
struct RefusalRow {
    /// What a message of g++ or clang holds.
    std::string_view message;
    /// What the statement holds apart from texts and comments; empty if it doesn't matter.
    std::string_view code;
    /// What else must be true; null for nothing.
    bool (*condition)(const Refusal& refusal);
    /// What in the language causes it.
    std::string_view cause;
    /// What to write instead.
    std::string_view remedy;
    /// Whether the target compiler loses the thread there, so that what it says further down may only follow from it.
    bool misleads = false;
};

/// All rows, the special ones before the general ones.
const std::vector<RefusalRow>& refusalRows();

/// A message of the target compiler with straight quotes and, where it spells names in code points, with their letters.
std::string plainMessage(std::string_view message);

/// The row of a refusal, null if there is none.
const RefusalRow* findRefusal(const Refusal& refusal);

/// The cause or remedy of a row, filled in for \p refusal.
std::string fillRefusalText(std::string_view text, const Refusal& refusal);

/// The first word of \p code that C++ keeps for itself, empty if it holds none.
/// \param code a statement without texts and comments
std::string_view wordOfCpp(std::string_view code);

/// \p statement with its texts emptied and without the comment after it.
std::string codeOf(std::string_view statement);

} // namespace pozhil
