#pragma once

/// The tree between parser and generator: data only, every child owned by its parent.
#include "parser/tree/application.h"
#include "parser/tree/database.h"
#include "parser/tree/definitions.h"
#include "parser/tree/expressions.h"
#include "parser/tree/program.h"
#include "parser/tree/statements.h"
#include "parser/tree/widgets.h"
