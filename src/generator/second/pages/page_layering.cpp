#include "generator/second/pages/page_layering.h"

namespace pozhil::resolved::writer {
namespace {

constexpr PressArea WINDOW = {"0.0f", "winWidth", "0.0f", "winHeight"};

/// {left, right, top, bottom}
std::string areaText(const PressArea& area) {
    return std::string("{") + area.left + ", " + area.right + ", " + area.top + ", " + area.bottom + "}";
}

} // namespace

std::string PageLayering::takesPress(const std::string& key, const PressArea& area) const {
    return "layers::takesPress(" + key + ", " + areaText(area) + ") && ";
}

std::string PageLayering::takesHover(const std::string& key, const PressArea& area) const {
    return "layers::takesHover(" + key + ", " + areaText(area) + ") && ";
}

std::string PageLayering::isHeld(const std::string& key) const {
    return "layers::isHeld(" + key + ") && ";
}

std::string PageLayering::isMenuOnTop() const {
    return "isMenuOnTop && ";
}

std::string PageLayering::hasField(const std::string& key, const PressArea& area, const std::string& id) const {
    return "page::hasField(" + key + ", " + areaText(area) + ", " + id + ");\n";
}

std::string PageLayering::shields(const PressArea& area) const {
    return "layers::shield(" + areaText(area) + ");\n";
}

std::string PageLayering::shieldsPage() const {
    return shields(WINDOW);
}

std::string PageLayering::holds(const std::string& key, bool takesPresses) const {
    return std::string("const layers::Holder holder(") + key + ", " + (takesPresses ? "true" : "false") + ");\n";
}

std::string PageLayering::declaredMenu(const std::string& key) const {
    return "const layers::WidgetKey menuKey = layers::menuOf(" + key + ");\n";
}

/// While a menu is open it takes all presses, also those that only close it.
std::string PageLayering::begunMenu() const {
    return "const bool isMenuOnTop = page::takesAllPresses(menuKey, " + areaText(WINDOW) + ");\n";
}

std::string PageLayering::cutsTo(const CutArea& area, bool alsoTexts) const {
    return std::string("const layers::Cut cut(") + area.x + ", " + area.y + ", " + area.width + ", " + area.height +
           ", " + (alsoTexts ? "true" : "false") + ");\n";
}

} // namespace pozhil::resolved::writer
