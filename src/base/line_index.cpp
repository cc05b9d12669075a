#include "base/line_index.h"

#include <algorithm>

namespace pozhil {

LineIndex::LineIndex(std::string_view text) : begins_{0} {
    for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n', end + 1)) {
        begins_.push_back(end + 1);
    }
}

std::size_t LineIndex::lineAt(std::size_t offset) const {
    const auto after = std::upper_bound(begins_.begin(), begins_.end(), offset);
    return static_cast<std::size_t>(after - begins_.begin());
}

} // namespace pozhil
