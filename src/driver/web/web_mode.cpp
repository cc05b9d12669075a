#include "driver/web/web_mode.h"

#include "driver/console/stage_report.h"
#include "driver/hint_report.h"
#include "driver/server/build_fault.h"
#include "driver/server/local_server.h"
#include "driver/settings.h"
#include "driver/source_watch.h"
#include "driver/web/web_build.h"
#include "driver/web/web_messages.h"
#include "platform/browser.h"
#include "platform/sockets.h"

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <thread>

namespace pozhil {
namespace {

/// Pages ask twice a second.
constexpr std::chrono::milliseconds LONGEST_FAREWELL{1000};

BuildFault faultForPages(const Fault& fault) {
    return {fault.code, fault.file, fault.line, descriptionOf(fault)};
}

ServerSettings serverSettings() {
    constexpr const char* THIS_MACHINE_ALONE = "127.0.0.1";
    const bool isStrict = settings::isServerStrict();
    return {isStrict ? THIS_MACHINE_ALONE : settings::serverHost(), isStrict ? Access::Strict : Access::Open};
}

/// Where a browser of this machine finds the server.
std::string addressOf(const ServerSettings& server) {
    const bool isEverywhere = server.host.empty() || server.host == "0.0.0.0";
    return "http://" + (isEverywhere ? "127.0.0.1" : server.host) + ":" + std::to_string(LOCAL_SERVER_PORT);
}

} // namespace

void runWeb(const ParsedSource& source, const OutputText& output, const FrontEndOptions& options,
            const std::filesystem::path& appDirectory, const std::filesystem::path& temporaryDirectory) {
    const ServerSettings server = serverSettings();
    if (!server.host.empty() && !platform::isAddress(server.host)) {
        // Whoever names an address doesn't want to be reached at all others.
        printInvalidHost(server.host);
        std::exit(1);
    }
    WebBuild build(appDirectory, temporaryDirectory);
    printWebPacking();
    if (build.run(source, output)) {
        printWebSuccess(placeOf(LOCAL_SERVER_PORT, server), addressOf(server));
        platform::openInBrowser(addressOf(server));
    } else {
        printWebFailure();
    }
    reportHints(source);
    std::thread(runLocalServer, LOCAL_SERVER_PORT, server).detach();

    WatchSteps steps;
    steps.changeNote = "\n🔄 மாற்றம் கண்டறியப்பட்டது! வலைத்தளம் புதுப்பிக்கப்படுகிறது...";
    steps.build = [&](const ParsedSource& changed, const OutputText& changedOutput) {
        if (build.run(changed, changedOutput)) {
            printWebUpdated();
        }
        reportHints(changed);
    };
    steps.reportFailure = [](const StageFailure& failure) {
        reportWebWatchFailure(failure);
        tellPages(failure.fault ? faultForPages(*failure.fault) : BuildFault{"", "", 0, BUILD_FAILURE});
    };
    steps.prepareEnd = [](const Fault& fault) {
        tellPages(faultForPages(fault));
        std::atexit([] { waitForPages(LONGEST_FAREWELL); });
    };
    watchSource(source.source->path, options, steps);
}

} // namespace pozhil
