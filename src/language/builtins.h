#pragma once

#include "language/rows.h"
#include "language/var_type.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace pozhil::language {

/// What stands before the bracket of a built-in, and with it the rule by which a call of it is written.
enum class BuiltinForm {
    Call,          ///< name(a): the row's text
    ElementWrite,  ///< name(place, index, value): the row's text, where the first argument is a place in a variable
    LoopRange,     ///< name(a): counts a loop; of no use elsewhere
    ListMethod,    ///< variable.name(a)
    InputProperty, ///< id.name, of the input widget with that identifier, whatever a variable of that name holds
    InputMethod,   ///< id.name(a), likewise
    TimePart,      ///< time.name: a number out of a time value
    TimeMethod,    ///< time.name(): a text of a time value
    Clock          ///< நேரம்.name()
};

/// Under what a user looks for a built-in.
enum class BuiltinTopic { Values, Lists, Texts, Mathematics, Files, Time, Web };

/// How a call with a wrong number of arguments is refused.
enum class WrongCount {
    Report,   ///< by the diagnostic report, with the line of the call
    Exception ///< without its place
};

/// When the kind of a call's result is known before the program runs.
enum class ResultRule {
    Unknown,      ///< never
    Firm,         ///< always, whatever else has the built-in's name
    UnlessStruct, ///< unless a structure has the built-in's name
    OfArgument    ///< it is that of the first argument
};

constexpr int ANY_COUNT = -1;

/// One form of a built-in: its name, how many arguments it takes, what a call becomes, and what a user is told of it.
///
/// In the text, $A, $B and $D stand for the arguments, $place for source path and line of the call, $line
/// for the line alone and $id for what stands before the dot. $castA and so on are arguments that stand as the operand
/// of a cast.
struct Builtin {
    std::string_view name;
    BuiltinForm form;
    BuiltinTopic topic;
    /// ANY_COUNT if the number of arguments doesn't matter.
    int argumentCount;
    /// What is emitted. Empty where the form alone decides.
    std::string_view text;
    WrongCount wrongCount;
    std::string_view wrongCountDetail;
    ResultRule resultRule;
    /// Any unless the rule says when it is known.
    VarType result;
    /// Names of the arguments; "தசமம்" and "உரை" say of what kind they must be. Empty ones don't exist.
    std::array<std::string_view, 3> parameters;
    /// The kind of the value as a user is told it; empty if there is no use for it.
    Bilingual value;
    /// What it does; empty if it is of no use.
    Bilingual description;
    /// What a user must look out for. Links in it are those of the guide's page.
    Bilingual remark = {};
};

/// All forms of all built-ins. Forms with the same name stand together.
Rows<Builtin> builtins();

/// The form of the built-in called as \p name ( ... ) for so many arguments.
/// \param[out] anyForm the first form of that name, null if there is no such built-in
/// \return null if there is no form for this number of arguments
const Builtin* findBuiltin(std::string_view name, int argumentCount, const Builtin*& anyForm);

/// The built-in called as \p name ( ... ), whatever its number of arguments; null if there is none.
const Builtin* findBuiltin(std::string_view name);

/// What stands in a hole of an argument.
struct ArgumentHole {
    std::size_t index;
    bool isCastOperand;
};

/// The argument that the hole called \p name stands for, such as "A" or "castB"; nothing for any other hole.
std::optional<ArgumentHole> argumentOf(std::string_view name);

/// The member of this name and form, null if there is none.
const Builtin* findMember(BuiltinForm form, std::string_view name);

} // namespace pozhil::language
