#pragma once

#include "base/line_index.h"
#include "driver/console/explanation.h"
#include "driver/translation.h"

#include <cstddef>
#include <map>
#include <optional>

namespace pozhil {

/// A statement of a source.
struct StatementPlace {
    SourcePlace place;
    /// The line that it begins on, counted from 1.
    std::size_t line = 0;
};

/// Which statement each line of an output text was written for.
class OutputPlaces {
public:
    /// \param output the output text of \p source; both must outlive this object
    OutputPlaces(const ParsedSource& source, const OutputText& output);

    /// \param outputLine a line of the output text, counted from 1
    /// \return nothing for a line that is no statement's, such as those of the runtime, or that isn't there
    std::optional<StatementPlace> find(std::size_t outputLine);

private:
    const ParsedSource& source_;
    const OutputText& output_;
    const LineIndex outputLines_;
    std::map<const SourceText*, LineIndex> sourceLines_;
};

/// The place as the user is shown it.
ShownPlace shownPlace(const StatementPlace& statement);

} // namespace pozhil
