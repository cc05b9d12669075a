#include "driver/web/server_settings.h"

#include "driver/settings.h"
#include "driver/web/web_messages.h"
#include "platform/sockets.h"

#include <cstdlib>

namespace pozhil {
namespace {

Access accessFor(Edition edition) {
    if (settings::isServerStrict()) {
        return Access::Strict;
    }
    return edition == Edition::Second ? Access::Files : Access::Open;
}

} // namespace

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

std::string addressOf(const ServerSettings& server) {
    const bool isEverywhere = server.host.empty() || server.host == "0.0.0.0";
    return "http://" + (isEverywhere ? "127.0.0.1" : server.host) + ":" + std::to_string(LOCAL_SERVER_PORT);
}

} // namespace pozhil
