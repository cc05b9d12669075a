#pragma once

/// What the emitted text of a web page uses of the engine besides program.h: a page lives on after its statements, and is
/// told of faults instead of ending by one.

#include "engine/calls.h"
#include "engine/operations.h"
#include "report/box.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>

namespace pozhil::engine {

/// A fault that nobody caught.
struct ReportedFault {
    /// Of the catalogue, such as 642.
    int number = 0;
    /// Whether the work was stopped since it took too long.
    bool isStop = false;
    /// Code, category, message, remedy, place and way of calls, each on its own.
    report::FaultText text;
    /// All of it as a console shows it, without colours.
    std::string box;
};

/// Shows a fault to the user. It may not throw.
using FaultTeller = void (*)(const ReportedFault& fault);

/// From here on faults are told by this function. Until then, and with null, they are written to standard error.
void tellFaultsBy(FaultTeller teller);

/// Runs the work of guarded(). What it prints is shown when it returns.
/// \return false after a fault, which has been told
bool runGuarded(void (*work)(void* argument), void* argument);

/// Runs a piece of the page's work, such as a frame or a handler: work(). A fault that it doesn't catch, and whatever else
/// it throws, is told, and the page goes on.
/// \return whether it went well
template <class Work> bool guarded(Work&& work) {
    using Plain = std::remove_reference_t<Work>;
    return runGuarded([](void* argument) { (*static_cast<Plain*>(argument))(); },
                      const_cast<void*>(static_cast<const void*>(&work)));
}

/// Begins a part of work that runs guarded: its time counts from here on.
void beginPart();

/// Tells what is being caught: called where it is caught.
void tellCaught();

/// Runs a part of what runs guarded already, such as a widget of a frame: work(). A fault that it doesn't catch, and
/// whatever else it throws, is told, and the rest goes on. A frame has thousands of parts, so this costs next to nothing.
template <class Work> void guardedPart(Work&& work) {
    beginPart();
    try {
        work();
    } catch (...) {
        tellCaught();
    }
}

/// Readies the engine for a program and carries out the statements of all its files, guarded.
/// \param program must last as long as the page
/// \return whether the statements went well; handlers can be called either way
bool startPage(const ProgramInfo& program);

/// How a value is shown, as அச்சிடு does.
std::string pageText(const Value& value);

/// Where the letter, as readers count them, ends that begins at byte \p begin of a text.
std::size_t letterEnd(std::string_view text, std::size_t begin);

/// What a user has typed, as a value of the program.
Value pageInput(const std::string& text);

/// The value of a property that takes a number; anything else is a fault.
double pageNumber(const Value& value, Place place);

/// Whether the values are equal, as சமம் finds.
inline bool pageEqual(const Value& left, const Value& right) {
    return equal(left, right);
}

/// Tells that a widget can't show what the program holds for it. The page goes on, and so does the widget.
/// \param expected what it shows, in words
void tellWrongState(const Value& value, const char* expected, Place place);

/// Calls a handler; anything but a function is a fault.
void callHandler(const Value& handler, Place place);

/// The same for a handler that may want to know the value that is new. One without parameters is called without it.
void callHandler(const Value& handler, const Value& news, Place place);

} // namespace pozhil::engine
