#pragma once

#include "platform/process.h"

#include <optional>
#include <string_view>

namespace pozhil {

/// Why g++ couldn't do its work, where that is no fault of what it was given.
struct BuildObstacle {
    std::string_view cause;
    std::string_view remedy;
};

/// What kept g++ or its linker from working: a full disk, a limit of the system, memory, or whoever ended it.
/// \return nothing if neither how it ended nor what it wrote says so
std::optional<BuildObstacle> findObstacle(const platform::CommandResult& result);

/// Tells on standard error what kept g++ from working.
void tellObstacle(const BuildObstacle& obstacle);

} // namespace pozhil
