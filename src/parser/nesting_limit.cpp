#include "parser/nesting_limit.h"

namespace pozhil {

void NestingLimit::raise() const {
    cursor_.பிழை("பொழி-291", cursor_.peek().line);
}

void NestingLimit::SideBySide::wrap() {
    next();
    limit_.height_ = highest_;
    limit_.enter();
    highest_ = limit_.height_;
    start_ = base_ + 1;
    limit_.height_ = start_;
}

} // namespace pozhil
