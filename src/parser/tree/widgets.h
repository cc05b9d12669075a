#pragma once

#include "language/widget_words.h"
#include "parser/tree/animation.h"
#include "parser/tree/application.h"
#include "scanner/token.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace pozhil {

/// Where a widget puts its content; each value is named by the word that the source writes.
enum class சீரமைப்பு_வகை : std::int32_t {
    மேல்_இடது,
    மேல்_மையம்,
    மேல்_வலது,
    மைய_இடது,
    மையம்,
    மைய_வலது,
    கீழ்_இடது,
    கீழ்_மையம்,
    கீழ்_வலது
};

/// How a widget's text looks. The size is in pixels.
struct TextStyle {
    std::string color = "#000000";
    float size = 16.0F;
    std::string weight = "normal";
    std::string align = "left";
    std::string font;
    bool underline = false;
};

/// Size of the window that an application asks for.
struct ScreenConfig {
    bool useDefault = true;
    float width = 0;
    float height = 0;
};

/// A widget. Kinds without a class of their own are told apart by kind, the source's word.
struct WidgetNode : Statement {
    WidgetNode(std::string_view theKind, PropertyMap theProperties, StatementList theChildren, சீரமைப்பு_வகை theAlignment,
               bool theFlag = false)
        : kind(theKind), properties(std::move(theProperties)), children(std::move(theChildren)),
          alignment(theAlignment), flag(theFlag) {}

    std::string kind;
    PropertyMap properties;
    StatementList children;
    std::string eventName;
    /// Body of a press handler that is written as statements.
    StatementList eventStatements;
    சீரமைப்பு_வகை alignment;
    bool flag;
    TextStyle style;
    std::unique_ptr<AnimationNode> animation;
};

/// A widget that stands where a value is expected, such as after "=".
struct WidgetExpression : Expression {
    explicit WidgetExpression(std::unique_ptr<WidgetNode> theWidget) : widget(std::move(theWidget)) {}

    std::unique_ptr<WidgetNode> widget;
};

/// நெடுவரிசை: children one below the other.
struct ColumnNode : WidgetNode {
    ColumnNode(StatementList theChildren, சீரமைப்பு_வகை theAlignment)
        : WidgetNode(language::widget::COLUMN, {}, std::move(theChildren), theAlignment) {}
};

/// கிடைவரிசை: children side by side.
struct RowNode : WidgetNode {
    RowNode(StatementList theChildren, சீரமைப்பு_வகை theAlignment)
        : WidgetNode(language::widget::ROW, {}, std::move(theChildren), theAlignment) {}
};

/// விரிவாக்கம்: takes the free space.
struct ExpandedNode : WidgetNode {
    explicit ExpandedNode(StatementList theChildren)
        : WidgetNode(language::widget::EXPANDED, {}, std::move(theChildren), சீரமைப்பு_வகை::மேல்_இடது) {}
};

/// நெகிழ்வு: takes a share of the free space.
struct FlexibleNode : WidgetNode {
    FlexibleNode(int theFlex, StatementList theChildren)
        : WidgetNode(language::widget::FLEXIBLE, {}, std::move(theChildren), சீரமைப்பு_வகை::மேல்_இடது), flex(theFlex) {}

    int flex;
};

/// கட்டம்_காட்சி: children in a grid.
struct GridViewNode : WidgetNode {
    explicit GridViewNode(StatementList theChildren)
        : WidgetNode(language::widget::GRID_VIEW, {}, std::move(theChildren), சீரமைப்பு_வகை::மேல்_இடது) {}
};

/// பட்டியல்_காட்சி: a scrolling list.
struct ListViewNode : WidgetNode {
    explicit ListViewNode(StatementList theChildren)
        : WidgetNode(language::widget::LIST_VIEW, {}, std::move(theChildren), சீரமைப்பு_வகை::மேல்_இடது) {}
};

/// உள்_இவே: space around its child.
struct PaddingNode : WidgetNode {
    PaddingNode() : WidgetNode(language::widget::PADDING_MISSPELT, {}, {}, சீரமைப்பு_வகை::மேல்_இடது) {}

    float padding = 0;
};

/// பெட்டி: a box.
struct ContainerNode : WidgetNode {
    ContainerNode(StatementList theChildren, சீரமைப்பு_வகை theAlignment, bool theFlag = false)
        : WidgetNode(language::widget::CONTAINER, {}, std::move(theChildren), theAlignment, theFlag) {}

    float width = 0;
    float height = 0;
    float radius = 0;
    std::string background = "#000000";
    std::string backgroundImage;
};

/// அறிவிப்பு_பட்டை: a message that slides in for a while.
struct SnackBarNode : WidgetNode {
    explicit SnackBarNode(StatementList theChildren, bool theFlag = false)
        : WidgetNode(language::widget::SNACK_BAR, {}, std::move(theChildren), சீரமைப்பு_வகை::மேல்_இடது, theFlag) {}

    /// The last of children, null when the bar holds only a text
    WidgetNode* content = nullptr;
    std::string background = "#333333";
    int durationMs = 3000;
    std::string direction = "கீழ்_இருந்து_மேல்";
    float progress = 0;
    float elapsed = 0;
    bool startHidden = true;
};

/// ஒவ்வொன்றும்: its children, once for each element of a list. Its kind is the word; the list and the key of an element
/// are properties.
struct EachNode : WidgetNode {
    EachNode(std::string_view theKind, Token theElement)
        : WidgetNode(theKind, {}, {}, சீரமைப்பு_வகை::மேல்_இடது), element(std::move(theElement)) {}

    /// The name of the element.
    Token element;
};

/// தலைமை: title, background and screen size of an application.
struct HeaderNode : WidgetNode {
    HeaderNode(std::string theKind, PropertyMap theProperties, StatementList theChildren, ScreenConfig theScreen,
               bool theFlag = false)
        : WidgetNode(std::move(theKind), std::move(theProperties), std::move(theChildren), சீரமைப்பு_வகை::மேல்_இடது,
                     theFlag),
          screen(theScreen) {}

    ScreenConfig screen;
};

} // namespace pozhil
