#pragma once

#include <string_view>

namespace pozhil {

/// How a call with a wrong number of arguments is refused.
enum class WrongCount {
    Report,   ///< by the diagnostic report, with the line of the call
    Exception ///< without its place
};

/// One form of a built-in function: its name, how many arguments it takes, and what the call becomes.
///
/// In the text, $A, $B and $D stand for the arguments, $file for the source path and $line for the line of the call.
struct Builtin {
    std::string_view name;
    /// ANY_COUNT if the number of arguments doesn't matter.
    int argumentCount;
    std::string_view text;
    WrongCount wrongCount;
    std::string_view wrongCountDetail;
};

constexpr int ANY_COUNT = -1;

/// The form of built-in \p name for so many arguments.
/// \param[out] anyForm the first form of that name, null if there is no such built-in
/// \return null if there is no form for this number of arguments
const Builtin* findBuiltin(std::string_view name, int argumentCount, const Builtin*& anyForm);

} // namespace pozhil
