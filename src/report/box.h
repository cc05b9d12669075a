#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// How faults of the second edition are told: by the compiler, and by the programs that it makes. Stands alone, since it
/// is compiled into both.

namespace pozhil::report {

/// A part of one line of a source.
struct Excerpt {
    std::string file;
    /// Counted from 1; 0 if nobody knows where it is, so that nothing is shown.
    int line = 0;
    std::string lineText;
    /// The bytes of the line that are underlined; an empty range underlines nothing.
    std::size_t begin = 0;
    std::size_t end = 0;
    /// Whether the text of the line isn't at hand, so that only file and line are told.
    bool isHidden = false;
};

/// A call that led to a fault of a running program.
struct Call {
    std::string function;
    std::string file;
    int line = 0;
};

/// A fault as it is told.
struct FaultText {
    /// "பொழி-501"
    std::string code;
    /// Such as "பெயர்ப் பிழை".
    std::string category;
    /// What is wrong, whole.
    std::string message;
    /// What to do about it.
    std::string remedy;
    /// What may have been meant, as a sentence; may be empty.
    std::string suggestion{};
    Excerpt excerpt{};
    /// The innermost call first; empty for a fault of the compiler. Of a long way both ends, MAX_TOLD_CALLS calls in all.
    std::vector<Call> way{};
    /// How many calls are left out in the middle of the way.
    std::size_t callsLeftOut = 0;
};

/// How many calls of a way are told.
constexpr std::size_t MAX_TOLD_CALLS = 12;

/// The box, with its colours, ending in a line end.
std::string faultBox(const FaultText& fault);

/// The same without colours, for what is no terminal.
std::string plainFaultBox(const FaultText& fault);

} // namespace pozhil::report
