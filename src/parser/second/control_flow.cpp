#include "parser/second/control_flow.h"

#include "parser/second/file_parse.h"
#include "parser/second/names.h"

namespace pozhil::second {

ExpressionPtr ControlFlowGrammar::parseCondition() {
    return parse_.expressions.parseCondition();
}

StatementPtr ControlFlowGrammar::parseIf() {
    const std::size_t first = tokens_.position();
    tokens_.advance();
    Parts parts(height_);
    ExpressionPtr condition = parseCondition();
    parts.next();
    BlockPtr thenBranch = parse_.blocks.parseColonAndBlock();
    parts.next();
    StatementPtr elseBranch = parseElse();
    return make<IfStatement>(first, std::move(condition), std::move(thenBranch), std::move(elseBranch));
}

/// இல்லைஎனில் with all that comes after it, இல்லை, or null for neither.
StatementPtr ControlFlowGrammar::parseElse() {
    if (tokens_.checkWord("இல்லை") && tokens_.isWordAt(1, "எனில்")) {
        note(fault::SPLIT_WORD, tokens_.rangeOf(tokens_.position()));
        tokens_.advance();
        enter();
        return parseIf();
    }
    if (tokens_.checkWord("இல்லைஎனில்")) {
        enter();
        return parseIf();
    }
    const bool isElse = tokens_.checkWord("இல்லை") &&
                        (tokens_.peek(1).type == TokenType::COLON || tokens_.peek(1).type == TokenType::NEWLINE);
    if (!isElse) {
        return nullptr;
    }
    tokens_.advance();
    return parse_.blocks.parseColonAndBlock();
}

StatementPtr ControlFlowGrammar::parseWhile() {
    const std::size_t first = tokens_.position();
    tokens_.advance();
    Parts parts(height_);
    ExpressionPtr condition = parseCondition();
    parts.next();
    BlockPtr body = parse_.blocks.parseColonAndBlock();
    return make<WhileStatement>(first, std::move(condition), std::move(body));
}

StatementPtr ControlFlowGrammar::parseFor() {
    const std::size_t first = tokens_.position();
    tokens_.advance();
    const ByteRange nameRange = tokens_.rangeOf(tokens_.position());
    if (tokens_.checkWord("இல்") && !tokens_.isWordAt(1, "இல்")) {
        failHere(fault::NO_NAME, {"சுற்றின் மாறி", tokens_.shown(tokens_.position())});
    }
    Token variable = consumeName("சுற்றின் மாறி");
    if (!tokens_.acceptWord("இல்")) {
        failHere(fault::NO_SIGN, {"'இல்'", tokens_.shown(tokens_.position())});
    }
    Parts parts(height_);
    ExpressionPtr iterable = parseCondition();
    parts.next();
    BlockPtr body = parse_.blocks.parseColonAndBlock();
    auto loop = make<ForStatement>(first, std::move(variable), std::move(iterable), std::move(body));
    notePlace(&loop->variable, nameRange);
    return loop;
}

StatementPtr ControlFlowGrammar::parseSwitch() {
    const std::size_t first = tokens_.position();
    tokens_.advance();
    Parts parts(height_);
    ExpressionPtr subject = parseCondition();
    parts.next();
    auto statement = std::make_unique<SwitchStatement>(std::move(subject), std::vector<CaseBlock>(), nullptr);
    parse_.blocks.parseLines([&] { parseCase(*statement); });
    place(*statement, first);
    return statement;
}

/// நிலை value : block, or மற்றவை : block
void ControlFlowGrammar::parseCase(SwitchStatement& statement) {
    const std::size_t first = tokens_.position();
    enter();
    if (tokens_.acceptWord("நிலை")) {
        Parts parts(height_);
        ExpressionPtr value = parseCondition();
        parts.next();
        BlockPtr body = parse_.blocks.parseColonAndBlock();
        statement.cases.push_back({std::move(value), std::move(body)});
    } else if (tokens_.acceptWord("மற்றவை")) {
        if (statement.defaultBlock != nullptr) {
            note(fault::SECOND_DEFAULT_CASE, tokens_.rangeOf(first));
        }
        statement.defaultBlock = parse_.blocks.parseColonAndBlock();
    } else {
        failHere(fault::NO_CASE, {tokens_.shown(first)});
    }
    consumeStatementEnd();
}

StatementPtr ControlFlowGrammar::parseTry() {
    const std::size_t first = tokens_.position();
    tokens_.advance();
    Parts parts(height_);
    BlockPtr tryBlock = parse_.blocks.parseColonAndBlock();
    if (!tokens_.acceptWord("பிடி")) {
        fail(fault::NO_CATCH, tokens_.rangeOf(first));
    }
    ByteRange nameRange = tokens_.rangeOf(tokens_.position() - 1);
    std::string errorName = parseErrorName(nameRange);
    parts.next();
    BlockPtr catchBlock = parse_.blocks.parseColonAndBlock();
    auto statement = make<TryCatchStatement>(first, std::move(tryBlock), std::move(catchBlock), std::move(errorName));
    notePlace(&statement->errorName, nameRange);
    return statement;
}

/// [ ( [name] ) ]
std::string ControlFlowGrammar::parseErrorName(ByteRange& range) {
    std::string name = "பிழை";
    const std::size_t opening = tokens_.position();
    if (!tokens_.accept(TokenType::LPAREN)) {
        return name;
    }
    if (!tokens_.check(TokenType::RPAREN)) {
        range = tokens_.rangeOf(tokens_.position());
        name = consumeName("பிழையின் பெயர்").value;
    }
    consumeClosingOfOne(TokenType::RPAREN, opening);
    return name;
}

} // namespace pozhil::second
