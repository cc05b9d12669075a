#include "generator/web/write/layering.h"

namespace pozhil {

std::string Layering::takesPress(const std::string&, const PressArea&) const {
    return "";
}

std::string Layering::takesHover(const std::string&, const PressArea&) const {
    return "";
}

std::string Layering::isHeld(const std::string&) const {
    return "";
}

std::string Layering::isMenuOnTop() const {
    return "";
}

std::string Layering::hasField(const std::string&, const PressArea&, const std::string&) const {
    return "";
}

std::string Layering::shields(const PressArea&) const {
    return "";
}

std::string Layering::shieldsPage() const {
    return "";
}

std::string Layering::holds(const std::string&, bool) const {
    return "";
}

std::string Layering::declaredMenu(const std::string&) const {
    return "";
}

std::string Layering::begunMenu() const {
    return "";
}

std::string Layering::cutsTo(const CutArea&, bool) const {
    return "";
}

std::string Layering::scissor() const {
    return "nvgScissor";
}

} // namespace pozhil
