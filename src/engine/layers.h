#pragma once

#include <cstdint>

/// What lies over what in a page: a press, and what shows that the pointer is over it, belong to what was drawn last at that
/// place. While a frame is drawn, each widget tells its area in the order of drawing; a press goes by the frame that the user
/// has seen, the one before.
namespace pozhil::engine::layers {

/// A widget, in a list one for each element; 0 is none.
using WidgetKey = std::uint64_t;

/// In pixels of the window, edges included.
struct Area {
    float left;
    float right;
    float top;
    float bottom;
};

/// What the user does as a frame begins.
struct Pointer {
    float x;
    float y;
    bool isDown;
    /// Whether it has been pressed and released since the last frame.
    bool hasClicked;
    /// Who goes without a pointer, by keyboard or with a screen reader, presses the widget of this area rather than a
    /// place: then \p x and \p y are its middle. Null for all others.
    const Area* target;
};

/// Begins a frame: finds what the pointer is over in the last one, and forgets that.
void begin(const Pointer& pointer);

/// Where what is drawn now can be read: the area of what cuts it off. Scripts of the page read its four numbers.
const Area& readable();

/// A widget that takes presses has been drawn.
/// \return whether a press goes to it
bool takesPress(WidgetKey widget, const Area& area);

/// A widget that shows that the pointer is over it has been drawn; presses it leaves to what it is in.
/// \return whether the pointer is over it
bool takesHover(WidgetKey widget, const Area& area);

/// What takes nothing has been drawn: it keeps presses from what lies under it, and leaves them to what it is in.
void shield(const Area& area);

/// Whether the button of the pointer was pressed over this widget last, wherever the pointer is now.
bool isHeld(WidgetKey widget);

/// The open menu of a widget.
WidgetKey menuOf(WidgetKey widget);

/// As long as it lives, what is drawn is in this widget.
class Holder {
public:
    /// \param takesPresses those that nothing in it takes; otherwise what it is in itself gets them
    Holder(WidgetKey widget, bool takesPresses);
    ~Holder();
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;

private:
    WidgetKey press_;
    WidgetKey hover_;
};

/// As long as it lives, what is drawn can't be reached outside of an area.
class Cut {
public:
    /// \param alsoTexts whether it can't be read there either
    Cut(float x, float y, float width, float height, bool alsoTexts);
    ~Cut();
    Cut(const Cut&) = delete;
    Cut& operator=(const Cut&) = delete;

private:
    Area reachable_;
    Area readable_;
};

} // namespace pozhil::engine::layers
