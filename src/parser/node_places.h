#pragma once

#include "base/source_place.h"
#include "parser/tree/node.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace pozhil {

/// Where the nodes of a tree stand in its sources, beside the tree.
class NodePlaces {
public:
    /// Makes a source known.
    /// \param nodes how many of its nodes are to be expected at most
    /// \return the number that add takes for it
    std::uint32_t addSource(SourcePtr source, std::size_t nodes);

    /// Notes where a node stands. A node that takes the memory of one that is gone takes its place too.
    void add(const void* node, std::uint32_t source, ByteRange range) { entries_.push_back({node, source, range}); }

    /// Where the text of a node stands, nothing for a node that no source has. A name that the parser adds of its own
    /// has the place of what it stands for.
    std::optional<SourcePlace> of(const Expression& node) const { return find(&node); }
    std::optional<SourcePlace> of(const Statement& node) const { return find(&node); }
    /// The same for a node of which only the address is known, nothing for null.
    std::optional<SourcePlace> ofAddress(const void* node) const { return find(node); }
    /// Where all nodes of a source stand, in no order.
    std::vector<ByteRange> allIn(const SourcePtr& source) const;

private:
    struct Entry {
        const void* node;
        std::uint32_t source;
        ByteRange range;
    };

    std::optional<SourcePlace> find(const void* node) const;

    std::vector<SourcePtr> sources_;
    /// In the order of the parse up to the first question, by node from then on.
    mutable std::vector<Entry> entries_;
    mutable std::size_t sorted_ = 0;
};

} // namespace pozhil
