#include "driver/console/second_fault_report.h"

#include "report/box.h"

#include <algorithm>
#include <iostream>

namespace pozhil {

void reportFaults(const SecondFaults& faults) {
    const std::size_t count = std::min(faults.size(), MAX_TOLD_FAULTS);
    for (std::size_t index = 0; index < count; ++index) {
        std::cout << report::faultBox(faultText(faults[index]));
    }
    std::cout << std::flush;
}

} // namespace pozhil
