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
    return "page::takesPress(" + key + ", " + areaText(area) + ") && ";
}

std::string PageLayering::takesHover(const std::string& key, const PressArea& area) const {
    return "page::takesHover(" + key + ", " + areaText(area) + ") && ";
}

std::string PageLayering::isHeld(const std::string& key) const {
    return "page::isHeld(" + key + ") && ";
}

std::string PageLayering::isMenuOnTop() const {
    return "isMenuOnTop && ";
}

std::string PageLayering::owns(const std::string& key, const PressArea& area) const {
    return "page::takesPress(" + key + ", " + areaText(area) + ");\n";
}

std::string PageLayering::shields(const PressArea& area) const {
    return "page::shield(" + areaText(area) + ");\n";
}

std::string PageLayering::shieldsPage() const {
    return shields(WINDOW);
}

std::string PageLayering::holds(const std::string& key, bool takesPresses) const {
    return std::string("const page::Holder holder(") + key + ", " + (takesPresses ? "true" : "false") + ");\n";
}

std::string PageLayering::declaredMenu(const std::string& key) const {
    return "const page::WidgetKey menuKey = page::menuOf(" + key + ");\n";
}

/// While a menu is open it takes all presses, also those that only close it.
std::string PageLayering::begunMenu() const {
    return "const bool isMenuOnTop = page::takesPress(menuKey, " + areaText(WINDOW) + ");\n";
}

} // namespace pozhil::resolved::writer
