#include "driver/source_watch.h"

#include "driver/console/fault_report.h"
#include "driver/console/second_fault_report.h"
#include "driver/file_changes.h"

#include <filesystem>
#include <iostream>
#include <utility>

namespace fs = std::filesystem;

namespace pozhil {
namespace {

/// Tells that a watched source is no longer of the kind that it is watched as, which can't change while it is.
/// \param what decides that
/// \param isThere whether the source has it now
void tellOtherKind(const char* what, bool isThere) {
    std::cerr << "பிழை: " << what << " இப்போது " << (isThere ? "உள்ளது! அதை நீக்கு" : "இல்லை! அதைத் திரும்ப எழுது")
              << ", அல்லது தொகுப்பியை மீண்டும் தொடங்கு." << std::endl;
}

/// Whether a changed source is still of the edition that it is watched in. Tells it if not, and what is wrong with the line
/// that asks for an edition.
/// \param[out] faults of that line
bool keepsEdition(const SourcePtr& source, Edition edition, SecondFaults& faults) {
    const Edition now = editionOf(source, faults);
    if (!faults.empty()) {
        reportFaults(faults);
    } else if (now != edition) {
        tellOtherKind("முதல் வரியில் 'ஃ பொழில் 2'", now == Edition::Second);
    }
    return faults.empty() && now == edition;
}

/// Whether a changed source still has an application, or still none. Tells it if not.
bool keepsApplication(const SecondTranslation& translation, bool hadOne) {
    const bool hasOne = translation.application.has_value();
    if (hasOne != hadOne) {
        tellOtherKind("நிரலில் 'வலைதளம்'", hasOne);
    }
    return hasOne == hadOne;
}

void callIfAny(const std::function<void()>& step) {
    if (step) {
        step();
    }
}

void rebuild(const std::string& sourcePath, const FrontEndOptions& options, const WatchSteps& steps) {
    try {
        SourcePtr source = loadSource(sourcePath, options);
        if (source == nullptr) {
            source = makeSource(sourcePath, ""); // an editor may be about to put it back
        }
        SecondFaults faults;
        if (!keepsEdition(source, Edition::First, faults)) {
            callIfAny(steps.afterOtherKind);
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

void afterFaults(const SecondFaults& faults, const SecondWatchSteps& steps) {
    if (steps.afterFaults) {
        steps.afterFaults(faults);
    }
}

/// \param faults of the line that asks for an edition
void afterOtherEdition(const SecondFaults& faults, const SecondWatchSteps& steps) {
    if (faults.empty()) {
        callIfAny(steps.afterOtherKind);
    } else {
        afterFaults(faults, steps);
    }
}

void rebuild(const std::string& sourcePath, const FrontEndOptions& options, const SecondWatchSteps& steps) {
    SourcePtr source = loadSource(sourcePath, options);
    if (source == nullptr) {
        return; // an editor may be about to put it back
    }
    SecondFaults faults;
    if (!keepsEdition(source, Edition::Second, faults)) {
        afterOtherEdition(faults, steps);
        return;
    }
    const SecondTranslation translation = translateSecondEdition(std::move(source), options);
    if (!translation.faults.empty()) {
        reportFaults(translation.faults);
        afterFaults(translation.faults, steps);
    } else if (keepsApplication(translation, steps.isForPages)) {
        steps.build(translation);
    } else {
        callIfAny(steps.afterOtherKind);
    }
}

/// \throws std::filesystem::filesystem_error for a file that isn't there
TimeOfChange timeOfChange(const fs::path& file) {
    return fs::last_write_time(file);
}

/// Calls \p react whenever a file changes, after it has told so. Never returns.
[[noreturn]] void watchFile(const std::string& path, TimeOfChange (*timeOf)(const fs::path&), const char* changeNote,
                            const std::function<void()>& react) {
    const fs::path file = fs::u8path(path);
    TimeOfChange last = timeOf(file);
    lookAgainAndAgain([&] {
        const TimeOfChange now = timeOf(file);
        if (now && now != last) {
            last = now;
            std::cout << changeNote << std::endl;
            react();
        }
    });
}

} // namespace

void watchSource(const std::string& sourcePath, const FrontEndOptions& options, const WatchSteps& steps) {
    watchFile(sourcePath, timeOfChange, steps.changeNote, [&] { rebuild(sourcePath, options, steps); });
}

void watchSource(const std::string& sourcePath, const FrontEndOptions& options, const SecondWatchSteps& steps) {
    watchFile(sourcePath, timeOfChangeIfThere, steps.changeNote, [&] { rebuild(sourcePath, options, steps); });
}

} // namespace pozhil
