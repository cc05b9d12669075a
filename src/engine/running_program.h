#pragma once

#include "engine/calls.h"

namespace pozhil::engine {

/// What run() was told of its program; a program without sources and members before run().
const ProgramInfo& runningProgram();
void setRunningProgram(const ProgramInfo& program);

} // namespace pozhil::engine
