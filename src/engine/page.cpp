#include "engine/page.h"

#include "engine/big_stack.h"
#include "engine/fault_details.h"
#include "engine/function_block.h"
#include "engine/memory.h"
#include "engine/numbers.h"
#include "engine/output.h"
#include "engine/program_start.h"
#include "engine/raise.h"
#include "engine/running_faults.h"
#include "engine/stop.h"
#include "engine/text.h"
#include "engine/value_faults.h"

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace pozhil::engine {
namespace {

void writeFault(const ReportedFault& fault) {
    std::fputs(fault.box.c_str(), stderr);
}

FaultTeller tellFault = writeFault;

void tell(const Fault& fault, bool isStop = false) {
    useLastMemory();
    ReportedFault told;
    told.number = fault.details->number;
    told.isStop = isStop;
    told.text = faultText(fault);
    told.box = report::plainFaultBox(told.text);
    tellFault(told);
}

/// What can't be caught, since something of ours isn't prepared for it, is told before the page stands still.
[[noreturn]] void endByMistake() {
    try {
        raise(FAULT_OF_OURS, nullptr, {"terminate"});
    } catch (const Fault& fault) {
        tell(fault);
    }
    std::abort();
}

/// Calls that run are those of one piece of work; where it was left by a trap of the processor they would be there still.
class OwnWay {
public:
    OwnWay() {
        Frame::innermost = nullptr;
        Attempt::running = 0;
    }
    ~OwnWay() {
        Frame::innermost = frame_;
        Attempt::running = attempts_;
    }
    OwnWay(const OwnWay&) = delete;
    OwnWay& operator=(const OwnWay&) = delete;

private:
    const Frame* frame_ = Frame::innermost;
    int attempts_ = Attempt::running;
};

struct Task {
    void (*work)(void* argument);
    void* argument;
    bool wentWell;
};

/// \return whether no fault had to be told
bool hasNoFault(void (*work)(void* argument), void* argument) {
    try {
        callWithFaults(work, argument);
        return true;
    } catch (const Fault& fault) {
        flushOutput(); // comes before what is told
        tell(fault);
    } catch (const Stop& stop) {
        flushOutput();
        tell(stop.fault, true);
    }
    return false;
}

void carryOut(void* argument) {
    Task& task = *static_cast<Task*>(argument);
    const OwnWay way;
    const TimedWork timed;
    task.wentWell = hasNoFault(task.work, task.argument);
    flushOutput();
}

} // namespace

void tellFaultsBy(FaultTeller teller) {
    tellFault = teller == nullptr ? writeFault : teller;
}

bool runGuarded(void (*work)(void* argument), void* argument) {
    Task task = {work, argument, false};
    runOnBigStack(carryOut, &task);
    if (!task.wentWell) {
        watchMemory(); // for the next fault
    }
    return task.wentWell;
}

void beginPart() {
    beginTimeAnew();
}

void tellCaught() {
    hasNoFault([](void* /*none*/) { throw; }, nullptr);
    watchMemory(); // for the next fault
}

bool startPage(const ProgramInfo& program) {
    std::set_terminate(endByMistake);
    return guarded([&program] {
        prepareProgram(program);
        startProgram();
    });
}

Value pageInput(const std::string& text) {
    return makeText(text);
}

std::string pageText(const Value& value) {
    return textForm(value);
}

double pageNumber(const Value& value, Place place) {
    if (!isNumber(value)) {
        raise(NUMBER_EXPECTED, place, {kindWord(value)});
    }
    return decimalOf(value);
}

void tellWrongState(const Value& value, const char* expected, Place place) {
    guarded([&] { raise(WRONG_STATE, place, {expected, kindWord(value)}); });
}

void callHandler(const Value& handler, Place place) {
    callValue(handler, nullptr, 0, place);
}

void callHandler(const Value& handler, const Value& news, Place place) {
    if (parameterCount(handler) == 0) {
        callHandler(handler, place);
        return;
    }
    Value argument = news;
    callValue(handler, &argument, 1, place);
}

} // namespace pozhil::engine
