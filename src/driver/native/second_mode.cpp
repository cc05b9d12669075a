#include "driver/native/second_mode.h"

#include "driver/console/banner.h"
#include "driver/console/second_fault_report.h"
#include "driver/hint_report.h"
#include "driver/native/native_watch.h"
#include "driver/native/second_build.h"
#include "driver/output_stage.h"
#include "driver/second_translation.h"
#include "driver/settings.h"
#include "driver/source_watch.h"

#include <iostream>

namespace pozhil {
namespace {

/// Compiles a changed source and runs it. After a fault the next change is waited for.
void rebuild(const std::string& path, const FrontEndOptions& options, const std::filesystem::path& output,
             SecondBuild& build) {
    SourcePtr source = loadSource(path, options);
    if (source == nullptr) {
        return; // an editor may be about to put it back
    }
    if (!keepsEdition(source, Edition::Second)) {
        return;
    }
    const SecondTranslation translation = translateSecondEdition(std::move(source), options);
    if (!translation.faults.empty()) {
        reportFaults(translation.faults);
    } else if (replaceOutput(output, translation.output.text)) {
        build.start(translation);
        build.finish(translation);
        reportHints(translation.hints);
    }
}

} // namespace

int runSecondEdition(const Invocation& invocation, const SourcePtr& source, const FrontEndOptions& options,
                     const std::filesystem::path& appDirectory) {
    if (invocation.web) {
        std::cerr
            << "பிழை: வலைச் செயலிகளுக்கு இரண்டாம் பதிப்பு இன்னும் இல்லை! '--வலை' இல்லாமல் ஓட்டு, அல்லது முதல் வரியில் உள்ள 'ஃ பொழில் 2' "
               "என்பதை நீக்கு."
            << std::endl;
        return 1;
    }
    const SecondTranslation translation = translateSecondEdition(source, options);
    if (!translation.faults.empty()) {
        reportFaults(translation.faults);
        return 1;
    }
    const std::filesystem::path directory = directoryOfSource(prepareTemporaryDirectory(), source->path);
    const std::filesystem::path output = outputPath(directory);
    if (!replaceOutput(output, translation.output.text)) {
        return 1;
    }
    SecondBuild build(appDirectory, output, directory);
    if (!invocation.watch) {
        build.start(translation);
    }
    printBanner(Edition::Second);
    animateCompilation(source->path, settings::animationDelay());
    if (invocation.watch) {
        watchFile(source->path, NATIVE_CHANGE_NOTE, [&] { rebuild(source->path, options, output, build); });
    }
    const int status = build.finish(translation);
    reportHints(translation.hints);
    return status;
}

} // namespace pozhil
