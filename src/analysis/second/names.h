#pragma once

#include "analysis/second/model.h"
#include "language/second/builtins.h"

#include <string_view>
#include <vector>

namespace pozhil::second {

/// What a name means where it stands: at most one of these, none for a name that nobody defines.
struct Meaning {
    resolved::Variable* variable = nullptr;
    /// A function of a file, or one inside of another.
    resolved::Function* function = nullptr;
    resolved::Structure* structure = nullptr;
    const EnumerationStatement* enumeration = nullptr;

    bool isUnknown() const {
        return variable == nullptr && function == nullptr && structure == nullptr && enumeration == nullptr;
    }
};

/// Gives every assigned name of the program its variable: that of the function around it which has one of that name, else
/// one of its own; that of the file where பொது says so.
void declareVariables(Model& model);

/// The meaning of a name, looked for from the function outward, then in the file, then in its imports.
///
/// Who calls a name means what can be called: a variable that is nowhere given a function lets a call through to the
/// function of its name further out, or to the one that comes with the language.
Meaning meaningOf(const Model& model, const Scope& scope, std::string_view name, Use use);

/// Whether what a name means is in doubt, since a part of the program that could not be read may give it a meaning. What a
/// function itself names isn't.
bool isDoubtful(const Model& model, const Meaning& meaning, std::string_view name);

/// What the program calls a widget by, where nothing else has that name.
bool isWidgetName(const Model& model, const Scope& scope, std::string_view name);

/// The built-in of applications of this form and name; null if there is none, or if the program has no application.
const language::second::Builtin* findPageBuiltin(const Model& model, language::second::BuiltinForm form,
                                                 std::string_view name);

/// The built-in of tests of this name; null if there is none, or if the program is no test.
const language::second::Builtin* findTestBuiltin(const Model& model, std::string_view name);

/// Whether the language gives the name a value, as long as the program gives it none.
bool isOfLanguage(std::string_view name);

/// வெறுமை
constexpr std::string_view NOTHING_NAME = "வெறுமை";

/// All names that have a meaning there, nearest first.
std::vector<std::string_view> namesKnownIn(const Model& model, const Scope& scope);

} // namespace pozhil::second
