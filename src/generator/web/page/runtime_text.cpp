#include "generator/web/page/runtime_text.h"

#include "emit/placeholder.h"

namespace pozhil::page_runtime {

std::string navigationFrom(std::string_view page) {
    return withPlaceholder(navigation, "\"@START_PAGE@\"", page);
}

std::string bridgeWith(std::string_view entries, std::string_view answer) {
    const std::string withEntries = withPlaceholder(web_bridge, "// @DATABASE_ENTRIES@\n", entries);
    return withPlaceholder(withEntries, "        // @DATABASE_ANSWER@\n", answer);
}

} // namespace pozhil::page_runtime
