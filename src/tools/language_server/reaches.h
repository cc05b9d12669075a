#pragma once

#include "tools/language_server/outline.h"

#include <cstddef>
#include <cstdint>

/// Where parts of a source end, by its tokens alone; the number of tokens, or the greatest offset, if they never do.
namespace pozhil::language_server {

/// The token that closes the bracket at a token; that token itself if it opens none.
std::size_t closingBracket(const Outline& outline, std::size_t open);

/// The token at which an element of a list, உருப்படி: name, is known no more: it is known in the brackets that follow those
/// that it stands in.
std::size_t endOfElement(const Outline& outline, std::size_t name);

/// The offset where the body of a function without a name ends: with its block, or with the line, list or bracket that it
/// is in.
/// \param sign the arrow or colon before the body
std::uint32_t endOfLambda(const Outline& outline, std::size_t sign);

} // namespace pozhil::language_server
