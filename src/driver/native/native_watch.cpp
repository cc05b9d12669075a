#include "driver/native/native_watch.h"

#include "driver/console/stage_report.h"
#include "driver/hint_report.h"
#include "driver/output_stage.h"
#include "driver/source_watch.h"

namespace pozhil {

void watchNative(const std::string& sourcePath, const FrontEndOptions& options, const std::filesystem::path& outputFile,
                 NativeBuild& build) {
    WatchSteps steps;
    steps.changeNote = NATIVE_CHANGE_NOTE;
    steps.build = [&](const ParsedSource& source, const OutputText& output) {
        if (writeOutput(outputFile, output.text)) {
            build.start();
            build.finish(source, output);
            reportHints(source);
        }
    };
    steps.reportFailure = reportWatchFailure;
    watchSource(sourcePath, options, steps);
}

} // namespace pozhil
