#pragma once

#include "analysis/hints.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace pozhil {

/// The hints as they are found, each with its place.
class HintList {
public:
    /// \param parser that knows the places; it outlives the list
    explicit HintList(const Parser& parser) : parser_(parser) {}

    void add(HintKind kind, const Expression& node, std::string text, Mend mend = {});
    void add(HintKind kind, const Statement& node, std::string text);
    /// \param token the number of a token of the program's own file
    void addAtToken(HintKind kind, std::size_t token, std::string text, Mend mend = {});

    /// All hints, in order; of each kind one a line.
    std::vector<Hint> take();

private:
    template <class Node> void addAtNode(HintKind kind, const Node& node, std::string text, Mend mend);
    std::int32_t lineOf(const SourcePlace& place);
    const std::vector<std::uint32_t>& lineEndsOf(const SourceText& source);

    const Parser& parser_;
    std::vector<Hint> hints_;
    /// Where the lines of imported files end.
    std::map<const SourceText*, std::vector<std::uint32_t>> lineEnds_;
};

} // namespace pozhil
