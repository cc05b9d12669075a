#include "generator/web/page/widget_table.h"

#include <algorithm>
#include <iterator>

namespace pozhil {

// Every widget: its row ends its file.
extern const WidgetKind TEXT;
extern const WidgetKind EXPANDED;
extern const WidgetKind FLEXIBLE;
extern const WidgetKind FREE_SPACE;
extern const WidgetKind BUTTON;
extern const WidgetKind CHECKBOX;
extern const WidgetKind RADIO;
extern const WidgetKind SWITCH;
extern const WidgetKind SLIDER;
extern const WidgetKind DROPDOWN;
extern const WidgetKind IMAGE;
extern const WidgetKind AVATAR;
extern const WidgetKind DIVIDER;
extern const WidgetKind CARD;
extern const WidgetKind SPINNER;
extern const WidgetKind PROGRESS_BAR;
extern const WidgetKind INFO_PILL;
extern const WidgetKind DIALOG;
extern const WidgetKind BOTTOM_NAVIGATION;
extern const WidgetKind TAB_BAR;
extern const WidgetKind NESTED_PAGE;
extern const WidgetKind GAP;
extern const WidgetKind STACK;
extern const WidgetKind COLUMN;
extern const WidgetKind ROW;
extern const WidgetKind SEARCH_BAR;
extern const WidgetKind SEARCH_FIELD;
extern const WidgetKind WRAP;
extern const WidgetKind CONTAINER;
extern const WidgetKind LIST_VIEW;
extern const WidgetKind GRID_VIEW;
extern const WidgetKind PADDING;
extern const WidgetKind PADDING_RECORD;
extern const WidgetKind TEXT_BUTTON;
extern const WidgetKind TEXT_FIELD;
extern const WidgetKind LIST_TILE;
extern const WidgetKind HTML_INPUT;
extern const WidgetKind SNACK_BAR;

namespace {

constexpr const WidgetKind* WIDGETS[] = {
    &TEXT,
    &EXPANDED,
    &FLEXIBLE,
    &FREE_SPACE,
    &BUTTON,
    &CHECKBOX,
    &RADIO,
    &SWITCH,
    &SLIDER,
    &DROPDOWN,
    &IMAGE,
    &AVATAR,
    &DIVIDER,
    &CARD,
    &SPINNER,
    &PROGRESS_BAR,
    &INFO_PILL,
    &DIALOG,
    &BOTTOM_NAVIGATION,
    &TAB_BAR,
    &NESTED_PAGE,
    &GAP,
    &STACK,
    &COLUMN,
    &ROW,
    &SEARCH_BAR,
    &SEARCH_FIELD,
    &WRAP,
    &CONTAINER,
    &LIST_VIEW,
    &GRID_VIEW,
    &PADDING,
    &PADDING_RECORD,
    &TEXT_BUTTON,
    &TEXT_FIELD,
    &LIST_TILE,
    &HTML_INPUT,
    &SNACK_BAR,
};

} // namespace

const WidgetKind* findWidgetKind(std::string_view word) {
    const auto* const* found = std::find_if(std::begin(WIDGETS), std::end(WIDGETS),
                                            [&](const WidgetKind* kind) { return kind->word == word; });
    return found == std::end(WIDGETS) ? nullptr : *found;
}

} // namespace pozhil
