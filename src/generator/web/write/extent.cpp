#include "generator/web/write/extent.h"

#include "emit/emitted_block.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace pozhil {

Extent Extent::computed(std::string expression) {
    Extent extent;
    extent.computed_ = std::move(expression);
    return extent;
}

std::string Extent::text() const {
    if (isConstant()) {
        return floatConstant(constant_);
    }
    return constant_ == 0.0F ? "(" + computed_ + ")" : "(" + floatConstant(constant_) + " + " + computed_ + ")";
}

Extent& Extent::operator+=(const Extent& other) {
    constant_ += other.constant_;
    if (!other.isConstant()) {
        computed_ += (computed_.empty() ? "" : " + ") + other.computed_;
    }
    return *this;
}

Extent Extent::inGroupsOf(float count) const {
    if (isConstant()) {
        return std::ceil(constant_ / count);
    }
    return computed("std::ceil(" + text() + " / " + floatConstant(count) + ")");
}

Extent operator*(const Extent& left, const Extent& right) {
    if (left.isConstant() && right.isConstant()) {
        return left.constant_ * right.constant_;
    }
    return left.isNothing() || right.isNothing() ? Extent() : Extent::computed(left.text() + " * " + right.text());
}

Extent larger(const Extent& left, const Extent& right) {
    if (left.isConstant() && right.isConstant()) {
        return std::max(left.constant_, right.constant_);
    }
    return Extent::computed("std::max(" + left.text() + ", " + right.text() + ")");
}

Extent gapsBetween(const Extent& number) {
    return larger(number + -1.0F, 0.0F);
}

Extent onlyWhile(const std::string& condition, const Extent& extent) {
    if (condition.empty() || extent.isNothing()) {
        return extent;
    }
    return Extent::computed("(" + condition + " ? " + extent.text() + " : 0.0f)");
}

} // namespace pozhil
