#include "support/tree_writer.h"

#include <sstream>

namespace pozhil::test {
namespace {

std::string numeral(float value) {
    std::ostringstream text;
    text << value;
    return text.str();
}

/// The words, each behind a blank; empty ones are left out.
std::string joined(const std::vector<std::string>& words) {
    std::string all;
    for (const std::string& word : words) {
        all += word.empty() ? "" : " " + word;
    }
    return all;
}

/// name=value, nothing for the default.
template <class Value> std::string changed(const char* name, const Value& value, const Value& byDefault) {
    std::ostringstream text;
    if (value != byDefault) {
        text << name << "=" << value;
    }
    return text.str();
}

/// The fields of a style that differ from its defaults; nothing for the default style.
std::string styleText(const TextStyle& style) {
    const TextStyle none;
    const std::string fields =
        joined({changed("color", style.color, none.color), changed("size", style.size, none.size),
                changed("weight", style.weight, none.weight), changed("align", style.align, none.align),
                changed("font", style.font, none.font), changed("underline", style.underline, none.underline)});
    return fields.empty() ? "" : "(Style" + fields + ")";
}

std::string animationText(const AnimationNode& animation) {
    std::string text = "(Animation " + numeral(animation.duration) + " " + animation.curve;
    for (const auto& [key, value] : animation.numericTargets) {
        text += " " + key + "=" + numeral(value);
    }
    for (const auto& [key, value] : animation.stringTargets) {
        text += " " + key + "='" + value + "'";
    }
    return text + (animation.condition.empty() ? "" : " if " + animation.condition) + ")";
}

/// The name of a widget's class without "Node".
std::string className(const WidgetNode& widget) {
    const std::vector<std::pair<const char*, bool>> classes = {
        {"Column", as<ColumnNode>(&widget) != nullptr},     {"Row", as<RowNode>(&widget) != nullptr},
        {"Expanded", as<ExpandedNode>(&widget) != nullptr}, {"Flexible", as<FlexibleNode>(&widget) != nullptr},
        {"GridView", as<GridViewNode>(&widget) != nullptr}, {"ListView", as<ListViewNode>(&widget) != nullptr},
        {"Padding", as<PaddingNode>(&widget) != nullptr},   {"Container", as<ContainerNode>(&widget) != nullptr},
        {"SnackBar", as<SnackBarNode>(&widget) != nullptr}, {"Header", as<HeaderNode>(&widget) != nullptr},
        {"Each", as<EachNode>(&widget) != nullptr},
    };
    for (const auto& [name, isIt] : classes) {
        if (isIt) {
            return name;
        }
    }
    return "Widget";
}

/// What the widget's own class adds, as far as it differs from the defaults.
std::string ownFields(const WidgetNode& widget) {
    if (const auto* flexible = as<FlexibleNode>(&widget)) {
        return "flex=" + std::to_string(flexible->flex);
    }
    if (const auto* each = as<EachNode>(&widget)) {
        return each->element.value;
    }
    if (const auto* padding = as<PaddingNode>(&widget)) {
        return changed("padding", padding->padding, 0.0F);
    }
    if (const auto* bar = as<SnackBarNode>(&widget)) {
        const bool isLast = !bar->children.empty() && bar->content == bar->children.back().get();
        const std::string content = isLast ? "content" : bar->content == nullptr ? "" : "content?";
        const std::string fields = joined({content, changed("background", bar->background, std::string("#333333")),
                                           changed("durationMs", bar->durationMs, 3000)});
        return fields.empty() ? "" : fields.substr(1);
    }
    return "";
}

} // namespace

std::string TreeWriter::widget(const Statement* statement) {
    const auto* widget = as<WidgetNode>(statement);
    return widget == nullptr ? "" : node(className(*widget).c_str(), widget->line, widget->kind, parts(*widget));
}

std::string TreeWriter::parts(const WidgetNode& widget) {
    std::string text;
    append(text, widget.alignment == சீரமைப்பு_வகை::மேல்_இடது
                     ? ""
                     : "align=" + std::to_string(static_cast<std::int32_t>(widget.alignment)));
    append(text, ownFields(widget));
    append(text, part(widget.properties));
    append(text, styleText(widget.style));
    append(text, widget.animation == nullptr ? "" : animationText(*widget.animation));
    append(text, widget.eventStatements.empty() ? "" : "(Event " + part(widget.eventStatements) + ")");
    append(text, part(widget.children));
    return text;
}

std::string TreeWriter::application(const Statement* statement) {
    const std::int32_t line = statement->line;
    if (const auto* app = as<WebAppNode>(statement)) {
        return node("WebApp", line, app->name, app->databaseManager, app->header, app->uiBody, app->definition,
                    app->properties);
    }
    if (const auto* manager = as<DatabaseManagerNode>(statement)) {
        return node("DatabaseManager", line, manager->firebaseConfig);
    }
    if (const auto* config = as<FirebaseConfigNode>(statement)) {
        return node("FirebaseConfig", line, config->properties);
    }
    if (const auto* logic = as<LogicBlockNode>(statement)) {
        return node("LogicBlock", line, logic->block);
    }
    if (const auto* read = as<RTDBReadStatement>(statement)) {
        return node("RTDBRead", line, read->path, read->body);
    }
    return "";
}

std::string TreeWriter::database(const Expression* expression) {
    const std::int32_t line = expression->line;
    if (const auto* insert = as<RTDBInsertExpression>(expression)) {
        return node("RTDBInsert", line, insert->path, insert->data);
    }
    if (const auto* update = as<RTDBUpdateExpression>(expression)) {
        return node("RTDBUpdate", line, update->path, update->data);
    }
    if (const auto* erase = as<RTDBDeleteExpression>(expression)) {
        return node("RTDBDelete", line, erase->path);
    }
    if (const auto* slot = as<WidgetExpression>(expression)) {
        return node("WidgetValue", line, slot->widget);
    }
    return "";
}

} // namespace pozhil::test
