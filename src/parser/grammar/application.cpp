#include "parser/grammar/application.h"

#include "language/property_words.h"
#include "parser/file_parse.h"

#include <utility>

namespace pozhil {
namespace {

namespace property = language::property;

bool isText(const Expression& value) {
    return nodeCast<StringLiteral>(&value) != nullptr;
}

bool isBackground(const Expression& value) {
    return isText(value) || nodeCast<ColorExpression>(&value) != nullptr || nodeCast<GetExpression>(&value) != nullptr;
}

bool isAnything(const Expression& /*value*/) {
    return true;
}

/// What a property of the header asks of its value.
struct HeaderRule {
    std::string_view key;
    bool (*accepts)(const Expression& value);
    const char* code;
};

/// The rule of the property that \p word opens; the key is empty for a word that opens none. Every word for a background
/// means the same property.
HeaderRule headerRule(const Token& word) {
    switch (word.type) {
    case TokenType::BACKGROUND:
    case TokenType::BOX_BACKGROUND: return {property::BACKGROUND, isBackground, "பொழி-362"};
    case TokenType::BACKGROUND_IMAGE: return {property::BACKGROUND_IMAGE, isText, "பொழி-303"};
    case TokenType::BACKGROUND_VIDEO: return {property::BACKGROUND_VIDEO, isText, "பொழி-303"};
    case TokenType::PAGE: return {property::PAGE, isAnything, nullptr};
    case TokenType::IDENTIFIER: {
        const bool isTextOnly = word.value == "இணைய_தலைப்பு" || word.value == "சின்னம்";
        return {word.value, isTextOnly ? isText : isAnything, "பொழி-402"};
    }
    default: return {{}, isAnything, nullptr};
    }
}

} // namespace

StatementPtr ApplicationGrammar::parseWebApp() {
    cursor_.consume(TokenType::WEBAPP, "பொழி-241");
    std::string name = cursor_.check(TokenType::IDENTIFIER) ? cursor_.advance().value : "MyApp";
    cursor_.consume(TokenType::LPAREN, "பொழி-203");
    auto app = std::make_unique<WebAppNode>(std::move(name), nullptr, nullptr, nullptr, nullptr);
    // An interface without a widget is null, and yet it was written.
    bool hasInterface = false;
    parseItems(cursor_.indentation(), [&] {
        if (cursor_.isKeyAhead({TokenType::IDENTIFIER, TokenType::PAGE, TokenType::TITLE})) {
            parseProperty(app->properties, cursor_.peek().value);
        } else if (cursor_.check(TokenType::DATABASE_MANAGER)) {
            app->databaseManager = parseDatabaseManager();
        } else if (cursor_.check(TokenType::HEADER)) {
            app->header = parseHeader();
        } else if (cursor_.check(TokenType::UI_BODY)) {
            app->uiBody = parseUIBody();
            hasInterface = true;
        } else if (cursor_.check(TokenType::DEFINITION)) {
            app->definition = parseDefinition();
        } else {
            cursor_.advance();
        }
    });
    if (app->header == nullptr || !hasInterface || app->definition == nullptr) {
        cursor_.பிழை("பொழி-401", cursor_.peek().line);
    }
    return app;
}

/// தலைமை ( properties )
StatementPtr ApplicationGrammar::parseHeader() {
    const std::size_t first = cursor_.position();
    cursor_.consume(TokenType::HEADER, "பொழி-243");
    cursor_.consume(TokenType::LPAREN, "பொழி-203");
    PropertyMap properties;
    parseItems(cursor_.indentation(), [&] { parseHeaderItem(properties); });
    return placed(first, std::make_unique<HeaderNode>("தலைமை", std::move(properties), StatementList(), ScreenConfig()));
}

void ApplicationGrammar::parseHeaderItem(PropertyMap& properties) {
    const Token& word = cursor_.advance();
    const HeaderRule rule = headerRule(word);
    if (rule.key.empty()) {
        return;
    }
    cursor_.consume(TokenType::COLON, "பொழி-202");
    ExpressionPtr value = parseExpression();
    if (!rule.accepts(*value)) {
        cursor_.பிழை(rule.code, word.line);
    }
    properties.insert_or_assign(std::string(rule.key), std::move(value));
}

/// குமரி ( [ widget ] ). After the widget the closing bracket may stand further out, not further in.
StatementPtr ApplicationGrammar::parseUIBody() {
    cursor_.consume(TokenType::UI_BODY, "பொழி-242");
    cursor_.consume(TokenType::LPAREN, "பொழி-203");
    StatementPtr root;
    if (cursor_.atListItem(cursor_.indentation())) {
        const ScopedValue<bool> inList(isInList_, true);
        root = parseWidget();
    }
    cursor_.skipNewlines();
    while (cursor_.check(TokenType::DEDENT)) {
        cursor_.advance();
    }
    cursor_.consume(TokenType::RPAREN, "பொழி-204");
    return root;
}

/// வரையறை ( statements ). What leaves no node, such as an enumeration, leaves a null entry.
StatementPtr ApplicationGrammar::parseDefinition() {
    const std::size_t first = cursor_.position();
    cursor_.consume(TokenType::DEFINITION, "பொழி-244");
    cursor_.consume(TokenType::LPAREN, "பொழி-203");
    auto block = std::make_unique<BlockStatement>();
    const int level = cursor_.indentation();
    SideBySide siblings(nesting_);
    while (cursor_.atListItem(level)) {
        siblings.next();
        const auto parseEntry = [&] {
            block->statements.push_back(parseStatement(false));
            cursor_.accept(TokenType::COMMA);
        };
        recovery_.attemptStatement(parseEntry, Recovery::Enclosure::Brackets);
    }
    cursor_.consume(TokenType::RPAREN, "பொழி-204");
    return placed(first, std::make_unique<LogicBlockNode>(placed(first, std::move(block))));
}

/// தரவுத்தளமேலாண்மை ( [ configuration ] )
StatementPtr ApplicationGrammar::parseDatabaseManager() {
    const std::size_t first = cursor_.position();
    cursor_.consume(TokenType::DATABASE_MANAGER, "பொழி-241");
    cursor_.consume(TokenType::LPAREN, "பொழி-203");
    StatementPtr configuration;
    parseItems(cursor_.indentation(), [&] {
        if (cursor_.check(TokenType::FIREBASE_CONFIG)) {
            configuration = parseFirebaseConfig();
        } else {
            cursor_.advance();
        }
    });
    return placed(first, std::make_unique<DatabaseManagerNode>(std::move(configuration)));
}

/// பயர்பேசு_அமைப்பு ( properties )
StatementPtr ApplicationGrammar::parseFirebaseConfig() {
    const std::size_t first = cursor_.position();
    cursor_.consume(TokenType::FIREBASE_CONFIG, "பொழி-241");
    cursor_.consume(TokenType::LPAREN, "பொழி-203");
    PropertyMap properties;
    parseItems(cursor_.indentation(), [&] {
        if (cursor_.check(TokenType::IDENTIFIER)) {
            parseProperty(properties, cursor_.peek().value);
        } else {
            cursor_.advance();
        }
    });
    return placed(first, std::make_unique<FirebaseConfigNode>(std::move(properties)));
}

} // namespace pozhil
