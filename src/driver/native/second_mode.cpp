#include "driver/native/second_mode.h"

#include "driver/console/banner.h"
#include "driver/hint_report.h"
#include "driver/native/native_watch.h"
#include "driver/native/second_build.h"
#include "driver/output_stage.h"
#include "driver/settings.h"
#include "driver/source_watch.h"

namespace pozhil {
namespace {

[[noreturn]] void watch(const std::string& path, const FrontEndOptions& options, const std::filesystem::path& output,
                        SecondBuild& build) {
    SecondWatchSteps steps;
    steps.changeNote = NATIVE_CHANGE_NOTE;
    steps.build = [&](const SecondTranslation& translation) {
        if (replaceOutput(output, translation.output.text)) {
            build.start(translation);
            build.finish(translation);
            reportHints(translation.hints);
        }
    };
    watchSource(path, options, steps);
}

} // namespace

int runSecondEdition(const Invocation& invocation, const SecondTranslation& translation, const FrontEndOptions& options,
                     const std::filesystem::path& appDirectory) {
    const std::string& path = invocation.sourcePath;
    const std::filesystem::path directory = directoryOfSource(prepareTemporaryDirectory(), path);
    const std::filesystem::path output = outputPath(directory);
    if (!replaceOutput(output, translation.output.text)) {
        return 1;
    }
    SecondBuild build(appDirectory, output, directory);
    if (!invocation.watch) {
        build.start(translation);
    }
    printBanner(Edition::Second);
    animateCompilation(path, settings::animationDelay());
    if (invocation.watch) {
        watch(path, options, output, build);
    }
    const int status = build.finish(translation);
    reportHints(translation.hints);
    return status;
}

} // namespace pozhil
