#pragma once

#include "generator/web/write/layering.h"

namespace pozhil::resolved::writer {

/// The layers of the second edition's pages: a press reaches what was drawn last where the pointer is (page_layers.cpp.in).
class PageLayering final : public Layering {
public:
    std::string takesPress(const std::string& key, const PressArea& area) const override;
    std::string takesHover(const std::string& key, const PressArea& area) const override;
    std::string isHeld(const std::string& key) const override;
    std::string isMenuOnTop() const override;
    std::string hasField(const std::string& key, const PressArea& area, const std::string& id) const override;
    std::string shields(const PressArea& area) const override;
    std::string shieldsPage() const override;
    std::string holds(const std::string& key, bool takesPresses) const override;
    std::string declaredMenu(const std::string& key) const override;
    std::string begunMenu() const override;
    std::string cutsTo(const CutArea& area, bool alsoTexts) const override;
    /// What lies in a layout that is cut itself is cut by both.
    std::string scissor() const override { return "nvgIntersectScissor"; }
};

} // namespace pozhil::resolved::writer
