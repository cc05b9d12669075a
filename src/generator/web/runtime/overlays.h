#pragma once

/// What is drawn over the page when the rest of the frame is done.

#include "page_headers.h"

// --- emitted from here ---
std::vector<std::function<void()>> g_overlays;
