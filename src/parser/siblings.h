#pragma once

#include "parser/parser.h"

#include <algorithm>

namespace pozhil {

/// Parts that stand side by side in one node, such as the elements of a list: the tree grows as high as the highest of
/// them, not as all of them together.
class Parser::Siblings {
public:
    explicit Siblings(Parser& parser)
        : parser_(parser), base_(parser.nesting_), start_(parser.nesting_), highest_(parser.nesting_) {}
    ~Siblings() {
        next();
        parser_.nesting_ = highest_;
    }
    Siblings(const Siblings&) = delete;
    Siblings& operator=(const Siblings&) = delete;

    /// Begins the next part.
    void next() {
        highest_ = std::max(highest_, parser_.nesting_);
        parser_.nesting_ = start_;
    }

    /// Begins the next part, which becomes the sibling of one node that holds all before it, as in a chain of operators.
    void wrap() {
        next();
        parser_.nesting_ = highest_;
        parser_.enterNesting();
        highest_ = parser_.nesting_;
        start_ = base_ + 1;
        parser_.nesting_ = start_;
    }

private:
    Parser& parser_;
    const int base_;
    int start_;
    int highest_;
};

} // namespace pozhil
