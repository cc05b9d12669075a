#pragma once

#include "parser/parser.h"

#include <algorithm>

namespace pozhil {

/// Parts of one node that stand side by side, such as the elements of a list: the tree grows as high as the highest
/// of them, not as all of them together.
class Parser::Siblings {
public:
    explicit Siblings(Parser& parser) : parser_(parser), base_(parser.nesting_), highest_(parser.nesting_) {}
    ~Siblings() {
        next();
        parser_.nesting_ = highest_;
    }
    Siblings(const Siblings&) = delete;
    Siblings& operator=(const Siblings&) = delete;

    /// Begins the next part.
    void next() {
        highest_ = std::max(highest_, parser_.nesting_);
        parser_.nesting_ = base_;
    }

private:
    Parser& parser_;
    int base_;
    int highest_;
};

} // namespace pozhil
