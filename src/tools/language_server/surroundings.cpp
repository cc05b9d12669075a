#include "tools/language_server/surroundings.h"

#include "language/property_words.h"
#include "language/second/animations.h"
#include "language/second/application_words.h"
#include "language/second/widgets.h"

#include <algorithm>

namespace pozhil::language_server {
namespace {

using language::Widget;

bool isOpening(TokenType type) {
    return type == TokenType::LPAREN || type == TokenType::LBRACKET || type == TokenType::LBRACE;
}

bool isClosing(TokenType type) {
    return type == TokenType::RPAREN || type == TokenType::RBRACKET || type == TokenType::RBRACE;
}

/// The word that a bracket belongs to: right before it, or before the first bracket of a widget that has two.
std::size_t wordOf(const Outline& outline, std::size_t bracket) {
    if (!outline.isType(bracket, TokenType::LPAREN) || bracket == 0) {
        return NO_INDEX;
    }
    std::size_t at = bracket - 1;
    if (outline.isType(at, TokenType::RPAREN)) {
        int depth = 0;
        for (;; --at) {
            depth += outline.isType(at, TokenType::RPAREN) ? 1 : outline.isType(at, TokenType::LPAREN) ? -1 : 0;
            if (depth == 0 || at == 0) {
                break;
            }
        }
        at = at == 0 ? NO_INDEX : at - 1;
    }
    return at != NO_INDEX && outline.isWord(at) ? at : NO_INDEX;
}

template <class Rows> void addAll(std::vector<const language::WidgetProperty*>& properties, const Rows& rows) {
    for (const auto& row : rows) {
        properties.push_back(&row);
    }
}

const Widget* widgetOf(const Outline& outline, const OpenBracket& bracket) {
    return bracket.word == NO_INDEX ? nullptr : language::second::findWidget(outline.token(bracket.word).value);
}

} // namespace

std::vector<OpenBracket> openBrackets(const Outline& outline, std::size_t offset) {
    std::vector<OpenBracket> brackets;
    std::size_t at = outline.tokenBefore(offset);
    std::vector<std::size_t> commas = {0};
    std::size_t closed = 0;
    for (; at != NO_INDEX; at = at == 0 ? NO_INDEX : at - 1) {
        const TokenType type = outline.token(at).type;
        if (outline.placeOf(at).end > offset) {
            continue; // a text that the place stands in
        }
        if (isClosing(type)) {
            ++closed;
        } else if (isOpening(type) && closed > 0) {
            --closed;
        } else if (isOpening(type)) {
            brackets.push_back({at, wordOf(outline, at), commas.back()});
            commas.back() = 0;
        } else if (type == TokenType::COMMA && closed == 0) {
            ++commas.back();
        }
    }
    return brackets;
}

PropertyPlace propertiesAt(const Outline& outline, const std::vector<OpenBracket>& brackets) {
    PropertyPlace place;
    if (brackets.empty() || brackets.front().word == NO_INDEX) {
        return place;
    }
    const std::string& word = outline.token(brackets.front().word).value;
    if (word == language::second::application::HEADER) {
        addAll(place.properties, language::second::headerProperties());
        return place;
    }
    if (word == language::property::ANIMATION) {
        addAll(place.properties, language::second::animationProperties());
        return place;
    }
    place.widget = widgetOf(outline, brackets.front());
    if (brackets.size() > 1) {
        const Widget* const outer = widgetOf(outline, brackets[1]);
        const auto styles = outer == nullptr ? std::vector<std::string_view>() : language::second::stylesOf(*outer);
        if (std::find(styles.begin(), styles.end(), word) != styles.end()) {
            place.widget = outer;
            place.style = word;
        }
    }
    if (place.widget != nullptr) {
        place.properties = language::second::propertiesOf(*place.widget, place.style);
    }
    return place;
}

const language::WidgetProperty* findProperty(const PropertyPlace& place, std::string_view name) {
    const auto found = std::find_if(place.properties.begin(), place.properties.end(),
                                    [&](const auto* property) { return property->name == name; });
    return found == place.properties.end() ? nullptr : *found;
}

bool hasApplication(const Outline& outline) {
    return std::any_of(outline.symbols.begin(), outline.symbols.end(),
                       [](const Symbol& symbol) { return symbol.kind == SymbolKind::Application; });
}

} // namespace pozhil::language_server
