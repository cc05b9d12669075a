#include "parser/second/function_values.h"

#include "base/scoped_increment.h"
#include "parser/second/file_parse.h"
#include "parser/second/names.h"

#include <algorithm>

namespace pozhil::second {
namespace {

constexpr const char* REFERENCE_WORD = "மாற்று";

} // namespace

std::vector<Param> FunctionValueGrammar::parseParameters() {
    const std::size_t opening = tokens_.position();
    consumeOpening("பராமீட்டர்களுக்கு முன் '('");
    Parameters parameters = parseList(TokenType::RPAREN);
    consumeClosing(TokenType::RPAREN, opening);
    for (std::size_t index = 0; index < parameters.params.size(); ++index) {
        // The elements of a list stay where they are, whoever takes it over.
        notePlace(&parameters.params[index].name, parameters.ranges[index]);
    }
    return std::move(parameters.params);
}

FunctionValueGrammar::Parameters FunctionValueGrammar::parseList(TokenType end) {
    Parameters parameters;
    while (!tokens_.check(end)) {
        parseParameter(parameters);
        if (!tokens_.accept(TokenType::COMMA)) {
            break;
        }
    }
    return parameters;
}

/// The word that marks a parameter may also be its name.
void FunctionValueGrammar::parseParameter(Parameters& parameters) {
    Param parameter;
    parameter.isMutable = tokens_.checkWord(REFERENCE_WORD) && isWord(tokens_.peek(1));
    if (parameter.isMutable) {
        tokens_.advance();
    }
    const ByteRange range = tokens_.rangeOf(tokens_.position());
    parameter.name = consumeName("பராமீட்டரின் பெயர்");
    parameters.params.push_back(std::move(parameter));
    parameters.ranges.push_back(range);
}

ExpressionPtr FunctionValueGrammar::parseArrowFunction() {
    const std::size_t first = tokens_.position();
    Parameters parameters;
    if (tokens_.accept(TokenType::LPAREN)) {
        parameters = parseList(TokenType::RPAREN);
        consumeClosing(TokenType::RPAREN, first);
    } else {
        parseParameter(parameters);
    }
    tokens_.advance();
    return parseBody(first, std::move(parameters));
}

ExpressionPtr FunctionValueGrammar::parseWordFunction() {
    const std::size_t first = tokens_.position();
    tokens_.advance();
    const std::size_t opening = tokens_.position();
    Parameters parameters;
    if (tokens_.accept(TokenType::LPAREN)) {
        parameters = parseList(TokenType::RPAREN);
        consumeClosing(TokenType::RPAREN, opening);
    } else {
        parameters = parseList(TokenType::COLON);
    }
    if (!tokens_.accept(TokenType::COLON)) {
        failHere(fault::NO_SIGN, {"':'", tokens_.shown(tokens_.position())});
    }
    if (!tokens_.check(TokenType::NEWLINE)) {
        return parseBody(first, std::move(parameters));
    }
    enter();
    BlockPtr body = parse_.expressions.outsideCondition([&] { return parse_.blocks.parseFunctionBody(); });
    return makeFunction(first, std::move(parameters), std::move(body));
}

/// One value, or one statement that can't be taken for a value. A parameter that is passed back makes it a block.
ExpressionPtr FunctionValueGrammar::parseBody(std::size_t first, Parameters parameters) {
    const ScopedIncrement inside(parse_.functionDepth);
    const std::size_t bodyFirst = tokens_.position();
    StatementPtr statement = parseStatementBody();
    if (statement == nullptr) {
        ExpressionPtr value = parse_.expressions.parseInner();
        const bool passesBack = std::any_of(parameters.params.begin(), parameters.params.end(),
                                            [](const Param& parameter) { return parameter.isMutable; });
        if (!passesBack) {
            return makeLambda(first, std::move(parameters), std::move(value));
        }
        statement = make<ReturnStatement>(bodyFirst, std::move(value));
    }
    auto block = make<BlockStatement>(bodyFirst);
    block->statements.push_back(std::move(statement));
    return makeFunction(first, std::move(parameters), std::move(block));
}

ExpressionPtr FunctionValueGrammar::makeLambda(std::size_t first, Parameters parameters, ExpressionPtr body) {
    std::vector<Token> names;
    for (Param& parameter : parameters.params) {
        names.push_back(std::move(parameter.name));
    }
    auto lambda = make<LambdaExpression>(first, std::move(names), std::move(body));
    for (std::size_t index = 0; index < lambda->parameters.size(); ++index) {
        notePlace(&lambda->parameters[index], parameters.ranges[index]);
    }
    return lambda;
}

ExpressionPtr FunctionValueGrammar::makeFunction(std::size_t first, Parameters parameters, BlockPtr block) {
    auto function = make<FunctionExpression>(first, std::move(parameters.params), std::move(block));
    for (std::size_t index = 0; index < function->parameters.size(); ++index) {
        notePlace(&function->parameters[index].name, parameters.ranges[index]);
    }
    return function;
}

/// Words that begin a statement and never a value; null for everything else. Printing needs its brackets here, since a
/// comma may belong to the call around.
StatementPtr FunctionValueGrammar::parseStatementBody() {
    const std::size_t first = tokens_.position();
    if (tokens_.acceptWord("திரும்பு")) {
        ExpressionPtr value =
            tokens_.isAtLineEnd() || tokens_.check(TokenType::COMMA) ? nullptr : parse_.expressions.parseInner();
        return make<ReturnStatement>(first, std::move(value));
    }
    if (tokens_.acceptWord("காத்திரு")) {
        ExpressionPtr duration = parse_.expressions.parseInner();
        return make<WaitStatement>(first, std::move(duration));
    }
    if (!tokens_.acceptWord("அச்சிடு")) {
        return nullptr;
    }
    const std::size_t opening = tokens_.position();
    consumeOpening("'அச்சிடு'-க்குப் பின் '('");
    ExpressionList arguments = parse_.expressions.parseArguments(opening);
    return make<PrintStatement>(first, std::move(arguments));
}

} // namespace pozhil::second
