#include "driver/web/web_session.h"

#include "driver/settings.h"
#include "driver/web/web_messages.h"
#include "platform/browser.h"
#include "platform/sockets.h"

#include <cstdlib>
#include <string>
#include <thread>

namespace pozhil {
namespace {

/// The second edition has nothing but the application's own files to give, whoever asks.
Access accessFor(Edition edition) {
    if (settings::isServerStrict()) {
        return Access::Strict;
    }
    return edition == Edition::Second ? Access::Files : Access::Open;
}

ServerSettings serverSettings(Edition edition) {
    constexpr const char* THIS_MACHINE_ALONE = "127.0.0.1";
    const Access access = accessFor(edition);
    ServerSettings server = {access == Access::Strict ? THIS_MACHINE_ALONE : settings::serverHost(), access};
    if (!server.host.empty() && !platform::isAddress(server.host)) {
        // Whoever names an address doesn't want to be reached at all others.
        printInvalidHost(server.host);
        std::exit(1);
    }
    return server;
}

/// Where a browser of this machine finds the server.
std::string addressOf(const ServerSettings& server) {
    const bool isEverywhere = server.host.empty() || server.host == "0.0.0.0";
    return "http://" + (isEverywhere ? "127.0.0.1" : server.host) + ":" + std::to_string(LOCAL_SERVER_PORT);
}

} // namespace

WebSession::WebSession(const std::filesystem::path& appDirectory, const std::filesystem::path& temporaryDirectory,
                       Edition edition)
    : server_(serverSettings(edition)), build_(appDirectory, temporaryDirectory) {}

void WebSession::open(const WebText& text) {
    printWebPacking();
    if (build_.run(text)) {
        printWebSuccess(placeOf(LOCAL_SERVER_PORT, server_), addressOf(server_));
        platform::openInBrowser(addressOf(server_));
    } else {
        printWebFailure(text.edition);
    }
    text.reportHints();
    std::thread(runLocalServer, LOCAL_SERVER_PORT, server_).detach();
}

void WebSession::update(const WebText& text) {
    if (build_.run(text)) {
        printWebUpdated();
    }
    text.reportHints();
}

} // namespace pozhil
