#pragma once

#include <algorithm>

namespace pozhil::second {

/// Keeps trees from growing higher than the native stack bears: whatever walks a tree does so by recursion.
///
/// The height is that of the node that is parsed, measured from the root of the file. Parts that stand side by side in
/// one node don't add up: each begins anew.
class TreeHeight {
public:
    class Parts;

    TreeHeight() = default;
    TreeHeight(const TreeHeight&) = delete;
    TreeHeight& operator=(const TreeHeight&) = delete;

    /// Counts one more level.
    /// \return false if that is one too many
    bool enter() { return ++height_ <= MAX_HEIGHT; }

private:
    /// Blocks inside each other, or values, that nobody writes by hand, and that fit on the stack of every system.
    static constexpr int MAX_HEIGHT = 1200;

    int height_ = 0;
};

/// The parts of one node. When they end, the height is that of the highest.
class TreeHeight::Parts {
public:
    explicit Parts(TreeHeight& height)
        : height_(height), begin_(height.height_), start_(height.height_), highest_(height.height_) {}
    ~Parts() {
        next();
        height_.height_ = highest_;
    }
    Parts(const Parts&) = delete;
    Parts& operator=(const Parts&) = delete;

    /// Begins the next part.
    void next() {
        highest_ = std::max(highest_, height_.height_);
        height_.height_ = start_;
    }

    /// Begins the next part, beside one node that holds all parts so far, as in a chain of operators.
    /// \return false if that node is one level too many
    bool wrap() {
        next();
        const bool fits = ++highest_ <= MAX_HEIGHT;
        start_ = begin_ + 1;
        height_.height_ = start_;
        return fits;
    }

private:
    TreeHeight& height_;
    const int begin_;
    int start_;
    int highest_;
};

} // namespace pozhil::second
