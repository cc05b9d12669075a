#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace pozhil {

/// Where the lines of a text begin, for whoever asks for many of them.
class LineIndex {
public:
    explicit LineIndex(std::string_view text);

    /// The line that \p offset stands in, counted from 1.
    std::size_t lineAt(std::size_t offset) const;

    /// How many lines there are; a text that ends in a line end has an empty one after it.
    std::size_t count() const { return begins_.size(); }

    /// The offset at which a line begins.
    /// \param line from 1 to count()
    std::size_t beginOf(std::size_t line) const { return begins_[line - 1]; }

private:
    std::vector<std::size_t> begins_;
};

} // namespace pozhil
