#pragma once

#include "driver/server/http_request.h"

#include <string>
#include <vector>

/// Whom the local server answers, and with what.
namespace pozhil {

enum class Access {
    Open,  ///< whoever asks, with any file below the current directory and beside it
    Files, ///< whoever asks, with the files of the application alone
    Strict ///< pages of this server alone, with the files of the application alone
};

/// Whether a request was meant for this machine and comes from no page but this server's own. Pages of other hosts reach
/// this machine too: by asking for it, or by a name of theirs that leads here.
bool comesFromOwnPage(const HttpRequest& request);

/// Whether the file behind a requested path is one of the application's, wherever symbolic links lead.
/// \param files what the application is packed of, seen from the current directory: files, and directories with all in them
bool isApplicationFile(const std::string& path, const std::vector<std::string>& files);

} // namespace pozhil
