#include "parser/second/statements.h"

#include "parser/second/file_parse.h"
#include "parser/second/names.h"

#include <algorithm>
#include <iterator>

namespace pozhil::second {
namespace {

/// A rule of a family, called on the parse that the family belongs to.
template <auto family, auto rule> StatementPtr ruleOf(FileParse& parse) {
    return ((parse.*family).*rule)();
}

/// Whether a value goes on with \p token after a closing bracket.
bool continuesValue(const Token& token) {
    switch (token.type) {
    case TokenType::KEYWORD: return token.value == "எனில்";
    case TokenType::ARROW:
    case TokenType::OPERATOR:
    case TokenType::QUESTION:
    case TokenType::COMMA:
    case TokenType::DOT:
    case TokenType::LBRACKET:
    case TokenType::LPAREN: return true;
    default: return false;
    }
}

} // namespace

Program StatementGrammar::parseProgram() {
    Program program;
    try {
        Parts siblings(height_);
        while (!tokens_.isAtEnd()) {
            siblings.next();
            recovery_.attempt([&] {
                if (tokens_.accept(TokenType::DEDENT) || parse_.blocks.takeStrayIndent()) {
                    return;
                }
                program.statements.push_back(parseStatement());
            });
        }
        recovery_.finish();
    } catch (const Recovery::Done&) {
        // What is known is enough for whoever asked.
        recovery_.giveUp();
    }
    return program;
}

StatementPtr StatementGrammar::parseStatement() {
    enter();
    checkReservedTarget();
    if (const Rule rule = chooseCompoundRule()) {
        StatementPtr statement = rule(parse_);
        consumeStatementEnd();
        return statement;
    }
    return parseSimpleStatement();
}

StatementPtr StatementGrammar::parseSimpleStatement() {
    if (chooseCompoundRule() != nullptr) {
        failHere(fault::NO_BLOCK);
    }
    checkStrayPart();
    const Rule rule = chooseSimpleRule();
    StatementPtr statement = rule == nullptr ? parseValueStatement() : rule(parse_);
    consumeStatementEnd();
    return statement;
}

/// The rule of a statement that has blocks, null if none comes next.
StatementGrammar::Rule StatementGrammar::chooseCompoundRule() const {
    using Flow = ControlFlowGrammar;
    using Definitions = DefinitionGrammar;
    constexpr auto FLOW = &FileParse::controlFlow;
    constexpr auto DEFINITIONS = &FileParse::definitions;
    struct Row {
        std::string_view word;
        Rule rule;
    };
    static constexpr Row FLOW_ROWS[] = {
        {"சுற்று", ruleOf<FLOW, &Flow::parseWhile>},
        {"தேர்வு", ruleOf<FLOW, &Flow::parseSwitch>},
    };
    static constexpr Row DEFINITION_ROWS[] = {
        {"வகை", ruleOf<DEFINITIONS, &Definitions::parseEnumeration>},
        {"கட்டமைப்பு", ruleOf<&FileParse::structures, &StructureGrammar::parseStructure>},
        {"வடிவமைப்பு", ruleOf<DEFINITIONS, &Definitions::parseAbstractStructure>},
    };
    if (parse_.applications.isApplicationAhead()) {
        return ruleOf<&FileParse::applications, &ApplicationGrammar::parseApplication>;
    }
    if (parse_.databases.isReadAhead()) {
        return ruleOf<&FileParse::databases, &DatabaseGrammar::parseRead>;
    }
    if (tokens_.peek().type != TokenType::KEYWORD) {
        return nullptr;
    }
    if (tokens_.checkWord("எனில்")) {
        return ruleOf<FLOW, &Flow::parseIf>;
    }
    if (tokens_.checkWord("ஒவ்வொன்றாக")) {
        return ruleOf<FLOW, &Flow::parseFor>;
    }
    if (tokens_.checkWord("முயற்சி") &&
        (tokens_.peek(1).type == TokenType::COLON || tokens_.peek(1).type == TokenType::NEWLINE)) {
        return ruleOf<FLOW, &Flow::parseTry>;
    }
    if (isFunctionAhead()) {
        return ruleOf<DEFINITIONS, &Definitions::parseFunction>;
    }
    const auto ruleIn = [&](const auto& rows, bool isAhead) {
        const auto* const row =
            std::find_if(std::begin(rows), std::end(rows), [&](const Row& one) { return tokens_.checkWord(one.word); });
        return row != std::end(rows) && isAhead ? row->rule : nullptr;
    };
    const Rule rule = ruleIn(FLOW_ROWS, isHeadAhead());
    return rule == nullptr ? ruleIn(DEFINITION_ROWS, isDefinitionAhead()) : rule;
}

/// The rule of a statement on one line that its first word tells, null for one that is a value.
StatementGrammar::Rule StatementGrammar::chooseSimpleRule() const {
    using Self = StatementGrammar;
    constexpr auto SELF = &FileParse::statements;
    if (tokens_.checkWord("அச்சிடு")) {
        return ruleOf<SELF, &Self::parsePrint>;
    }
    if (tokens_.checkWord("காத்திரு")) {
        return ruleOf<SELF, &Self::parseWait>;
    }
    if (tokens_.checkWord("திரும்பு")) {
        return ruleOf<SELF, &Self::parseReturn>;
    }
    if (tokens_.checkWord("நூஇறக்கி")) {
        return ruleOf<SELF, &Self::parseImport>;
    }
    if (tokens_.checkWord("பொது") && isDefinitionAhead()) {
        return ruleOf<SELF, &Self::parseFileVariables>;
    }
    const TokenType next = tokens_.peek(1).type;
    if (next != TokenType::NEWLINE && next != TokenType::RPAREN) {
        return nullptr;
    }
    if (tokens_.checkWord("நிறுத்து")) {
        return ruleOf<SELF, &Self::parseWord<BreakStatement>>;
    }
    if (tokens_.checkWord("தொடர்")) {
        return ruleOf<SELF, &Self::parseWord<ContinueStatement>>;
    }
    return tokens_.checkWord("விடு") ? ruleOf<SELF, &Self::parseWord<PassStatement>> : nullptr;
}

bool StatementGrammar::isValueAhead() const {
    return chooseCompoundRule() == nullptr && chooseSimpleRule() == nullptr;
}

/// Whether a name comes after the next word, which else is a name itself.
bool StatementGrammar::isDefinitionAhead() const {
    const Token& next = tokens_.peek(1);
    return next.type == TokenType::IDENTIFIER || next.type == TokenType::PRIVATE ||
           (next.type == TokenType::KEYWORD && next.value != "எனில்" && next.value != "இல்லைஎனில்");
}

bool StatementGrammar::isFunctionAhead() const {
    const bool hasName = isWord(tokens_.peek(1)) && tokens_.peek(1).type != TokenType::COMPOUND_ASSIGN;
    return tokens_.checkWord("செயல்") && hasName;
}

/// Whether the next word begins a statement with a value and a block, and isn't a name. What can be either is told by the
/// rest of the line: a colon, or a block below.
bool StatementGrammar::isHeadAhead() const {
    const TokenType next = tokens_.peek(1).type;
    if (next != TokenType::LPAREN && next != TokenType::LBRACKET) {
        return canBeginValue(tokens_.peek(1)) || next == TokenType::COLON;
    }
    std::size_t index = tokens_.position();
    while (true) {
        switch (tokens_.at(index).type) {
        case TokenType::COLON: return true;
        case TokenType::ASSIGN:
        case TokenType::COMPOUND_ASSIGN:
        case TokenType::END_OF_FILE: return false;
        case TokenType::NEWLINE: return tokens_.at(index + 1).type == TokenType::INDENT;
        default: break;
        }
        const std::size_t closing = tokens_.closingOf(index);
        index = closing == TokenReader::NONE ? index + 1 : closing;
    }
}

/// A word that can't be a name, but is given a value.
void StatementGrammar::checkReservedTarget() const {
    if (isWord(tokens_.peek()) && !canBeName(tokens_.peek()) && tokens_.peek(1).type == TokenType::ASSIGN) {
        failHere(fault::RESERVED_WORD, {tokens_.shown(tokens_.position()), "மாறியின் பெயர்"});
    }
}

/// Words that go on with a statement, where there is none.
void StatementGrammar::checkStrayPart() const {
    const bool isPart =
        tokens_.checkWord("இல்லைஎனில்") || (tokens_.checkWord("இல்லை") && tokens_.peek(1).type == TokenType::COLON);
    if (tokens_.checkWord("இல்லை") && tokens_.isWordAt(1, "எனில்")) {
        failHere(fault::SPLIT_WORD);
    }
    const bool mayBeName = tokens_.checkWord("பிடி") || tokens_.checkWord("நிலை") || tokens_.checkWord("மற்றவை");
    if (isPart || (mayBeName && isHeadAhead())) {
        failHere(fault::PART_WITHOUT_STATEMENT, {tokens_.peek().value});
    }
}

/// அச்சிடு a, b, or அச்சிடு(a, b). A bracket that ends before the line does is a part of the first value.
StatementPtr StatementGrammar::parsePrint() {
    const std::size_t first = tokens_.position();
    tokens_.advance();
    const std::size_t opening = tokens_.position();
    const std::size_t closing = tokens_.closingOf(opening);
    const bool isBracketed =
        tokens_.check(TokenType::LPAREN) && (closing == TokenReader::NONE || !continuesValue(tokens_.at(closing + 1)));
    ExpressionList arguments;
    if (isBracketed) {
        tokens_.advance();
        arguments = parse_.expressions.parseArguments(opening);
    } else {
        Parts siblings(height_);
        do {
            siblings.next();
            arguments.push_back(parseExpression());
        } while (tokens_.accept(TokenType::COMMA));
    }
    return make<PrintStatement>(first, std::move(arguments));
}

StatementPtr StatementGrammar::parseWait() {
    const std::size_t first = tokens_.position();
    tokens_.advance();
    ExpressionPtr duration = parseExpression();
    return make<WaitStatement>(first, std::move(duration));
}

StatementPtr StatementGrammar::parseReturn() {
    const std::size_t first = tokens_.position();
    tokens_.advance();
    ExpressionPtr value = tokens_.isAtLineEnd() ? nullptr : parseExpression();
    return make<ReturnStatement>(first, std::move(value));
}

/// What is imported is a text or a name.
StatementPtr StatementGrammar::parseImport() {
    const std::size_t first = tokens_.position();
    tokens_.advance();
    const bool isPath = tokens_.check(TokenType::STRING) || canBeName(tokens_.peek());
    if (!isPath || tokens_.peek().value.empty() || parse_.blockDepth > 0 || parse_.functionDepth > 0) {
        fail(fault::IMPORT_PATH, tokens_.rangeOf(first));
    }
    return make<ImportStatement>(first, tokens_.advance().value);
}

StatementPtr StatementGrammar::parseFileVariables() {
    const std::size_t first = tokens_.position();
    tokens_.advance();
    std::vector<Token> names;
    std::vector<ByteRange> ranges;
    do {
        ranges.push_back(tokens_.rangeOf(tokens_.position()));
        names.push_back(consumeName("மாறியின் பெயர்"));
    } while (tokens_.accept(TokenType::COMMA));
    if (parse_.functionDepth == 0) {
        note(fault::FILE_VARIABLES_OUTSIDE_FUNCTION, tokens_.rangeFrom(first), {tokens_.shown(first)});
    }
    auto statement = make<FileVariablesStatement>(first, std::move(names));
    for (std::size_t index = 0; index < ranges.size(); ++index) {
        notePlace(&statement->names[index], ranges[index]);
    }
    return statement;
}

/// A statement must have an effect.
StatementPtr StatementGrammar::parseValueStatement() {
    const std::size_t first = tokens_.position();
    ExpressionPtr value = parseExpression();
    consumeStatementEnd();
    const bool hasEffect = nodeCast<CallExpression>(value.get()) != nullptr ||
                           nodeCast<PlaceAssignment>(value.get()) != nullptr ||
                           nodeCast<WidgetExpression>(value.get()) != nullptr || DatabaseGrammar::isWrite(*value);
    if (!hasEffect) {
        note(fault::VALUE_ALONE, tokens_.rangeFrom(first));
    }
    return make<ExpressionStatement>(first, std::move(value));
}

} // namespace pozhil::second
