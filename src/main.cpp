#include "driver/banner.h"
#include "driver/command_line.h"
#include "driver/front_end.h"
#include "driver/native_build.h"
#include "driver/native_watch.h"
#include "driver/output_stage.h"
#include "driver/settings.h"
#include "driver/web_messages.h"
#include "platform/console.h"
#include "platform/paths.h"
#include "scanner/source_text.h"

#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace {

using namespace pozhil;

/// Scans and parses the source. The web flag goes on by itself for a program that declares an application.
void analyse(SourceFile& source, bool& web, const std::vector<std::string>& moduleDirectories) {
    if (web) {
        printWebStart();
    }
    parseSource(source, moduleDirectories);
    if (!web && isWebProgram(source.program)) {
        web = true;
        printWebStart();
    }
    if (web) {
        printWebGeneration();
    }
}

int compile(const Invocation& invocation) {
    SourceFile source;
    source.path = invocation.sourcePath;
    auto text = readSourceText(source.path);
    if (!text) {
        std::cerr << "பிழை: '" << source.path << "' என்ற கோப்பை திறக்க முடியவில்லை!" << std::endl;
        return 1;
    }
    source.text = std::move(*text);

    const std::string appDirectory = platform::executableDirectory().u8string();
    const std::vector<std::string> moduleDirectories = settings::moduleDirectories(appDirectory);
    bool web = invocation.web;
    analyse(source, web, moduleDirectories);

    const std::filesystem::path temporaryDirectory = prepareTemporaryDirectory();
    const std::filesystem::path output = outputPath(temporaryDirectory);
    const std::string generated = generateText(source);
    if (!createOutput(output)) {
        return 1;
    }
    if (web) {
        std::cerr << "\nபிழை: வலைத்தளத் தொகுப்பு இந்தப் பதிப்பில் இன்னும் இல்லை." << std::endl;
        return 1;
    }
    if (!writeOutput(output, generated)) {
        return 1;
    }

    NativeBuild build(appDirectory, output, temporaryDirectory);
    if (!invocation.watch) {
        build.start();
    }
    printBanner();
    animateCompilation(source.path);
    if (invocation.watch) {
        watchNative(source.path, moduleDirectories, output, build);
    }
    build.finish();
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    platform::setUpConsole();
    const Invocation invocation = readCommandLine(std::vector<std::string>(argv, argv + argc));
    if (invocation.exitCode) {
        return *invocation.exitCode;
    }
    try {
        return compile(invocation);
    } catch (const StageFailure& failure) {
        reportFirstFailure(failure);
    } catch (const std::exception& exception) {
        std::cerr << "பிழை: எதிர்பாராத சிக்கல்! (" << exception.what() << ")" << std::endl;
    }
    return 1;
}
