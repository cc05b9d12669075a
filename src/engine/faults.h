#pragma once

#include "engine/value.h"

namespace pozhil::engine {

/// A fault of a running program on its way to பிடி, or to the end of the program. Its number is one of the catalogue of
/// src/report; the way of calls is noted where it is raised.
struct Fault {
    /// What பிடி begins with: what runs there may want for memory as well, and is to be told so.
    void beginHandler() const;
    /// What பிழை holds in பிடி: the message, without box and place.
    Value message() const;

    struct Details;
    /// Shared by the copies that C++ makes of a thrown fault.
    Details* details = nullptr;

    explicit Fault(Details* theDetails);
    Fault(const Fault& other);
    Fault& operator=(const Fault&) = delete;
    ~Fault();
};

/// A முயற்சி whose statements run: a fault doesn't leave it. Emitted try blocks begin with one of these.
class Attempt {
public:
    Attempt() { ++running; }
    ~Attempt() { --running; }
    Attempt(const Attempt&) = delete;
    Attempt& operator=(const Attempt&) = delete;

    /// How many there are inside each other.
    static int running;
};

/// One call that has not returned. Emitted functions begin with one of these.
class Frame {
public:
    /// \param function its name as it is written
    /// \param calledAt the place of the call
    Frame(const char* function, Place calledAt) : function_(function), calledAt_(calledAt), caller_(innermost) {
        if (reinterpret_cast<char*>(this) < stackLimit) {
            makeRoom(calledAt);
        }
        innermost = this;
    }
    ~Frame() { innermost = caller_; }
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    const char* function() const { return function_; }
    Place calledAt() const { return calledAt_; }
    const Frame* caller() const { return caller_; }

    /// The call that runs; null outside of all.
    static const Frame* innermost;
    /// Below this address the stack is too full for another call.
    static const char* stackLimit;

private:
    /// Asks for more stack; that there is none is a fault.
    [[gnu::cold]] void makeRoom(Place calledAt) const;

    const char* function_;
    Place calledAt_;
    const Frame* caller_;
};

} // namespace pozhil::engine
