#include "generator/web/page/application.h"

#include "generator/web/write/literals.h"
#include "generator/web/write/widget_properties.h"
#include "language/widget_words.h"

#include <optional>
#include <utility>

namespace pozhil {
namespace {

/// The property \p name of \p widget if it is a literal of the class \p Literal, null otherwise.
template <class Literal> const Literal* literalProperty(const WidgetNode& widget, const char* name) {
    return nodeCast<Literal>(findProperty(widget, {name}));
}

const WidgetNode* headerOf(const WebAppNode& app) {
    return asWidget(app.header.get());
}

const StringLiteral* nameOf(const WebAppNode& app) {
    const WidgetNode* header = headerOf(app);
    return header == nullptr ? nullptr : literalProperty<StringLiteral>(*header, "பக்கம்");
}

bool asksToComeFirst(const WebAppNode& app) {
    const auto* wish = literalProperty<BooleanLiteral>(*headerOf(app), "ஆரம்ப_பக்கம்");
    return wish != nullptr && wish->value == "மெய்";
}

std::string startPageOf(const std::vector<const WebAppNode*>& pages) {
    std::optional<std::string> startPage;
    for (const WebAppNode* page : pages) {
        const StringLiteral* name = nameOf(*page);
        if (name != nullptr && (!startPage || asksToComeFirst(*page))) {
            startPage = name->value;
        }
    }
    return startPage.value_or(language::property::UNNAMED_PAGE);
}

/// A string, or a colour as the source writes it; nothing for any other value.
std::optional<std::string> writtenText(const Expression* value) {
    if (const auto* text = nodeCast<StringLiteral>(value)) {
        return text->value;
    }
    if (const auto* colour = nodeCast<ColorExpression>(value)) {
        return colour->isHex ? colour->hexValue : colour->colorName;
    }
    return std::nullopt;
}

std::string headerText(const std::vector<const WebAppNode*>& pages, const char* key) {
    for (const WebAppNode* page : pages) {
        const WidgetNode* header = headerOf(*page);
        const auto text = header == nullptr ? std::nullopt : writtenText(findProperty(*header, {key}));
        if (text) {
            return *text;
        }
    }
    return "";
}

void collectFiles(const Statement* statement, std::set<std::string>& files) {
    if (const auto* application = nodeCast<WebAppNode>(statement)) {
        collectFiles(application->header.get(), files);
        collectFiles(application->uiBody.get(), files);
    }
    const WidgetNode* widget = asWidget(statement);
    if (widget == nullptr) {
        return;
    }
    const auto* image =
        widget->kind == language::widget::IMAGE ? literalProperty<StringLiteral>(*widget, "பாதை") : nullptr;
    for (const StringLiteral* path : {image, literalProperty<StringLiteral>(*widget, "சின்னம்")}) {
        if (path != nullptr) {
            files.insert(path->value);
        }
    }
    if (!widget->style.font.empty()) {
        files.insert(widget->style.font);
    }
    for (const StatementPtr& child : widget->children) {
        collectFiles(child.get(), files);
    }
}

} // namespace

Application readApplication(const Program& program) {
    std::vector<const WebAppNode*> pages;
    for (const StatementPtr& statement : program.statements) {
        if (const auto* app = nodeCast<WebAppNode>(statement.get())) {
            pages.push_back(app);
        }
    }
    Application application = readApplication(std::move(pages));
    for (const StatementPtr& statement : program.statements) {
        collectFiles(statement.get(), application.files);
    }
    return application;
}

Application readApplication(std::vector<const WebAppNode*> pages) {
    Application application;
    for (const WebAppNode* page : pages) {
        collectFiles(page, application.files);
    }
    if (!pages.empty()) {
        const auto* header = nodeCast<HeaderNode>(pages.front()->header.get());
        application.windowName = pages.front()->name;
        application.screen = header == nullptr ? ScreenConfig() : header->screen;
    }
    application.startPage = startPageOf(pages);
    application.title = headerText(pages, "இணைய_தலைப்பு");
    application.icon = headerText(pages, "சின்னம்");
    application.background = headerText(pages, "பின்னணி");
    application.video = headerText(pages, "பின்னணிகாணொளி");
    application.pages = std::move(pages);
    return application;
}

std::string pageName(const WebAppNode& app) {
    const WidgetNode* header = headerOf(app);
    return header == nullptr ? language::property::UNNAMED_PAGE : pageNameIn(*header);
}

} // namespace pozhil
