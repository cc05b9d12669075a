#pragma once

#include <string>

namespace pozhil {

/// Texts of the emitted program for the edges of a rectangle.
struct PressArea {
    const char* left;
    const char* right;
    const char* top;
    const char* bottom;
};

/// Texts of the emitted program for the corner of a rectangle and its size.
struct CutArea {
    const char* x;
    const char* y;
    const char* width;
    const char* height;
};

/// What lies over what: which of the widgets under the pointer it reaches, and what of them can be seen. An edition that
/// orders them has its program note down, in each frame and in the order of drawing, where widgets stand. This one doesn't:
/// the pointer reaches all that lie under it, and all of its texts are empty.
///
/// Widgets are told by their keys (WidgetWriter::key), as texts of the emitted program.
class Layering {
public:
    Layering() = default;
    Layering(const Layering&) = delete;
    Layering& operator=(const Layering&) = delete;
    virtual ~Layering() = default;

    // The beginning of a condition, which ends in " && " unless it is empty.

    /// The widget takes presses in the area, and lies on top where the pointer is.
    virtual std::string takesPress(const std::string& key, const PressArea& area) const;
    /// The widget shows that the pointer is in the area, and lies on top there. What holds it takes the press.
    virtual std::string takesHover(const std::string& key, const PressArea& area) const;
    /// The button of the mouse was pressed on the widget, and is still down.
    virtual std::string isHeld(const std::string& key) const;
    /// What `begunMenu` has declared.
    virtual std::string isMenuOnTop() const;

    // Whole lines, for a hole alone in its line.

    /// The widget takes presses in the area, where the browser's field stands that \p id, a std::string or its letters, names.
    virtual std::string hasField(const std::string& key, const PressArea& area, const std::string& id) const;
    /// What lies under the area can't be reached. What holds the shield takes the press.
    virtual std::string shields(const PressArea& area) const;
    /// The page, all that has been drawn, can't be reached.
    virtual std::string shieldsPage() const;
    /// Until the end of the block, what takes no presses itself leaves them to this widget. One that only shows that the
    /// pointer is over it leaves them to what holds it in turn.
    virtual std::string holds(const std::string& key, bool takesPresses) const;
    /// Until the end of the block, nothing can be reached that lies out of the area.
    /// \param alsoTexts whether texts and fields can't be seen there either
    virtual std::string cutsTo(const CutArea& area, bool alsoTexts) const;
    /// Before the function that draws a menu over the page: what the function must know of the widget.
    virtual std::string declaredMenu(const std::string& key) const;
    /// At the beginning of that function.
    virtual std::string begunMenu() const;

    /// The function of the drawing library that cuts shapes to what a layout shows of them.
    virtual std::string scissor() const;
};

} // namespace pozhil
