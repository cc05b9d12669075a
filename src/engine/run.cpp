#include "engine/big_stack.h"
#include "engine/builtin_members.h"
#include "engine/calls.h"
#include "engine/collections.h"
#include "engine/fault_details.h"
#include "engine/memory.h"
#include "engine/object.h"
#include "engine/output.h"
#include "engine/raise.h"
#include "engine/running_faults.h"
#include "engine/running_program.h"
#include "report/box.h"

#include <cstdlib>
#include <exception>
#include <new>
#include <stdexcept>

namespace pozhil::engine {
namespace {

void makeTexts(const ProgramInfo& program) {
    for (int index = 0; index < program.textCount; ++index) {
        program.texts[index] = text(program.literals[index].bytes, program.literals[index].length);
    }
}

/// Carries out the program; what the C++ library throws becomes a fault as well.
void startProgram() {
    try {
        makeTexts(runningProgram());
        runningProgram().start();
    } catch (const Fault&) {
        throw;
    } catch (const std::bad_alloc&) {
        raiseOutOfMemory();
    } catch (const std::length_error&) {
        // A text or list that is larger than any memory.
        raiseOutOfMemory();
    } catch (const std::exception& error) {
        raise(FAULT_OF_OURS, nullptr, {error.what()});
    }
}

/// What can't be caught, since something of ours isn't prepared for it, is told all the same.
[[noreturn]] void endByMistake() {
    try {
        raise(FAULT_OF_OURS, nullptr, {"terminate"});
    } catch (const Fault& fault) {
        waitingOutput() += report::faultBox(faultText(fault));
    }
    flushOutput();
    std::_Exit(1);
}

/// \param status becomes the exit status of the program
void runToTheEnd(void* status) {
    try {
        startProgram();
    } catch (const Fault& fault) {
        *static_cast<int*>(status) = 1;
        flushOutput();
        useLastMemory();
        waitingOutput() += report::faultBox(faultText(fault));
    }
    flushOutput();
}

} // namespace

int run(const ProgramInfo& program) {
    std::set_terminate(endByMistake);
    openStandardStreams();
    watchMemory();
    setRunningProgram(program);
    numberBuiltinMembers(program);
    makeTables(program);
    int status = 0;
    runOnBigStack(runToTheEnd, &status);
    return status;
}

} // namespace pozhil::engine
