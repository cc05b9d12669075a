#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace pozhil::second {

/// \p text in Unicode's normal form C, in which a vowel sign typed in two parts is the sign typed as one. A text that is
/// no UTF-8 stays as it is.
std::string normalForm(std::string_view text);

/// The offset of the first byte of \p text that begins no UTF-8 character; nothing if all of it is UTF-8.
std::optional<std::size_t> firstInvalidByte(std::string_view text);

} // namespace pozhil::second
