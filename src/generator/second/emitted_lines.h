#pragma once

#include "analysis/second/resolved/node.h"

#include <string>
#include <string_view>
#include <vector>

namespace pozhil::resolved::writer {

/// A part of the emitted text, line by line, each with the place of the source that it was written for.
class EmittedLines {
public:
    /// A line of its own at the present level of indentation; empty ones stay empty.
    void line(const std::string& text);
    /// Lines that are indented already, each with its end.
    void lines(std::string_view text);
    /// A line that opens a block, "if (…) {"; what follows stands one level deeper.
    void open(const std::string& text);
    /// Ends a block: "}" and what comes after it on the line.
    void close(const std::string& after = "");
    /// Ends a block and opens the next: "} else {".
    void reopen(const std::string& text);
    /// An empty line, unless nothing or another one stands before it.
    void gap();
    /// All lines of another part, at the margin.
    void append(const EmittedLines& part);

    /// What the following lines are written for.
    void setPlace(const Place& place) { place_ = place; }

    const std::string& text() const { return text_; }
    /// For each line.
    const std::vector<Place>& origins() const { return origins_; }
    /// How many blocks stand inside each other at most.
    std::size_t deepestLevel() const { return deepestLevel_; }

private:
    std::string text_;
    std::vector<Place> origins_;
    Place place_;
    std::size_t level_ = 0;
    std::size_t deepestLevel_ = 0;
};

} // namespace pozhil::resolved::writer
