#pragma once

#include <string>

namespace pozhil::platform {

/// Opens a page in the user's browser, in the background: by the command in the environment variable BROWSER, or else
/// by the desktop's own. "none" in BROWSER opens nothing. A machine without a browser is no error.
void openInBrowser(const std::string& address);

} // namespace pozhil::platform
