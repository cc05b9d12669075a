#pragma once

#include "analysis/second/resolution.h"

namespace pozhil::second {

/// Tells of what the widgets of a page are given though nothing reads it yet: it would be left out without a word.
void tellUnreadProperties(const Resolution& resolution, const WebAppNode& page);

} // namespace pozhil::second
