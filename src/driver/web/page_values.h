#pragma once

#include "driver/web/page_template.h"
#include "parser/syntax_tree.h"

namespace pozhil {

/// What the application of a program puts into the page template, without the number of a build.
PageValues pageValuesOf(const Program& program);

} // namespace pozhil
