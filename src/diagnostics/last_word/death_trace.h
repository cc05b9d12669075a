#pragma once

/// Where a program stands as it dies, for the compiler that runs it: only the compiler can tell the lines of the source
/// by it.

#include "words.h"

#include <fcntl.h>
#include <unistd.h>
#include <unwind.h>

#include <cstdint>

namespace pozhil::last_word {

/// The places in the program's code that it is in, in hexadecimal, a line each, the innermost first.
struct Trace {
    Paragraph addresses;
    int frames = 0;
};

inline _Unwind_Reason_Code addFrame(_Unwind_Context* context, void* argument) {
    constexpr int MOST_FRAMES = 200;
    auto* trace = static_cast<Trace*>(argument);
    int isInterrupted = 0;
    const std::uintptr_t address = _Unwind_GetIPInfo(context, &isInterrupted);
    if (address == 0 || ++trace->frames > MOST_FRAMES) {
        return _URC_END_OF_STACK;
    }
    // A call returns to what comes after it, which may be another line already.
    trace->addresses.addHexadecimal(isInterrupted != 0 ? address : address - 1);
    trace->addresses.add("\n");
    return _URC_NO_REASON;
}

/// Has what is needed to walk up the stack made, while the program is well: the first walk in a statically linked program
/// sorts its tables, and takes memory for that.
inline void prepareTrace() {
    _Unwind_Backtrace([](_Unwind_Context*, void*) { return _URC_END_OF_STACK; }, nullptr);
}

/// Leaves the trace in a new file at \p path; if that can't be written, nowhere.
inline void leaveTrace(const char* path) {
    Trace trace;
    _Unwind_Backtrace(addFrame, &trace);
    const int file = open(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (file < 0) {
        return;
    }
    // Without it the user is told less, that is all.
    [[maybe_unused]] const ssize_t written = write(file, trace.addresses.data(), trace.addresses.size());
    close(file);
}

} // namespace pozhil::last_word
