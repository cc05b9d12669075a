#pragma once

#include "base/source_place.h"
#include "diagnostics/mend.h"
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
    /// What to do about this very fault, in place of what the catalogue says; may be empty.
    std::string remedy{};
    /// What to write in its place, where one thing alone is right.
    Mend mend{};
};

using SecondFaults = std::vector<SecondFault>;

/// How many faults are told in one run.
constexpr std::size_t MAX_TOLD_FAULTS = 10;

/// How many are looked for: one more than is told tells that there are more.
constexpr std::size_t MAX_FOUND_FAULTS = MAX_TOLD_FAULTS + 1;

/// The first line of the place, with what is underlined of it.
report::Excerpt excerptOf(const SourcePlace& place);

/// The fault with message, remedy and excerpt, as the box tells it.
report::FaultText faultText(const SecondFault& fault);

} // namespace pozhil
