#include "driver/web/web_session.h"

#include "driver/web/server_settings.h"
#include "driver/web/web_messages.h"
#include "platform/browser.h"

#include <thread>
#include <utility>

namespace pozhil {

WebSession::WebSession(const std::filesystem::path& appDirectory, const std::filesystem::path& temporaryDirectory,
                       const std::filesystem::path& outputDirectory, Edition edition)
    : server_(serverSettings(edition)), build_(appDirectory, temporaryDirectory, outputDirectory) {}

void WebSession::open(const WebText& text) {
    printWebPacking();
    const bool isBuilt = build_.run(text);
    if (text.edition == Edition::First) {
        tellFirst(isBuilt, text);
        text.reportHints();
        std::thread(runLocalServer, LOCAL_SERVER_PORT, server_).detach();
        return;
    }
    auto server = openLocalServer(LOCAL_SERVER_PORT, server_);
    if (server != nullptr || !isBuilt) {
        tellFirst(isBuilt, text);
    }
    text.reportHints();
    std::thread(runOpenServer, std::move(server)).detach();
}

void WebSession::tellFirst(bool isBuilt, const WebText& text) const {
    if (isBuilt) {
        printWebSuccess(placeOf(LOCAL_SERVER_PORT, server_), addressOf(server_));
        platform::openInBrowser(addressOf(server_));
    } else {
        printWebFailure(text.edition);
    }
}

void WebSession::update(const WebText& text) {
    if (build_.run(text)) {
        printWebUpdated();
    }
    text.reportHints();
}

} // namespace pozhil
