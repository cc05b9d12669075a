#include "generator/web/page/widget_outline.h"

#include "generator/web/write/literals.h"
#include "generator/web/write/widget_properties.h"
#include "language/property_words.h"
#include "language/widget_words.h"

#include <algorithm>
#include <array>
#include <deque>
#include <utility>

namespace pozhil {
namespace {

using language::widget::BOX_STYLE;

constexpr std::array<std::string_view, 7> OUTLINED = {
    language::widget::CONTAINER,   language::widget::LIST_TILE, language::widget::CHECKBOX, language::widget::BUTTON,
    language::widget::TEXT_BUTTON, language::widget::SLIDER,    language::widget::IMAGE};

/// These draw all their children, one after the other.
constexpr std::array<std::string_view, 11> PARENTS = {
    language::widget::COLUMN,    language::widget::ROW,     language::widget::STACK,     language::widget::WRAP,
    language::widget::LIST_VIEW, language::widget::PADDING, language::widget::GRID_VIEW, language::widget::CONTAINER,
    language::widget::CARD,      language::widget::DIALOG,  language::widget::PAGE};

/// These draw their first child.
constexpr std::array<std::string_view, 4> WRAPPERS = {language::widget::EXPANDED, language::widget::FLEXIBLE,
                                                      language::widget::CHECKBOX, language::widget::AVATAR};

template <std::size_t COUNT> bool isOneOf(const std::array<std::string_view, COUNT>& kinds, const WidgetNode& widget) {
    return std::find(kinds.begin(), kinds.end(), widget.kind) != kinds.end();
}

/// Whether what a press does is to go to another page, and no more.
bool leadsToPage(const Expression* handler) {
    if (const auto* lambda = nodeCast<LambdaExpression>(handler)) {
        return leadsToPage(lambda->body.get());
    }
    if (const auto* group = nodeCast<GroupingExpression>(handler)) {
        return leadsToPage(group->inner.get());
    }
    const auto* call = nodeCast<CallExpression>(handler);
    const auto* callee = call == nullptr ? nullptr : nodeCast<VariableAccess>(call->callee.get());
    return callee != nullptr && callee->name == "செல்க";
}

WidgetUse useOf(const WidgetNode& widget) {
    const Expression* handler = findProperty(widget, {"அழுத்தினால்"});
    if (leadsToPage(handler)) {
        return WidgetUse::Link;
    }
    const bool isPressed = handler != nullptr || !widget.eventStatements.empty() ||
                           widget.kind == language::widget::BUTTON || widget.kind == language::widget::TEXT_BUTTON;
    return isPressed ? WidgetUse::Press : WidgetUse::None;
}

/// The number that a property gives, \p usual if there is none; nothing for what is known in the running page only.
std::optional<float> numberIn(const WidgetNode& widget, const char* name, float usual) {
    const Expression* value = findProperty(widget, {name});
    return value == nullptr ? usual : constantOf(value);
}

/// What is said of a picture: what the source says it shows, else what its file is called.
std::string pictureName(const WidgetNode& picture, const std::string& file) {
    if (const auto* description = nodeCast<StringLiteral>(findProperty(picture, {"விளக்கம்"}))) {
        return description->value;
    }
    const std::size_t begin = file.find_last_of('/') + 1;
    std::string name = file.substr(begin, file.find_last_of('.') - begin);
    std::replace(name.begin(), name.end(), '_', ' ');
    return name;
}

/// Whether \p widget is a page within the page \p shown that is never drawn there, since it has another name.
bool isHiddenPage(const WidgetNode& widget, const std::string& shown) {
    return widget.kind == language::widget::PAGE && pageNameIn(widget) != shown;
}

/// The walk over one page in the order of drawing.
class OutlineWalk {
public:
    explicit OutlineWalk(std::string page) : page_(std::move(page)) {}

