#pragma once

#include "engine/value.h"

namespace pozhil::engine {

/// Counts over what வரம்பு(begin, end, step) holds, without making the list.
class Counting {
public:
    /// \param step not 0
    Counting(Whole begin, Whole end, Whole step)
        : number_(static_cast<unsigned long long>(begin)), step_(static_cast<unsigned long long>(step)) {
        const bool isUpward = step > 0;
        if (isUpward ? begin < end : begin > end) {
            const auto last = static_cast<unsigned long long>(end);
            const unsigned long long distance = isUpward ? last - number_ : number_ - last;
            left_ = (distance - 1) / (isUpward ? step_ : 0 - step_) + 1;
        }
    }

    bool hasNext() const { return left_ != 0; }
    /// How many numbers are still to come.
    unsigned long long left() const { return left_; }
    /// Only if there is one.
    Whole next() {
        const auto number = static_cast<Whole>(number_);
        number_ += step_;
        --left_;
        return number;
    }

private:
    // Without a sign, so that the step after the last number may leave the range.
    unsigned long long number_;
    unsigned long long step_;
    unsigned long long left_ = 0;
};

} // namespace pozhil::engine
