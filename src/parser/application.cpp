#include "parser/bracketed_list.h"
#include "parser/parser.h"
#include "parser/siblings.h"

#include <utility>

namespace pozhil {
namespace {

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
    const char* key;
    bool (*accepts)(const Expression& value);
    const char* code;
};

/// The rule of the property that \p word opens; the key is null for a word that opens none. Every word for a background
/// means the same property.
HeaderRule headerRule(const Token& word) {
    switch (word.type) {
    case TokenType::BACKGROUND:
    case TokenType::BOX_BACKGROUND: return {"பின்னணி", isBackground, "பொழி-362"};
    case TokenType::BACKGROUND_IMAGE: return {"பின்னணிபடம்", isText, "பொழி-303"};
    case TokenType::BACKGROUND_VIDEO: return {"பின்னணிகாணொளி", isText, "பொழி-303"};
    case TokenType::PAGE: return {"பக்கம்", isAnything, nullptr};
    case TokenType::IDENTIFIER: {
        const bool isTextOnly = word.value == "இணைய_தலைப்பு" || word.value == "சின்னம்";
        return {word.value.c_str(), isTextOnly ? isText : isAnything, "பொழி-402"};
    }
    default: return {nullptr, isAnything, nullptr};
    }
}

} // namespace

/// வலைதளம் [ name ] ( properties and sections ); of several equal sections the last one counts.
StatementPtr Parser::parseWebApp() {
    consume(TokenType::WEBAPP, "பொழி-241");
    std::string name = check(TokenType::IDENTIFIER) ? advance().value : "MyApp";
    consume(TokenType::LPAREN, "பொழி-203");
    auto app = std::make_unique<WebAppNode>(std::move(name), nullptr, nullptr, nullptr, nullptr);
    // An interface without a widget is null, and yet it was written.
    bool hasInterface = false;
    parseItems(indentation_, [&] {
        if (isKeyAhead({TokenType::IDENTIFIER, TokenType::PAGE, TokenType::TITLE})) {
            parseProperty(app->properties, peek().value);
        } else if (check(TokenType::DATABASE_MANAGER)) {
            app->databaseManager = parseDatabaseManager();
        } else if (check(TokenType::HEADER)) {
            app->header = parseHeader();
        } else if (check(TokenType::UI_BODY)) {
            app->uiBody = parseUIBody();
            hasInterface = true;
        } else if (check(TokenType::DEFINITION)) {
            app->definition = parseDefinition();
        } else {
            advance();
        }
    });
    if (app->header == nullptr || !hasInterface || app->definition == nullptr) {
        பிழை("பொழி-401", peek().line);
    }
    return app;
}

/// தலைமை ( properties )
StatementPtr Parser::parseHeader() {
    consume(TokenType::HEADER, "பொழி-243");
    consume(TokenType::LPAREN, "பொழி-203");
    PropertyMap properties;
    parseItems(indentation_, [&] { parseHeaderItem(properties); });
    return std::make_unique<HeaderNode>("தலைமை", std::move(properties), StatementList(), ScreenConfig());
}

void Parser::parseHeaderItem(PropertyMap& properties) {
    const Token& word = advance();
    const HeaderRule rule = headerRule(word);
    if (rule.key == nullptr) {
        return;
    }
    consume(TokenType::COLON, "பொழி-202");
    ExpressionPtr value = parseExpression();
    if (!rule.accepts(*value)) {
        பிழை(rule.code, word.line);
    }
    properties.insert_or_assign(rule.key, std::move(value));
}

/// குமரி ( [ widget ] ). Behind the widget the closing bracket may stand further out, not further in.
StatementPtr Parser::parseUIBody() {
    consume(TokenType::UI_BODY, "பொழி-242");
    consume(TokenType::LPAREN, "பொழி-203");
    StatementPtr root;
    if (atListItem(indentation_)) {
        root = parseWidget();
    }
    skipNewlines();
    while (check(TokenType::DEDENT)) {
        advance();
    }
    consume(TokenType::RPAREN, "பொழி-204");
    return root;
}

/// வரையறை ( statements ). What leaves no node, such as an enumeration, leaves a null entry.
StatementPtr Parser::parseDefinition() {
    consume(TokenType::DEFINITION, "பொழி-244");
    consume(TokenType::LPAREN, "பொழி-203");
    auto block = std::make_unique<BlockStatement>();
    const int level = indentation_;
    Siblings siblings(*this);
    while (atListItem(level)) {
        siblings.next();
        block->statements.push_back(parseStatement(false));
        accept(TokenType::COMMA);
    }
    consume(TokenType::RPAREN, "பொழி-204");
    return std::make_unique<LogicBlockNode>(std::move(block));
}

/// தரவுத்தளமேலாண்மை ( [ configuration ] )
StatementPtr Parser::parseDatabaseManager() {
    consume(TokenType::DATABASE_MANAGER, "பொழி-241");
    consume(TokenType::LPAREN, "பொழி-203");
    StatementPtr configuration;
    parseItems(indentation_, [&] {
        if (check(TokenType::FIREBASE_CONFIG)) {
            configuration = parseFirebaseConfig();
        } else {
            advance();
        }
    });
    return std::make_unique<DatabaseManagerNode>(std::move(configuration));
}

/// பயர்பேசு_அமைப்பு ( properties )
StatementPtr Parser::parseFirebaseConfig() {
    consume(TokenType::FIREBASE_CONFIG, "பொழி-241");
    consume(TokenType::LPAREN, "பொழி-203");
    PropertyMap properties;
    parseItems(indentation_, [&] {
        if (check(TokenType::IDENTIFIER)) {
            parseProperty(properties, peek().value);
        } else {
            advance();
        }
    });
    return std::make_unique<FirebaseConfigNode>(std::move(properties));
}

} // namespace pozhil
