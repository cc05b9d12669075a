#pragma once

#include "language/rows.h"

#include <string>
#include <string_view>

/// What the modules that come with the language offer, as far as it must be known without importing them.

namespace pozhil::language::second {

/// A function that a program gets by importing its module.
struct ModuleFunction {
    std::string_view name;
    std::string_view module;
};

/// All functions of all modules, but for those that only serve the module itself. Written by the build from the sources
/// of the modules.
Rows<ModuleFunction> moduleFunctions();

/// The function of this name, null if no module has it.
const ModuleFunction* findModuleFunction(std::string_view name);

/// The function whose call stands in \p text, null if there is none.
const ModuleFunction* moduleFunctionIn(std::string_view text);

/// Whether a module has this name.
bool isModule(std::string_view name);

/// What to write so that the function can be called, for the user.
std::string importRemedyOf(const ModuleFunction& function);

} // namespace pozhil::language::second
