#include "driver/web/page_fault.h"

#include "driver/web/web_messages.h"

#include <string>

namespace pozhil {
namespace {

/// How many faults there are beside the first, as a sentence; nothing without any.
std::string furtherFaults(const SecondFaults& faults) {
    const std::size_t count = faults.size() - 1;
    if (count == 0) {
        return "";
    }
    if (faults.size() == MAX_FOUND_FAULTS) { // no more are looked for
        return "\nஇன்னும் " + std::to_string(count) + " பிழைகளாவது உள்ளன; முனையத்தில் பார்க்கவும்.";
    }
    return count == 1 ? "\nஇன்னும் ஒரு பிழை உள்ளது; முனையத்தில் பார்க்கவும்."
                      : "\nஇன்னும் " + std::to_string(count) + " பிழைகள் உள்ளன; முனையத்தில் பார்க்கவும்.";
}

} // namespace

BuildFault pageFault(const Fault& fault) {
    return {fault.code, fault.file, fault.line, descriptionOf(fault)};
}

BuildFault pageFault(const SecondFaults& faults) {
    const report::FaultText first = faultText(faults.front());
    return {first.code, first.excerpt.file, first.excerpt.line, first.message + furtherFaults(faults)};
}

BuildFault untoldFault() {
    return {"", "", 0, BUILD_FAILURE};
}

} // namespace pozhil
