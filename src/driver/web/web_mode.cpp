#include "driver/web/web_mode.h"

#include "driver/console/stage_report.h"
#include "driver/server/build_fault.h"
#include "driver/source_watch.h"
#include "driver/web/page_fault.h"
#include "driver/web/web_directory.h"
#include "driver/web/web_session.h"

#include <chrono>
#include <cstdlib>

namespace pozhil {
namespace {

constexpr const char* CHANGE_NOTE = "\n🔄 மாற்றம் கண்டறியப்பட்டது! வலைத்தளம் புதுப்பிக்கப்படுகிறது...";

/// Pages ask twice a second.
constexpr std::chrono::milliseconds LONGEST_FAREWELL{1000};

} // namespace

void runWeb(const ParsedSource& source, const OutputText& output, const FrontEndOptions& options,
            const std::filesystem::path& appDirectory, const std::filesystem::path& temporaryDirectory) {
    WebSession session(appDirectory, temporaryDirectory, webDirectory(), Edition::First);
    session.open(webTextOf(source, output));

    WatchSteps steps;
    steps.changeNote = CHANGE_NOTE;
    steps.build = [&](const ParsedSource& changed, const OutputText& changedOutput) {
        session.update(webTextOf(changed, changedOutput));
    };
    steps.reportFailure = [](const StageFailure& failure) {
        reportWebWatchFailure(failure);
        tellPages(failure.fault ? pageFault(*failure.fault) : untoldFault());
    };
    steps.prepareEnd = [](const Fault& fault) {
        tellPages(pageFault(fault));
        std::atexit([] { waitForPages(LONGEST_FAREWELL); });
    };
    steps.afterOtherKind = [] { tellPages(untoldFault()); };
    watchSource(source.source->path, options, steps);
}

void runWeb(const std::string& path, const SecondTranslation& translation, const FrontEndOptions& options,
            const std::filesystem::path& appDirectory, const std::filesystem::path& temporaryDirectory) {
    WebSession session(appDirectory, temporaryDirectory, webDirectoryOf(path), Edition::Second);
    session.open(webTextOf(translation));

    SecondWatchSteps steps;
    steps.changeNote = CHANGE_NOTE;
    steps.isForPages = true;
    steps.build = [&](const SecondTranslation& changed) { session.update(webTextOf(changed)); };
    steps.afterFaults = [](const SecondFaults& faults) { tellPages(pageFault(faults)); };
    steps.afterOtherKind = [] { tellPages(untoldFault()); };
    watchSource(path, options, steps);
}

} // namespace pozhil
