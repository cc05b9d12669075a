#pragma once

#include "parser/tree/application.h"
#include "parser/tree/program.h"

#include <string>

namespace pozhil {

/// The page that a web program shows first: the last one that asks for it (ஆரம்ப_பக்கம்), else the first that has a
/// name, else "home". Console programs have no pages and get "home" as well.
std::string findStartPage(const Program& program);

/// The name of the page that \p app describes, "home" if its header gives none.
std::string pageName(const WebAppNode& app);

} // namespace pozhil
