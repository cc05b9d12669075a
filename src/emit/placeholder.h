#pragma once

#include <string>
#include <string_view>

namespace pozhil {

/// A text that stands as it is but for one place.
///
/// \param placeholder what \p text has in that place
/// \return \p text with the first \p placeholder replaced by \p value
/// \throws std::logic_error if it has none
std::string withPlaceholder(std::string_view text, std::string_view placeholder, std::string_view value);

} // namespace pozhil
