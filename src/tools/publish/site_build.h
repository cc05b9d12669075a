#pragma once

#include "driver/translation.h"
#include "front_end/front_end.h"

#include <filesystem>

namespace pozhil::tools {

/// How a build of the files of a site ended. What went wrong has been told.
enum class BuildResult { Done, Refused, Failed };

/// Makes the files that a host needs to serve an application: page, program, data, licences, and compressed copies.
/// \param output the output text of \p source
/// \param workFolder for what is needed meanwhile
/// \param folder where the files go, and nothing else is
BuildResult buildSite(const ParsedSource& source, const OutputText& output, const std::filesystem::path& workFolder,
                      const std::filesystem::path& folder);

} // namespace pozhil::tools
