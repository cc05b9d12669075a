#pragma once

#include "parser/token_cursor.h"

#include <algorithm>

namespace pozhil {

/// Keeps trees from growing higher than the native stack bears: whatever walks a tree does so by recursion.
class NestingLimit {
public:
    class SideBySide;

    /// \param cursor where the fault is raised
    /// \param height that the tree has reached already, for a file that is imported
    explicit NestingLimit(TokenCursor& cursor, int height = 0) : cursor_(cursor), height_(height) {}

    NestingLimit(const NestingLimit&) = delete;
    NestingLimit& operator=(const NestingLimit&) = delete;

    /// Counts one more level of the tree.
    /// \throws Fault if that is one too many
    void enter() {
        if (++height_ > MAX_HEIGHT) {
            raise();
        }
    }

    /// Height that the tree under construction has reached at most.
    int height() const { return height_; }

private:
    /// This many levels fit on the stack of every system; nobody writes that much by hand.
    static constexpr int MAX_HEIGHT = 1000;

    [[noreturn]] void raise() const;

    TokenCursor& cursor_;
    int height_;
};

/// Parts that stand side by side in one node, such as the elements of a list: the tree grows as high as the highest of
/// them, not as all of them together.
class NestingLimit::SideBySide {
public:
    explicit SideBySide(NestingLimit& limit)
        : limit_(limit), base_(limit.height_), start_(limit.height_), highest_(limit.height_) {}
    ~SideBySide() {
        next();
        limit_.height_ = highest_;
    }
    SideBySide(const SideBySide&) = delete;
    SideBySide& operator=(const SideBySide&) = delete;

    /// Begins the next part.
    void next() {
        highest_ = std::max(highest_, limit_.height_);
        limit_.height_ = start_;
    }

    /// Begins the next part, which becomes the sibling of one node that holds all before it, as in a chain of operators.
    /// \throws Fault if that node is one level too many
    void wrap();

private:
    NestingLimit& limit_;
    const int base_;
    int start_;
    int highest_;
};

} // namespace pozhil
