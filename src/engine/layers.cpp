#include "engine/layers.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace pozhil::engine::layers {
namespace {

constexpr Area EVERYWHERE = {-1e6F, 1e6F, -1e6F, 1e6F};
/// Numbers of widgets stay below it.
constexpr WidgetKey MENU = WidgetKey{1} << 63U;

/// Who gets what is done at a place.
struct Reached {
    WidgetKey press = 0;
    WidgetKey hover = 0;
};

struct Layer {
    Area area;
    Reached reached;
};

/// What has been drawn in this frame, in the order of drawing. Never destroyed, since a page has no end.
std::vector<Layer>& drawn() {
    static auto* const layers = new std::vector<Layer>;
    return *layers;
}

/// What the pointer was over in the frame that the user has seen last.
Reached topmost;
/// What that which is drawn now is in.
Reached holding;
Area reachableNow = EVERYWHERE;
Area readableNow = EVERYWHERE;
bool wasDown = false;
WidgetKey held = 0;

bool has(const Area& area, float x, float y) {
    return x >= area.left && x <= area.right && y >= area.top && y <= area.bottom;
}

bool has(const Area& area, const Area& other) {
    return has(area, other.left, other.top) && has(area, other.right, other.bottom);
}

Area common(const Area& one, const Area& other) {
    return {std::max(one.left, other.left), std::min(one.right, other.right), std::max(one.top, other.top),
            std::min(one.bottom, other.bottom)};
}

float difference(const Area& one, const Area& other) {
    return std::abs(one.left - other.left) + std::abs(one.right - other.right) + std::abs(one.top - other.top) +
           std::abs(one.bottom - other.bottom);
}

Reached layerAt(float x, float y) {
    const auto found =
        std::find_if(drawn().rbegin(), drawn().rend(), [x, y](const Layer& layer) { return has(layer.area, x, y); });
    return found == drawn().rend() ? Reached() : found->reached;
}

/// The widget itself, whatever stands over its middle, unless that covers all of it.
Reached layerOf(const Area& wanted, float x, float y) {
    Layer best = {EVERYWHERE, {}};
    for (const Layer& layer : drawn()) {
        if (has(layer.area, x, y) && (difference(layer.area, wanted) <= difference(best.area, wanted) ||
                                      (has(layer.area, wanted) && layer.reached.press != best.reached.press))) {
            best = layer;
        }
    }
    return best.reached;
}

void add(const Area& area, Reached reached) {
    // Most pages have more that takes nothing than what does, and it shields nothing as long as there is nothing under it.
    if (reached.press != 0 || reached.hover != 0 || !drawn().empty()) {
        drawn().push_back({common(area, reachableNow), reached});
    }
}

} // namespace

void begin(const Pointer& pointer) {
    topmost =
        pointer.target != nullptr ? layerOf(*pointer.target, pointer.x, pointer.y) : layerAt(pointer.x, pointer.y);
    drawn().clear();
    if (pointer.hasClicked || (pointer.isDown && !wasDown)) {
        held = topmost.press;
    }
    wasDown = pointer.isDown;
}

const Area& readable() {
    return readableNow;
}

bool takesPress(WidgetKey widget, const Area& area) {
    add(area, {widget, widget});
    return topmost.press == widget;
}

bool takesHover(WidgetKey widget, const Area& area) {
    add(area, {holding.press, widget});
    return topmost.hover == widget;
}

void shield(const Area& area) {
    add(area, holding);
}

bool isHeld(WidgetKey widget) {
    return held == widget;
}

WidgetKey menuOf(WidgetKey widget) {
    return widget | MENU;
}

Holder::Holder(WidgetKey widget, bool takesPresses) : press_(holding.press), hover_(holding.hover) {
    holding = {takesPresses ? widget : press_, widget};
}

Holder::~Holder() {
    holding = {press_, hover_};
}

Cut::Cut(float x, float y, float width, float height, bool alsoTexts)
    : reachable_(reachableNow), readable_(readableNow) {
    const Area area = {x, x + width, y, y + height};
    reachableNow = common(area, reachableNow);
    if (alsoTexts) {
        readableNow = common(area, readableNow);
    }
}

Cut::~Cut() {
    reachableNow = reachable_;
    readableNow = readable_;
}

} // namespace pozhil::engine::layers
