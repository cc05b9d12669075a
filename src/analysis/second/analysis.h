#pragma once

#include "analysis/second/resolved/program.h"
#include "diagnostics/second_fault.h"
#include "diagnostics/second_hint.h"

namespace pozhil {

struct SecondProgram;

/// A program with its names resolved, or what is wrong with it.
struct SecondMeaning {
    resolved::Program program;
    /// In the order of the files and of their texts; the program is whole only without any.
    SecondFaults faults;
    /// In the order of the files and of their texts; none if there are faults.
    SecondHints hints;
};

/// Finds out what every name of a program means, and what kinds of values are certain.
SecondMeaning analyseSecondEdition(const SecondProgram& program);

} // namespace pozhil
