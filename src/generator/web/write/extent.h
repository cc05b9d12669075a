#pragma once

#include <string>

namespace pozhil {

/// A size along one axis in pixels, or a number of children: a constant as far as the source tells it, and besides what
/// only the running page knows, as an expression of the emitted text.
class Extent {
public:
    Extent(float constant = 0.0F) : constant_(constant) {}

    /// What the float \p expression of the emitted text gives.
    static Extent computed(std::string expression);

    bool isConstant() const { return computed_.empty(); }
    bool isNothing() const { return isConstant() && constant_ == 0.0F; }

    /// A float of the emitted text.
    std::string text() const;

    Extent& operator+=(const Extent& other);

    /// How many groups of \p count it makes, the last perhaps with fewer.
    Extent inGroupsOf(float count) const;

    friend Extent operator+(Extent left, const Extent& right) { return left += right; }
    friend Extent operator*(const Extent& left, const Extent& right);
    /// The larger of both.
    friend Extent larger(const Extent& left, const Extent& right);

private:
    float constant_;
    /// A sum of terms; empty for none.
    std::string computed_;
};

Extent larger(const Extent& left, const Extent& right);

/// What several children take of their parent along one axis, each only while it is there.
struct Room {
    Extent sum;
    Extent largest;
    /// How many children there are.
    Extent number;
};

/// How many gaps lie between \p number children.
Extent gapsBetween(const Extent& number);

/// \p extent while \p condition, a bool of the emitted text, holds, else nothing. An empty condition always holds.
Extent onlyWhile(const std::string& condition, const Extent& extent);

} // namespace pozhil
