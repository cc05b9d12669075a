#include "generator/web/page/widget_table.h"

#include <algorithm>

namespace pozhil {

const WidgetKind* findWidgetKind(std::string_view word) {
    const language::Rows<const WidgetKind*> kinds = widgetKinds();
    const auto* const* found =
        std::find_if(kinds.begin(), kinds.end(), [&](const WidgetKind* kind) { return kind->word == word; });
    return found == kinds.end() ? nullptr : *found;
}

} // namespace pozhil
