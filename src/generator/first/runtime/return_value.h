#pragma once

/// A variable that generated programs have between those of the page, where its place in the text is fixed.

#include "standard_headers.h"

// --- emitted from here ---
std::any fn_return_value;
