#include "driver/console/second_fault_report.h"

#include "driver/console/console_style.h"
#include "report/box.h"

#include <algorithm>
#include <iostream>

namespace pozhil {

void reportFaults(const SecondFaults& faults) {
    const std::size_t count = std::min(faults.size(), MAX_TOLD_FAULTS);
    for (std::size_t index = 0; index < count; ++index) {
        std::cout << report::faultBox(faultText(faults[index]));
    }
    if (faults.size() > count) {
        std::cout << style::GOLD << "  இன்னும் பிழைகள் உள்ளன; முதல் " << count
                  << " மட்டும் மேலே உள்ளன. இவற்றைச் சரி செய்துவிட்டு மீண்டும் ஓட்டு மச்சி!" << style::RESET << "\n\n";
    }
    std::cout << std::flush;
}

} // namespace pozhil
