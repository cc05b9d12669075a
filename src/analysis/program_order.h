#pragma once

#include "parser/syntax_tree.h"

#include <vector>

namespace pozhil {

/// The parts of a program in the order in which they are emitted.

/// The call if \p loop walks வரம்பு( ... ), null otherwise.
const CallExpression* asRange(const ForStatement& loop);

/// Whether \p statement is a function or a structure, which stand outside of what the program carries out.
bool isDefinition(const Statement* statement);

/// What the logic of an application carries out, without its definitions.
std::vector<const Statement*> carriedOut(const LogicBlockNode& logic);

/// What the program carries out outside all blocks, without its definitions.
std::vector<const Statement*> carriedOut(const Program& program);

/// The applications of a program.
std::vector<const WebAppNode*> applications(const Program& program);

/// The statements outside all blocks, then those of the logic of the applications: where definitions may stand.
std::vector<const Statement*> outermostStatements(const Program& program);

/// The logic of an application, null if it has none.
const LogicBlockNode* logicOf(const WebAppNode& application);

} // namespace pozhil
