#include "driver/source_watch.h"

#include "base/source_text.h"
#include "driver/console/fault_report.h"

#include <chrono>
#include <filesystem>
#include <iostream>
#include <thread>

namespace pozhil {
namespace {

void rebuild(const std::string& sourcePath, const std::vector<std::string>& moduleDirectories,
             const WatchSteps& steps) {
    try {
        SourceFile source;
        source.path = sourcePath;
        source.text = readSourceText(sourcePath).value_or("");
        parseSource(source, moduleDirectories);
        steps.build(source, generateText(source));
    } catch (const Fault& fault) {
        reportFault(fault);
    } catch (const StageFailure& failure) {
        steps.reportFailure(failure);
    }
}

} // namespace

void watchSource(const std::string& sourcePath, const std::vector<std::string>& moduleDirectories,
                 const WatchSteps& steps) {
    constexpr std::chrono::milliseconds PAUSE{500};
    const std::filesystem::path file = std::filesystem::u8path(sourcePath);
    auto last = std::filesystem::last_write_time(file);
    while (true) {
        const auto now = std::filesystem::last_write_time(file);
        if (now != last) {
            last = now;
            std::cout << steps.changeNote << std::endl;
            rebuild(sourcePath, moduleDirectories, steps);
        }
        std::this_thread::sleep_for(PAUSE);
    }
}

} // namespace pozhil
