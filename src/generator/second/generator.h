#pragma once

#include "analysis/second/resolved/program.h"

#include <cstddef>
#include <string>
#include <vector>

namespace pozhil {

/// The C++ text of a program of the second edition.
struct SecondText {
    std::string text;
    /// For each line of the text, counted from 0, where in the source the statement stands that it was written for.
    std::vector<resolved::Place> origins;
    /// How many blocks stand inside each other at most.
    std::size_t deepestLevel = 0;
    /// How many bytes at the head of the text are the runtime of pages, the same whatever the pages are; none of them in a
    /// console program.
    std::size_t runtimeLength = 0;
};

SecondText writeSecondEdition(const resolved::Program& program);

} // namespace pozhil
