#include "engine/big_stack.h"
#include "engine/fault_details.h"
#include "engine/memory.h"
#include "engine/output.h"
#include "engine/program_start.h"
#include "engine/raise.h"
#include "engine/running_faults.h"
#include "engine/stop.h"
#include "report/box.h"
#include "report/test_run.h"

#include <cstdlib>
#include <exception>

namespace pozhil::engine {
namespace {

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

void tell(const Fault& fault) {
    flushOutput();
    useLastMemory();
    const report::FaultText text = faultText(fault);
    waitingOutput() += std::getenv(report::PLAIN_BOX) != nullptr ? report::plainFaultBox(text) : report::faultBox(text);
}

/// \param status becomes the exit status of the program
void runToTheEnd(void* status) {
    try {
        callWithFaults([](void* /*none*/) { startProgram(); }, nullptr);
    } catch (const Fault& fault) {
        *static_cast<int*>(status) = 1;
        tell(fault);
    } catch (const Stop& stop) {
        *static_cast<int*>(status) = 1;
        tell(stop.fault);
    }
    flushOutput();
}

} // namespace

int run(const ProgramInfo& program) {
    std::set_terminate(endByMistake);
    prepareProgram(program);
    int status = 0;
    runOnBigStack(runToTheEnd, &status);
    return status;
}

} // namespace pozhil::engine
