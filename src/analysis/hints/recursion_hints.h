#pragma once

#include "analysis/hints/hint_list.h"
#include "analysis/hints/name_uses.h"

namespace pozhil {

/// Whether \p call, in the text of \p function, is a call of the function itself: by its name, or of தான் if it is a
/// method.
bool isSelfCall(const CallExpression& call, const FunctionDefinitionStatement& function);

/// Looks for variables of the program that a function which calls itself takes for its own: given a value, overwritten
/// by the function's own call, and read afterwards.
/// \param names with the uses in the whole program, since a variable that stands elsewhere too may be shared on purpose
void findSharedInRecursion(const FunctionDefinitionStatement& function, const NameUses& names, HintList& found);

} // namespace pozhil
