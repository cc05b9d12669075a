#pragma once

#include "analysis/second/resolved/program.h"
#include "base/line_index.h"

#include <string>
#include <string_view>
#include <vector>

namespace pozhil::resolved::writer {

/// Places of a program's files as the emitted text writes them.
class SourcePlaces {
public:
    explicit SourcePlaces(const Program& program);

    /// "12:4-9" in quotes: line 12, bytes 4 up to 9 of it. Before it the number of the file in sources(), unless that is
    /// the program's own. What goes over several lines ends with the first.
    std::string literal(const Place& place) const;

    /// Counted from 1.
    std::size_t lineOf(const Place& place) const;

    /// What a comment tells of a place: "12: source", with the file before it unless that is the program's own.
    std::string description(const Place& place) const;

    /// All files as the running program numbers them: its own first.
    std::vector<const SourceText*> sources() const;

private:
    struct File {
        const SourceText* source;
        LineIndex lines;
    };

    const File& fileOf(const Place& place) const { return files_[place.file]; }
    bool isOwn(const Place& place) const { return place.file + 1 == files_.size(); }
    /// Without its end.
    static std::string_view lineText(const File& file, std::size_t line);

    std::vector<File> files_;
};

} // namespace pozhil::resolved::writer
