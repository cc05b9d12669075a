#pragma once

#include "base/source_loader.h"
#include "driver/file_changes.h"

#include <map>
#include <set>
#include <string>

namespace pozhil::tools {

/// Reads sources and remembers which ones, and when they were last written to.
class SeenSources : public SourceLoader {
public:
    SourcePtr load(const std::string& path) const override;

    /// The files that were read since this was asked last, by what tells files apart (SecondImports::keyOf).
    std::set<std::string> takeRead();

    /// Forgets all that was seen.
    void forget();

    /// Whether a file has changed since it was read, or one is there now that was looked for and not found.
    bool haveChanged() const;

private:
    // What was seen is no part of what a loader promises to keep.
    mutable std::map<std::string, TimeOfChange> times_;
    mutable std::set<std::string> read_;
};

} // namespace pozhil::tools
