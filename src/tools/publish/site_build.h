#pragma once

#include "driver/web/web_text.h"

#include <filesystem>

namespace pozhil::tools {

/// How a build of the files of a site ended. What went wrong has been told.
enum class BuildResult { Done, Refused, Failed };

/// Makes the files that a host needs to serve an application: page, program, data, licences, and compressed copies.
/// \param workFolder for what is needed meanwhile
/// \param folder where the files go, and nothing else is
BuildResult buildSite(const WebText& text, const std::filesystem::path& workFolder,
                      const std::filesystem::path& folder);

} // namespace pozhil::tools
