#include "driver/command_line.h"
#include "driver/console/banner.h"
#include "driver/console/fault_report.h"
#include "driver/console/second_fault_report.h"
#include "driver/console/stage_report.h"
#include "driver/hint_report.h"
#include "driver/native/native_build.h"
#include "driver/native/native_watch.h"
#include "driver/native/second_mode.h"
#include "driver/output_stage.h"
#include "driver/second_translation.h"
#include "driver/settings.h"
#include "driver/translation.h"
#include "driver/web/emscripten_environment.h"
#include "driver/web/web_directory.h"
#include "driver/web/web_messages.h"
#include "driver/web/web_mode.h"
#include "front_end/front_end.h"
#include "front_end/second_edition.h"
#include "platform/console.h"
#include "platform/file_limit.h"
#include "platform/interrupt.h"
#include "platform/paths.h"
#include "platform/stack.h"

#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace {

using namespace pozhil;

/// Scans and parses the source. The web flag goes on by itself for a program that declares an application.
ParsedSource analyse(const SourcePtr& source, bool& web, const FrontEndOptions& options) {
    if (web) {
        printWebStart();
    }
    ParsedSource parsed = parseSource(source, options);
    if (!web && isWebProgram(parsed.program)) {
        web = true;
        printWebStart();
    }
    if (web) {
        printWebGeneration();
    }
    return parsed;
}

/// Empties the places that the output text and what becomes of it go to.
bool prepareOutput(const std::filesystem::path& output, bool web) {
    if (web) {
        printWebGenerated();
        if (!createWebDirectory(webDirectory())) {
            return false;
        }
    }
    return createOutput(output);
}

void runNative(const Invocation& invocation, const FrontEndOptions& options, const ParsedSource& parsed,
               const OutputText& generated, const std::filesystem::path& output, NativeBuild& build) {
    if (!invocation.watch) {
        build.start();
    }
    printBanner(Edition::First);
    animateCompilation(invocation.sourcePath, settings::animationDelay());
    if (invocation.watch) {
        watchNative(invocation.sourcePath, options, output, build);
    }
    build.finish(parsed, generated);
}

/// Compiles a program of the first edition, and runs it.
int compileFirstEdition(const Invocation& invocation, const SourcePtr& source, const FrontEndOptions& options,
                        const std::filesystem::path& appDirectory) {
    bool web = invocation.web;
    const ParsedSource parsed = analyse(source, web, options);

    const std::filesystem::path temporaryDirectory = prepareTemporaryDirectory();
    const std::filesystem::path output = outputPath(temporaryDirectory);
    const OutputText generated = generateText(parsed);
    if (!prepareOutput(output, web)) {
        return 1;
    }
    if (web) {
        runWeb(parsed, generated, options, appDirectory, temporaryDirectory);
    }
    if (!writeOutput(output, generated.text)) {
        return 1;
    }
    NativeBuild build(invocation.sourcePath, appDirectory, output, temporaryDirectory);
    runNative(invocation, options, parsed, generated, output, build);
    reportHints(parsed);
    return 0;
}

/// Compiles a program of the second edition, and runs it.
int compileSecondEdition(const Invocation& invocation, const SourcePtr& source, const FrontEndOptions& options,
                         const std::filesystem::path& appDirectory) {
    const SecondTranslation translation = translateSecondEdition(source, options);
    if (!translation.faults.empty()) {
        reportFaults(translation.faults);
        return 1;
    }
    if (!translation.application) {
        if (invocation.web) {
            printNoWebApplication(invocation.sourcePath);
            return 1;
        }
        return runSecondEdition(invocation, translation, options, appDirectory);
    }
    printWebStart();
    printWebGeneration();
    printWebGenerated();
    const std::filesystem::path directory = directoryOfSource(prepareTemporaryDirectory(), invocation.sourcePath);
    if (!createWebDirectory(webDirectoryOf(invocation.sourcePath)) || !createDirectory(directory)) {
        return 1;
    }
    runWeb(invocation.sourcePath, translation, options, appDirectory, directory);
}

int compile(const Invocation& invocation) {
    const std::filesystem::path appDirectory = platform::executableDirectory();
    FrontEndOptions options;
    options.moduleDirectories = settings::moduleDirectories(appDirectory.u8string());
    const SourcePtr source = loadSource(invocation.sourcePath, options);
    if (source == nullptr) {
        std::cerr << "பிழை: '" << invocation.sourcePath << "' என்ற கோப்பை திறக்க முடியவில்லை!" << std::endl;
        return 1;
    }
    SecondFaults editionFaults;
    const Edition edition = editionOf(source, editionFaults);
    if (!editionFaults.empty()) {
        reportFaults(editionFaults);
        return 1;
    }
    if (edition == Edition::Second) {
        return compileSecondEdition(invocation, source, options, appDirectory);
    }
    try {
        return compileFirstEdition(invocation, source, options, appDirectory);
    } catch (...) {
        reportAlmostMarked(*source); // which may be what the fault comes of
        throw;
    }
}

/// The whole compiler, with what it tells of its failures.
int run(const std::vector<std::string>& arguments) {
    try {
        injectEmscriptenEnvironment(platform::executableDirectory());
        const Invocation invocation = readCommandLine(arguments);
        return invocation.exitCode ? *invocation.exitCode : compile(invocation);
    } catch (const Fault& fault) {
        reportFault(fault);
    } catch (const StageFailure& failure) {
        reportFirstFailure(failure);
    } catch (const std::exception& exception) {
        std::cerr << "பிழை: எதிர்பாராத சிக்கல்! (" << exception.what() << ")" << std::endl;
    }
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    platform::setUpConsole();
    platform::failWritesBeyondFileLimit();
    platform::passOnEndSignals();
    return platform::runOnOwnStack([&] { return run(std::vector<std::string>(argv, argv + argc)); });
}
