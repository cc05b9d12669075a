#pragma once

#include "platform/process.h"

#include <optional>
#include <string>
#include <string_view>

namespace pozhil {

/// A compiler of output texts, as its users know it.
struct TargetCompiler {
    std::string_view name;
    /// The environment variable of the user's own arguments.
    std::string_view flagsVariable;
};

constexpr TargetCompiler GXX = {"g++", "POZHIL_CXXFLAGS"};
constexpr TargetCompiler EMXX = {"em++", "POZHIL_EMFLAGS"};

/// Why a target compiler couldn't do its work, where that is no fault of what it was given.
struct BuildObstacle {
    std::string cause;
    std::string remedy;
};

/// What kept a target compiler or its linker from working: a full disk, a limit of the system, memory, or whoever ended it.
/// \return nothing if neither how it ended nor what it wrote says so
std::optional<BuildObstacle> findObstacle(const TargetCompiler& compiler, const platform::CommandResult& result);

/// That the user's own arguments keep it from working.
BuildObstacle obstacleOfFlags(const TargetCompiler& compiler);

/// Tells on standard error what kept a target compiler from working.
void tellObstacle(const TargetCompiler& compiler, const BuildObstacle& obstacle);

} // namespace pozhil
