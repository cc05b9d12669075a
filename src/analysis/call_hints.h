#pragma once

#include "analysis/walk.h"
#include "diagnostics/mend.h"

#include <string>

namespace pozhil {

/// What may have been meant by a call.
struct CallHint {
    /// A sentence; empty if nothing comes near.
    std::string text{};
    /// What to write instead, where one name alone comes near.
    Mend mend{};
};

/// What may have been meant by a call of \p name, which nothing that can be called has: a name that is spelt much like
/// it, or one that is known only further down.
CallHint callHint(const Walk& walk, const std::string& name);

/// The same for a call after a dot, of something that isn't known to be an object.
CallHint methodHint(const Walk& walk, const std::string& name);

} // namespace pozhil
