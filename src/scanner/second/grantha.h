#pragma once

#include <string>
#include <string_view>

namespace pozhil::second {

/// A word with the letters of Tamil in place of the grantha letters ஜ ஷ ஸ ஹ, as they are usually written: பாரன்கீட் for
/// பாரன்ஹீட், சிறீ for ஸ்ரீ.
std::string withoutGrantha(std::string_view word);

} // namespace pozhil::second
