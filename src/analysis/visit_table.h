#pragma once

#include <cstddef>
#include <stdexcept>
#include <utility>
#include <vector>

namespace pozhil {

/// What analysis found out about the nodes of one class, in the order in which they are visited. A node is visited as
/// often as it is emitted (the body of a loop over a list or map twice, a field at each construction), and what a name
/// means may have changed in between: so facts belong to visits, not to nodes.
template <class Fact> class VisitTable {
public:
    void add(const void* node, Fact fact) { visits_.push_back({node, std::move(fact)}); }

    /// The facts of the next visit, which is one of \p node. The writing walk goes the way of analysis, step by step.
    /// \throws std::logic_error where it doesn't
    const Fact& next(const void* node) {
        if (read_ == visits_.size() || visits_[read_].node != node) {
            throw std::logic_error("the writing walk has left the way of analysis");
        }
        return visits_[read_++].fact;
    }

    void clear() {
        visits_.clear();
        read_ = 0;
    }

private:
    struct Visit {
        const void* node;
        Fact fact;
    };

    std::vector<Visit> visits_;
    std::size_t read_ = 0;
};

} // namespace pozhil
