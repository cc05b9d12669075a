#pragma once

#include "generator/web/page/widget_outline.h"

#include <map>
#include <string>
#include <vector>

namespace pozhil {

/// The outline as the page reads it: an object with an array for each page. A widget has a kind; use ("press", "link"),
/// least and largest, unlessHidden and onceShown where there is something to say.
std::string outlineJson(const std::map<std::string, std::vector<OutlinedWidget>>& pages);

} // namespace pozhil
