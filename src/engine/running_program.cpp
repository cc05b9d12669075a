#include "engine/running_program.h"

namespace pozhil::engine {
namespace {

constexpr ProgramInfo NO_PROGRAM = {nullptr, nullptr, 0, nullptr, 0, nullptr, 0};

const ProgramInfo* running = &NO_PROGRAM;

} // namespace

const ProgramInfo& runningProgram() {
    return *running;
}

void setRunningProgram(const ProgramInfo& program) {
    running = &program;
}

} // namespace pozhil::engine
