#include "parser/second/blocks.h"

#include "base/scoped_increment.h"
#include "parser/second/file_parse.h"

namespace pozhil::second {

BlockPtr BlockGrammar::parseColonAndBlock() {
    consumeColon();
    return parseBlock();
}

BlockPtr BlockGrammar::parseFunctionBody() {
    const ScopedIncrement inside(parse_.functionDepth);
    return parseBlock();
}

BlockPtr BlockGrammar::parseBlock() {
    const ScopedIncrement inside(parse_.blockDepth);
    if (!tokens_.check(TokenType::NEWLINE)) {
        return parseOneLine();
    }
    beginBlock();
    const std::size_t first = tokens_.position();
    auto block = std::make_unique<BlockStatement>();
    const ScopedValue<int> noStrayIndents(strayIndents_, 0);
    Parts siblings(height_);
    while (!isBlockOver()) {
        siblings.next();
        parseStatementInto(*block);
    }
    place(*block, first);
    endBlock();
    return block;
}

StatementList BlockGrammar::parseBracketed(TokenType closing) {
    const ScopedIncrement inside(parse_.blockDepth);
    const ScopedValue<int> noStrayIndents(strayIndents_, 0);
    StatementList statements;
    Parts siblings(height_);
    while (!tokens_.check(closing) && !tokens_.isAtEnd()) {
        siblings.next();
        recovery_.attempt([&] {
            if (tokens_.accept(TokenType::NEWLINE) || takeStrayDedent() || tokens_.accept(TokenType::DEDENT) ||
                takeStrayIndent()) {
                return;
            }
            statements.push_back(parse_.statements.parseStatement());
        });
    }
    return statements;
}

StatementList BlockGrammar::parseBracketedOrValue(TokenType closing, ExpressionPtr& value) {
    tokens_.accept(TokenType::NEWLINE);
    if (!parse_.statements.isValueAhead() || tokens_.check(closing)) {
        return parseBracketed(closing);
    }
    const std::size_t first = tokens_.position();
    ExpressionPtr only = parse_.expressions.parseInner();
    consumeStatementEnd();
    if (tokens_.check(closing)) {
        value = std::move(only);
        return {};
    }
    StatementList statements;
    statements.push_back(make<ExpressionStatement>(first, std::move(only)));
    for (StatementPtr& statement : parseBracketed(closing)) {
        statements.push_back(std::move(statement));
    }
    return statements;
}

/// The line end and the indentation after a colon.
void BlockGrammar::beginBlock() {
    const std::size_t colon = tokens_.position() - 1;
    tokens_.accept(TokenType::NEWLINE);
    if (!tokens_.accept(TokenType::INDENT)) {
        fail(fault::NO_BLOCK, tokens_.rangeOf(colon));
    }
}

bool BlockGrammar::isBlockOver() {
    while (takeStrayDedent()) {
    }
    return tokens_.check(TokenType::DEDENT) || tokens_.isAtEnd();
}

void BlockGrammar::endBlock() {
    tokens_.accept(TokenType::DEDENT);
}

bool BlockGrammar::takeStrayIndent() {
    if (!tokens_.check(TokenType::INDENT)) {
        return false;
    }
    recovery_.noteStrayIndent();
    note(fault::UNEXPECTED_INDENTATION, tokens_.rangeOf(tokens_.position() + 1));
    tokens_.advance();
    ++strayIndents_;
    return true;
}

bool BlockGrammar::takeStrayDedent() {
    const bool isStray = strayIndents_ > 0 && tokens_.accept(TokenType::DEDENT);
    strayIndents_ -= isStray ? 1 : 0;
    return isStray;
}

void BlockGrammar::parseStatementInto(BlockStatement& block) {
    recovery_.attempt([&] {
        if (takeStrayIndent()) {
            return;
        }
        block.statements.push_back(parse_.statements.parseStatement());
    });
}

/// Statements after a colon on its own line, with semicolons between them. The whole line belongs to the block.
BlockPtr BlockGrammar::parseOneLine() {
    const std::size_t first = tokens_.position();
    auto block = std::make_unique<BlockStatement>();
    bool isOver = false;
    Parts siblings(height_);
    while (!isOver) {
        siblings.next();
        block->statements.push_back(parse_.statements.parseSimpleStatement());
        const bool isSemicolon = tokens_.isAfterLineEnd() && tokens_.previous().value == ";";
        isOver = !isSemicolon || tokens_.isAtLineEnd();
    }
    place(*block, first);
    return block;
}

} // namespace pozhil::second
