#pragma once

#include "analysis/second/model.h"

#include <unordered_set>

namespace pozhil::second {

/// What is certain about the ways through a program.
struct WayFacts {
    /// Functions that can end without திரும்பு.
    std::unordered_set<const resolved::Function*> endsWithoutReturn;
};

/// Marks every read of a variable that may have no value yet, and tells reads that certainly have none.
WayFacts findDefiniteAssignments(Model& model);

} // namespace pozhil::second
