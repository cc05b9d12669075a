#pragma once

#include "driver/server/local_server.h"
#include "front_end/second_edition.h"

#include <string>

/// Where an application is served.
namespace pozhil {

/// What the user has set, or what the edition does by itself: the first gives any file, the second those of the application
/// alone. Ends the process with status 1 if what is set as an address is none.
ServerSettings serverSettings(Edition edition);

/// Where a browser of this machine finds the server.
std::string addressOf(const ServerSettings& server);

} // namespace pozhil
