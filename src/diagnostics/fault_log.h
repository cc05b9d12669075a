#pragma once

#include "base/source_place.h"
#include "diagnostics/fault.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace pozhil {

/// A fault and the part of the source that it was found at.
struct FoundFault {
    Fault fault;
    SourcePlace place;
};

/// Keeps the faults that stages go on after, in the order in which they stand in the text.
class FaultLog {
public:
    /// Thrown when the log is full; nothing that handles faults takes it for one.
    struct Full {};

    /// \param limit how many faults it holds, 1 at least
    explicit FaultLog(std::size_t limit) : limit_(limit) {}

    FaultLog(const FaultLog&) = delete;
    FaultLog& operator=(const FaultLog&) = delete;

    /// \throws Full if this was the last that it holds
    void add(FoundFault found) {
        faults_.push_back(std::move(found));
        if (faults_.size() >= limit_) {
            throw Full();
        }
    }

    std::size_t limit() const { return limit_; }
    std::vector<FoundFault> take() { return std::move(faults_); }

private:
    const std::size_t limit_;
    std::vector<FoundFault> faults_;
};

} // namespace pozhil
