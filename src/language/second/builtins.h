#pragma once

#include "language/rows.h"

#include <array>
#include <cstdint>
#include <string_view>

/// The functions that come with the second edition of the language.

namespace pozhil::language::second {

/// What stands before the bracket of a built-in.
enum class BuiltinForm : std::uint8_t {
    Call,   ///< name(a)
    Method, ///< value.name(a); the value counts as the first argument
    Part,   ///< value.name, without brackets; the value is the only argument
    Clock,  ///< நேரம்.name()
    /// name(a), in test files only
    TestCall,
    // In programs with a web application only.
    PageCall,   ///< name(a)
    PageWord,   ///< name
    FieldPart,  ///< field.name, without brackets; the name of the field, as a text, is the only argument
    FieldMethod ///< field.name(a); the name of the field, as a text, counts as the first argument
};

/// What a value is certain to be; the names of the kinds stand in analysis.
enum class ResultKind : std::uint8_t { Any, Whole, Decimal, Truth, Text, List, Map, Time, Nothing, OfFirstArgument };

/// Kinds of values that a method or part belongs to, to be joined by |.
namespace owner {
constexpr unsigned NONE = 0;
constexpr unsigned TEXT = 1;
constexpr unsigned LIST = 2;
constexpr unsigned MAP = 4;
constexpr unsigned TIME = 8;
} // namespace owner

/// One form of a built-in: its name, how many arguments it takes, and the function of the engine that does it.
struct Builtin {
    std::string_view name;
    BuiltinForm form;
    /// With the value of a method or part.
    int fewestArguments;
    int mostArguments;
    /// The function of the engine; it takes the arguments and the place of the call.
    std::string_view engineFunction;
    ResultKind result;
    /// The first argument is a place, which is changed.
    bool writesFirst;
    /// Names of the arguments, as a user is told them. Empty ones don't exist.
    std::array<std::string_view, 3> parameters;
    Bilingual description;
    /// Whose method or part it is; NONE for the other forms.
    unsigned owners = owner::NONE;
};

/// All forms of all built-ins. Forms with the same name stand together.
Rows<Builtin> builtins();

/// The built-in of this form and name, null if there is none. Forms with several numbers of arguments are one row.
const Builtin* findBuiltin(BuiltinForm form, std::string_view name);

} // namespace pozhil::language::second
