#include "parser/second/applications.h"

#include "base/scoped_value.h"
#include "language/second/application_words.h"
#include "parser/second/file_parse.h"
#include "parser/second/suggestion.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace pozhil::second {

namespace word = language::second::application;

namespace {

constexpr std::string_view REQUIRED[] = {word::HEADER, word::INTERFACE, word::DEFINITION};

/// The name of an application that has none.
constexpr const char* UNNAMED = "MyApp";

} // namespace

bool ApplicationGrammar::isApplicationAhead() const {
    const bool isWord = tokens_.check(TokenType::IDENTIFIER) && tokens_.peek().value == word::APPLICATION;
    const bool isNamed = tokens_.peek(1).type == TokenType::IDENTIFIER && tokens_.peek(2).type == TokenType::LPAREN;
    return isWord && parse_.blockDepth == 0 && parse_.functionDepth == 0 &&
           (isNamed || tokens_.peek(1).type == TokenType::LPAREN);
}

StatementPtr ApplicationGrammar::parseApplication() {
    const ScopedValue<bool> inside(parse_.isInApplication, true);
    const std::size_t first = tokens_.position();
    tokens_.advance();
    const std::size_t nameIndex = tokens_.position();
    std::string name = tokens_.check(TokenType::IDENTIFIER) ? tokens_.advance().value : UNNAMED;
    auto app = std::make_unique<WebAppNode>(std::move(name), nullptr, nullptr, nullptr, nullptr);
    std::vector<std::string_view> written;
    parse_.properties.parseItems([&] { parseSection(*app, written); });
    checkSections(first, written);
    place(*app, first);
    notePlace(&app->name, tokens_.rangeOf(nameIndex));
    return app;
}

void ApplicationGrammar::parseSection(WebAppNode& app, std::vector<std::string_view>& written) {
    struct Row {
        std::string_view word;
        StatementPtr WebAppNode::*part;
        StatementPtr (ApplicationGrammar::*parse)();
    };
    using Self = ApplicationGrammar;
    static constexpr Row ROWS[] = {
        {word::HEADER, &WebAppNode::header, &Self::parseHeader},
        {word::INTERFACE, &WebAppNode::uiBody, &Self::parseInterface},
        {word::DEFINITION, &WebAppNode::definition, &Self::parseDefinition},
        {word::DATABASE_MANAGER, &WebAppNode::databaseManager, &Self::parseDatabaseManager},
    };
    const std::size_t first = tokens_.position();
    const auto* const row = std::find_if(std::begin(ROWS), std::end(ROWS),
                                         [&](const Row& one) { return one.word == tokens_.peek().value; });
    if (row == std::end(ROWS) || tokens_.peek(1).type != TokenType::LPAREN) {
        SecondFault unknown =
            recovery_.faultAt(fault::NO_APPLICATION_PART, tokens_.visibleRange(), {tokens_.shown(first)});
        suggestNearest(unknown, tokens_.peek().value,
                       {word::HEADER, word::INTERFACE, word::DEFINITION, word::DATABASE_MANAGER});
        throw SyntaxFault{std::move(unknown)};
    }
    if (std::find(written.begin(), written.end(), row->word) != written.end()) {
        note(fault::SECOND_SECTION, tokens_.rangeOf(first), {std::string(row->word)});
    }
    written.push_back(row->word);
    tokens_.advance();
    app.*(row->part) = (this->*(row->parse))();
    if (app.*(row->part) != nullptr) {
        place(*(app.*(row->part)), first);
    }
}

/// Tells of the sections that an application must have and hasn't.
void ApplicationGrammar::checkSections(std::size_t first, const std::vector<std::string_view>& written) {
    std::string missing;
    for (const std::string_view section : REQUIRED) {
        if (std::find(written.begin(), written.end(), section) == written.end()) {
            missing += (missing.empty() ? "'" : ", '") + std::string(section) + "'";
        }
    }
    if (!missing.empty()) {
        note(fault::NO_SECTION, tokens_.rangeOf(first), {std::move(missing)});
    }
}

/// ( properties )
StatementPtr ApplicationGrammar::parseHeader() {
    PropertyMap properties = parseProperties(word::HEADER, language::second::headerProperties());
    return std::make_unique<HeaderNode>(std::string(word::HEADER), std::move(properties), StatementList(),
                                        ScreenConfig());
}

/// ( widget )
StatementPtr ApplicationGrammar::parseInterface() {
    const std::size_t opening = tokens_.position();
    StatementPtr root;
    int widgets = 0;
    parse_.properties.parseItems([&] {
        const bool isFirst = ++widgets == 1;
        if (widgets == 2) {
            note(fault::SECOND_ROOT, tokens_.visibleRange());
        }
        StatementPtr widget = parse_.widgets.parseWidget();
        root = isFirst ? std::move(widget) : std::move(root);
    });
    if (widgets == 0) {
        note(fault::NO_WIDGET, tokens_.rangeOf(opening), {tokens_.shown(tokens_.position() - 1)});
    }
    return root;
}

/// ( statements )
StatementPtr ApplicationGrammar::parseDefinition() {
    const std::size_t opening = tokens_.position();
    tokens_.advance();
    auto block = std::make_unique<BlockStatement>();
    block->statements = parse_.blocks.parseBracketed(TokenType::RPAREN);
    place(*block, opening);
    consumeClosing(TokenType::RPAREN, opening);
    return std::make_unique<LogicBlockNode>(std::move(block));
}

/// ( பயர்பேசு_அமைப்பு ( properties ) )
StatementPtr ApplicationGrammar::parseDatabaseManager() {
    const std::size_t opening = tokens_.position();
    tokens_.advance();
    StatementPtr connection;
    if (!tokens_.check(TokenType::RPAREN)) {
        recovery_.attemptItem([&] { connection = parseConnection(); });
        tokens_.accept(TokenType::COMMA);
    }
    consumeClosingOfOne(TokenType::RPAREN, opening);
    return std::make_unique<DatabaseManagerNode>(std::move(connection));
}

StatementPtr ApplicationGrammar::parseConnection() {
    const std::size_t first = tokens_.position();
    if (tokens_.peek().value != word::FIREBASE_CONFIG || tokens_.peek(1).type != TokenType::LPAREN) {
        failHere(fault::NO_SIGN, {"'பயர்பேசு_அமைப்பு('", tokens_.shown(first)});
    }
    tokens_.advance();
    return make<FirebaseConfigNode>(first,
                                    parseProperties(word::FIREBASE_CONFIG, language::second::databaseProperties()));
}

/// ( properties of these rows )
PropertyMap ApplicationGrammar::parseProperties(std::string_view owner, language::Rows<language::WidgetProperty> rows) {
    PropertyList list{owner, {}};
    for (const language::WidgetProperty& row : rows) {
        list.known.push_back(&row);
    }
    PropertyMap properties;
    parse_.properties.parseItems([&] {
        WrittenProperty written = parse_.properties.parseProperty(list);
        if (written.row != nullptr) {
            std::string name(written.row->name);
            parse_.properties.store(properties, std::move(name), std::move(written));
        }
    });
    return properties;
}

} // namespace pozhil::second
