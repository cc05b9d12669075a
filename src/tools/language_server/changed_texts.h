#pragma once

#include "tools/language_server/workspace.h"

#include <string>
#include <vector>

namespace pozhil::language_server {

/// The texts of a workspace with edits that nobody has made yet, to find out what would come of them.
class ChangedTexts {
public:
    /// \param workspace outlives this
    explicit ChangedTexts(const Workspace& workspace);

    /// Puts a text in the place of what stands in these parts of a source, which don't overlap.
    /// \return the source with the other text
    SourcePtr change(const SourcePtr& source, std::vector<ByteRange> places, const std::string& text);

    /// The text at a path, null if there is none that can be read.
    SourcePtr load(const std::string& path) const { return texts_.load(path); }

    /// How the stages read these texts; only valid as long as this is.
    FrontEndOptions options() const;

private:
    const Workspace& workspace_;
    OpenTexts texts_;
};

} // namespace pozhil::language_server
