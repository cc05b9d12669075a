#include "parser/node_places.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>

namespace pozhil {

std::uint32_t NodePlaces::addSource(SourcePtr source, std::size_t nodes) {
    if (entries_.empty()) {
        entries_.reserve(nodes);
    }
    sources_.push_back(std::move(source));
    return static_cast<std::uint32_t>(sources_.size() - 1);
}

std::vector<ByteRange> NodePlaces::allIn(const SourcePtr& source) const {
    std::vector<ByteRange> ranges;
    for (const Entry& entry : entries_) {
        if (sources_[entry.source] == source) {
            ranges.push_back(entry.range);
        }
    }
    return ranges;
}

/// Compiling asks for no place at all, so noting one must cost next to nothing; the first question pays.
std::optional<SourcePlace> NodePlaces::find(const void* node) const {
    const std::less<> before;
    if (sorted_ != entries_.size()) {
        std::stable_sort(entries_.begin(), entries_.end(),
                         [&](const Entry& a, const Entry& b) { return before(a.node, b.node); });
        sorted_ = entries_.size();
    }
    // Of several notes on one address, the last is of the node that lives there now.
    const auto end =
        std::upper_bound(entries_.begin(), entries_.end(), node,
                         [&](const void* wanted, const Entry& entry) { return before(wanted, entry.node); });
    if (end == entries_.begin() || std::prev(end)->node != node) {
        return std::nullopt;
    }
    const Entry& entry = *std::prev(end);
    return SourcePlace{sources_[entry.source], entry.range};
}

} // namespace pozhil
