#pragma once

#include "driver/build_obstacle.h"
#include "driver/console/explanation.h"
#include "driver/second_translation.h"
#include "platform/process.h"

#include <optional>
#include <string>

namespace pozhil {

/// Said where a target compiler refuses what this one has written.
constexpr const char* OUR_FAULT = "இது பொழிலின் தவறு, உன் நிரலின் தவறு அல்ல";

/// A build that a target compiler has failed at.
struct FailedBuild {
    TargetCompiler compiler;
    /// The output text, as the compiler was given it
    std::string file;
    platform::CommandResult result;
    /// The same call without the user's own arguments; nothing if there are none
    std::optional<platform::Command> plainCall;
    /// Whether the output text stays where it is
    bool isTextKept = true;
};

/// Whom a failed build is to be blamed on.
struct BuildBlame {
    /// Nobody's text: the machine or the user's own arguments
    bool isOfMachine = false;
    /// Otherwise the statement whose text was refused first; empty if none is known. It holds as long as the translation.
    ShownPlace place{};
};

/// Tells, on standard error, why a target compiler failed at a text of the second edition: what kept it from working, the
/// user's own arguments, or else a fault of this compiler, since it lets no program through that has one.
BuildBlame reportBuildFailure(const SecondTranslation& translation, const FailedBuild& build);

} // namespace pozhil
