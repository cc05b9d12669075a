#include "engine/program_start.h"

#include "engine/builtin_members.h"
#include "engine/collections.h"
#include "engine/memory.h"
#include "engine/object.h"
#include "engine/output.h"
#include "engine/raise.h"
#include "engine/running_faults.h"
#include "engine/running_program.h"
#include "engine/stop.h"

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

} // namespace

void prepareProgram(const ProgramInfo& program) {
    openStandardStreams();
    watchMemory();
    setRunningProgram(program);
    numberBuiltinMembers(program);
    makeTables(program);
}

void startProgram() {
    makeTexts(runningProgram());
    runningProgram().start();
}

void callWithFaults(void (*function)(void* argument), void* argument) {
    try {
        function(argument);
    } catch (const Fault&) {
        throw;
    } catch (const Stop&) {
        throw;
    } catch (const std::bad_alloc&) {
        raiseOutOfMemory();
    } catch (const std::length_error&) {
        // A text or list that is larger than any memory.
        raiseOutOfMemory();
    } catch (const std::exception& error) {
        raise(FAULT_OF_OURS, nullptr, {error.what()});
    } catch (...) {
        raise(FAULT_OF_OURS, nullptr, {"throw"});
    }
}

} // namespace pozhil::engine
