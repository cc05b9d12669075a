#include "driver/source_watch.h"

#include "driver/console/fault_report.h"
#include "driver/console/second_fault_report.h"

#include <chrono>
#include <filesystem>
#include <iostream>
#include <thread>
#include <utility>

namespace pozhil {
namespace {

void rebuild(const std::string& sourcePath, const FrontEndOptions& options, const WatchSteps& steps) {
    try {
        SourcePtr source = loadSource(sourcePath, options);
        if (source == nullptr) {
            source = makeSource(sourcePath, ""); // an editor may be about to put it back
        }
        if (!keepsEdition(source, Edition::First)) {
            return;
        }
        const ParsedSource parsed = parseSource(std::move(source), options);
        steps.build(parsed, generateText(parsed));
    } catch (const Fault& fault) {
        if (steps.prepareEnd) {
            steps.prepareEnd(fault);
        }
        reportFault(fault);
    } catch (const StageFailure& failure) {
        steps.reportFailure(failure);
    }
}

} // namespace

bool keepsEdition(const SourcePtr& source, Edition edition) {
    SecondFaults faults;
    const Edition now = editionOf(source, faults);
    if (!faults.empty()) {
        reportFaults(faults);
    } else if (now != edition) {
        std::cerr << "பிழை: முதல் வரியில் 'ஃ பொழில் 2' இப்போது "
                  << (edition == Edition::Second ? "இல்லை! அதைத் திரும்ப எழுது" : "உள்ளது! அதை நீக்கு")
                  << ", அல்லது தொகுப்பியை மீண்டும் தொடங்கு." << std::endl;
    }
    return faults.empty() && now == edition;
}

void watchFile(const std::string& path, const char* changeNote, const std::function<void()>& react) {
    constexpr std::chrono::milliseconds PAUSE{500};
    const std::filesystem::path file = std::filesystem::u8path(path);
    auto last = std::filesystem::last_write_time(file);
    while (true) {
        const auto now = std::filesystem::last_write_time(file);
        if (now != last) {
            last = now;
            std::cout << changeNote << std::endl;
            react();
        }
        std::this_thread::sleep_for(PAUSE);
    }
}

void watchSource(const std::string& sourcePath, const FrontEndOptions& options, const WatchSteps& steps) {
    watchFile(sourcePath, steps.changeNote, [&] { rebuild(sourcePath, options, steps); });
}

} // namespace pozhil
