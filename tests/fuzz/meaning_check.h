#pragma once

#include "analysis/second/resolved/program.h"

/// Holds a program that the analysis found nothing wrong with to what the writer of C++ relies on.
/// \throws std::logic_error
void checkMeaning(pozhil::resolved::Program& program);
