#pragma once

#include "front_end/stage.h"

namespace pozhil {

/// Tells of a failure in the first compile, on standard error.
void reportFirstFailure(const StageFailure& failure);

/// Tells of a failure while a console program is watched, on standard error.
void reportWatchFailure(const StageFailure& failure);

/// Tells of a failure while an application is watched, on standard error.
void reportWebWatchFailure(const StageFailure& failure);

} // namespace pozhil
