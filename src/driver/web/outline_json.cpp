#include "driver/web/outline_json.h"

#include "base/json_text.h"

#include <locale>
#include <sstream>

namespace pozhil {
namespace {

std::string numberText(float number) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << number;
    return text.str();
}

std::string namesJson(const std::vector<std::string>& names) {
    std::string list;
    for (const std::string& name : names) {
        list += (list.empty() ? "" : ",") + json::text(name);
    }
    return "[" + list + "]";
}

std::string widgetJson(const OutlinedWidget& widget) {
    std::string members = "\"kind\":" + json::text(widget.kind);
    if (widget.use != WidgetUse::None) {
        members += widget.use == WidgetUse::Link ? R"(,"use":"link")" : R"(,"use":"press")";
    }
    if (widget.least && widget.largest) {
        members += ",\"least\":" + numberText(*widget.least) + ",\"largest\":" + numberText(*widget.largest);
    }
    if (!widget.file.empty()) {
        members += ",\"file\":" + json::text(widget.file) + ",\"name\":" + json::text(widget.name);
    }
    if (!widget.variables.unlessHidden.empty()) {
        members += ",\"unlessHidden\":" + namesJson(widget.variables.unlessHidden);
    }
    if (!widget.variables.onceShown.empty()) {
        members += ",\"onceShown\":" + namesJson(widget.variables.onceShown);
    }
    return "{" + members + "}";
}

} // namespace

std::string outlineJson(const std::map<std::string, std::vector<OutlinedWidget>>& pages) {
    std::string members;
    for (const auto& [name, widgets] : pages) {
        members += (members.empty() ? "" : ",") + json::text(name) + ":" + json::array(widgets, widgetJson);
    }
    return "{" + members + "}";
}

} // namespace pozhil
