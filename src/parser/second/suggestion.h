#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pozhil::second {

/// What may have been meant by \p word, as a sentence: the nearest of \p known. Empty if none is near.
std::string suggestionOf(std::string_view word, const std::vector<std::string_view>& known);

} // namespace pozhil::second
