#pragma once

#include "engine/value.h"

/// How the blocks of values end. Each function frees one block that nobody holds any more and lets go of the values in it;
/// Value::destroy, which calls them, sees to it that a long chain doesn't nest.

namespace pozhil::engine {

void freeText(Counted* block) noexcept;
void freeList(Counted* block) noexcept;
void freeMap(Counted* block) noexcept;
void freeObject(Counted* block) noexcept;
void freeFunction(Counted* block) noexcept;
void freeTime(Counted* block) noexcept;

} // namespace pozhil::engine
