#include "emit/origins.h"

#include <algorithm>

namespace pozhil {

void Origins::begin(std::size_t offset, const void* node) {
    open_.push_back(node);
    marks_.push_back({offset, node, true});
}

void Origins::end(std::size_t offset) {
    open_.pop_back();
    marks_.push_back({offset, open_.empty() ? nullptr : open_.back(), false});
}

const void* Origins::ofLine(std::string_view text, std::size_t line) const {
    std::size_t begin = 0;
    for (std::size_t passed = 1; passed < line && begin != std::string_view::npos; ++passed) {
        begin = text.find('\n', begin);
        begin += begin == std::string_view::npos ? 0 : 1;
    }
    return line == 0 ? nullptr : ofLineAt(text, begin);
}

const void* Origins::ofLineAt(std::string_view text, std::size_t begin) const {
    if (begin >= text.size()) {
        return nullptr;
    }
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    const auto isBefore = [](const Mark& mark, std::size_t offset) { return mark.offset < offset; };
    auto mark = std::lower_bound(marks_.begin(), marks_.end(), begin, isBefore);
    const void* standing = mark == marks_.begin() ? nullptr : (mark - 1)->node;
    const void* first = nullptr;
    for (; mark != marks_.end() && mark->offset < end; ++mark) {
        if (mark->offset == begin) {
            // Of several that begin the line, the innermost.
            first = mark->isBegin ? mark->node : first;
            standing = mark->node;
        } else if (mark->isBegin && first == nullptr) {
            first = mark->node;
        }
    }
    return first == nullptr ? standing : first;
}

} // namespace pozhil
