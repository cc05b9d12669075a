#include "parser/nesting_limit.h"

#include <algorithm>

namespace pozhil {
namespace {

/// This many levels fit on the stack of every system; nobody writes that much by hand.
constexpr int MAX_NESTING = 1000;

} // namespace

void NestingLimit::enter() {
    if (++height_ > MAX_NESTING) {
        cursor_.பிழை("பொழி-291", cursor_.peek().line);
    }
}

NestingLimit::SideBySide::SideBySide(NestingLimit& limit)
    : limit_(limit), base_(limit.height_), start_(limit.height_), highest_(limit.height_) {}

NestingLimit::SideBySide::~SideBySide() {
    next();
    limit_.height_ = highest_;
}

void NestingLimit::SideBySide::next() {
    highest_ = std::max(highest_, limit_.height_);
    limit_.height_ = start_;
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
