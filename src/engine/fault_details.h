#pragma once

#include "engine/faults.h"
#include "report/box.h"

#include <string>
#include <vector>

namespace pozhil::engine {

/// What is known of a fault. Texts are made of it only if somebody asks.
struct Fault::Details {
    long references = 1;
    int number = 0;
    Place place = nullptr;
    std::vector<std::string> values{};
    std::string suggestion{};
    /// In place of what the catalogue says; may be empty.
    std::string remedy{};
    std::vector<report::Call> way{};
    std::size_t callsLeftOut = 0;
};

/// The fault as the box tells it.
report::FaultText faultText(const Fault& fault);

} // namespace pozhil::engine
