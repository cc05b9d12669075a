#pragma once

#include "parser/tree/node.h"

namespace pozhil {

/// A whole program: the statements of all imported files, then those of the source itself.
struct Program {
    StatementList statements;
};

} // namespace pozhil
