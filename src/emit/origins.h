#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace pozhil {

/// Which node of a program each part of the emitted text was written for, so that what a target compiler says of a line
/// can be told of the source.
class Origins {
public:
    /// From \p offset on the text is written for \p node, within what \p node stands in.
    void begin(std::size_t offset, const void* node);
    /// What has begun last ends before \p offset.
    void end(std::size_t offset);

    /// The node that a line of the text was written for: the one whose text begins the line, else the first one that
    /// begins in it, else the one that it stands in. Null for a line that no node of the program asked for.
    /// \param text the whole text
    /// \param line counted from 1
    const void* ofLine(std::string_view text, std::size_t line) const;
    /// The same for the line that begins at \p begin, for whoever has an index of the lines.
    const void* ofLineAt(std::string_view text, std::size_t begin) const;

private:
    struct Mark {
        std::size_t offset;
        const void* node;
        bool isBegin;
    };

    /// In the order of the text.
    std::vector<Mark> marks_;
    std::vector<const void*> open_;
};

} // namespace pozhil