    std::vector<OutlinedWidget> outline(const WidgetNode& root) {
        visit(root, {});
        // Dialogs wait until the page is drawn, and those in them until they are.
        while (!dialogs_.empty()) {
            const std::pair<const WidgetNode*, ShowingVariables> next = std::move(dialogs_.front());
            dialogs_.pop_front();
            visitChildren(*next.first, next.second);
        }
        return std::move(widgets_);
    }

private:
    void visit(const WidgetNode& widget, ShowingVariables variables) {
        if (isHiddenPage(widget, page_)) {
            return;
        }
        const bool isDialog = widget.kind == language::widget::DIALOG;
        const std::string variable = textOf(findProperty(widget, {language::property::VISIBILITY.data()}));
        if (!variable.empty()) {
            (isDialog ? variables.onceShown : variables.unlessHidden).push_back(variable);
        }
        if (isDialog) {
            dialogs_.emplace_back(&widget, std::move(variables));
            return;
        }
        if (isOneOf(OUTLINED, widget)) {
            add(widget, variables);
        }
        visitChildren(widget, variables);
    }

    void add(const WidgetNode& widget, const ShowingVariables& variables) {
        constexpr float LARGEST = 100.0F;
        OutlinedWidget outlined;
        outlined.kind = widget.kind;
        outlined.use = useOf(widget);
        outlined.variables = variables;
        if (widget.kind == language::widget::SLIDER) {
            outlined.least = numberIn(widget, "குறைந்தபட்சம்", 0.0F);
            outlined.largest = numberIn(widget, "அதிகபட்சம்", LARGEST);
        }
        if (widget.kind == language::widget::IMAGE) {
            outlined.file = pictureFile(widget);
            outlined.name = pictureName(widget, outlined.file);
        }
        widgets_.push_back(std::move(outlined));
    }

    void visitChildren(const WidgetNode& widget, const ShowingVariables& variables) {
        // Widgets that stand in properties: what a tile is made of, and what stands in front of a field.
        for (const char* slot : {"முன்னணி", "தலைப்பு", "துணைத்_தலைப்பு", "பின்னணி_விட்ஜெட்"}) {
            if (const WidgetNode* part = asWidget(findProperty(widget, {slot}))) {
                visit(*part, variables);
            }
        }
        const auto children = childWidgets(widget);
        const std::size_t drawn = isOneOf(PARENTS, widget)                         ? children.size()
                                  : isOneOf(WRAPPERS, widget) && !children.empty() ? 1
                                                                                   : 0;
        for (std::size_t i = 0; i < drawn; ++i) {
            if (children[i]->kind != BOX_STYLE) {
                visit(*children[i], variables);
            }
        }
    }

    std::string page_;
    std::vector<OutlinedWidget> widgets_;
    std::deque<std::pair<const WidgetNode*, ShowingVariables>> dialogs_;
};

/// The picture that covers a page, which is drawn before all widgets; nothing if there is none.
std::optional<OutlinedWidget> backgroundOf(const WebAppNode& app) {
    const WidgetNode* header = asWidget(app.header.get());
    const std::string file = header == nullptr ? "" : textOf(findProperty(*header, {"பின்னணிபடம்"}));
    if (file.empty()) {
        return std::nullopt;
    }
    OutlinedWidget background;
    background.kind = language::widget::IMAGE;
    background.file = file;
    return background;
}

} // namespace

std::map<std::string, std::vector<OutlinedWidget>> outlineOf(const Application& application) {
    std::map<std::string, std::vector<OutlinedWidget>> pages;
    for (const WebAppNode* app : application.pages) {
        if (const WidgetNode* root = asWidget(app->uiBody.get())) {
            std::vector<OutlinedWidget> widgets = OutlineWalk(pageName(*app)).outline(*root);
            std::vector<OutlinedWidget>& page = pages[pageName(*app)];
            if (std::optional<OutlinedWidget> background = backgroundOf(*app)) {
                page.push_back(std::move(*background));
            }
            page.insert(page.end(), std::make_move_iterator(widgets.begin()), std::make_move_iterator(widgets.end()));
        }
    }
    return pages;
}

} // namespace pozhil
