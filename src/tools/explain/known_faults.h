#pragma once

#include "language/rows.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil::tools {

/// A fault of either edition as the catalogues tell it.
struct KnownFault {
    int number = 0;
    /// "பொழி-304"
    std::string code;
    /// What is wrong and what to do; "…" stands for what only a source can tell.
    std::string message;
    std::string remedy;
    /// When it comes; empty where only the message tells it.
    language::Bilingual cause{};
    /// Whether a source or a program can come to it today.
    bool isRaised = true;
};

/// The faults of both editions, in ascending order of their numbers.
std::vector<KnownFault> knownFaults();

/// The number that an argument such as "பொழி-304" or "304", also with Tamil digits, means.
/// \return nothing if it is none
std::optional<int> faultNumber(std::string_view argument);

} // namespace pozhil::tools
