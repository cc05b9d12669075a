#pragma once

#include "front_end/stage.h"

namespace pozhil {

/// Tells of a failure in the first compile, on standard error: which stage, then what is wrong, where, and what to do.
void reportFirstFailure(const StageFailure& failure);

/// Tells of a failure while a console program is watched, on standard error: what is wrong and what to do, then where.
void reportWatchFailure(const StageFailure& failure);

/// Tells of a failure while an application is watched, on standard error: as in the first compile.
void reportWebWatchFailure(const StageFailure& failure);

} // namespace pozhil
