#pragma once

#include "base/source_place.h"
#include "report/box.h"

#include <cstddef>
#include <string>
#include <vector>

namespace pozhil {

/// Something wrong in a source of the second edition.
struct SecondFault {
    /// Of the catalogue of src/report.
    int number = 0;
    /// Where it is; what is underlined.
    SourcePlace place;
    /// For the holes of its message and remedy.
    std::vector<std::string> values{};
    /// What may have been meant, as a sentence; may be empty.
    std::string suggestion{};
};

using SecondFaults = std::vector<SecondFault>;

/// How many faults are told in one run.
constexpr std::size_t MAX_TOLD_FAULTS = 10;

/// The fault with message, remedy and excerpt, as the box tells it.
report::FaultText faultText(const SecondFault& fault);

} // namespace pozhil
