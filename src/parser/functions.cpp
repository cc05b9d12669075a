#include "parser/parser.h"

#include <utility>

namespace pozhil {
namespace {

bool isSelf(const Token& token) {
    return token.value == "தான்" || token.value == "self";
}

} // namespace

/// செயல் name ( params ) : block
StatementPtr Parser::parseFunctionDefinitionStatement(bool inStruct) {
    advance();
    Token name = consumeName("பொழி-231");
    std::vector<Param> params = parseParameters(name.line, true);
    consume(TokenType::COLON, "பொழி-202");
    if (inStruct && (params.empty() || !isSelf(params.front().name))) {
        பிழை("பொழி-271", name.line);
    }
    if (!inStruct && functionDepth_ == 0) {
        functions_[name.value] = params;
    }
    return std::make_unique<FunctionDefinitionStatement>(std::move(name), std::move(params), parseFunctionBody());
}

/// ( [ [மாற்று] name { , [மாற்று] name } ] ); faults of the brackets are reported at \p line.
/// \param mutableMayBeName whether மாற்று also counts when it arrives as a plain name
std::vector<Param> Parser::parseParameters(std::int32_t line, bool mutableMayBeName) {
    consume(TokenType::LPAREN, "பொழி-203", line);
    std::vector<Param> params;
    if (!check(TokenType::RPAREN)) {
        do {
            skipNewlines();
            Param param;
            const bool isMutableName = mutableMayBeName && check(TokenType::IDENTIFIER) && peek().value == "மாற்று";
            if (checkKeyword("மாற்று") || isMutableName) {
                advance();
                param.isMutable = true;
            }
            param.name = consumeName("பொழி-232");
            params.push_back(std::move(param));
        } while (accept(TokenType::COMMA));
    }
    consume(TokenType::RPAREN, "பொழி-204", line);
    return params;
}

/// The block behind a function's colon.
std::unique_ptr<BlockStatement> Parser::parseFunctionBody() {
    ++functionDepth_;
    auto body = parseBlockStatement(false);
    --functionDepth_;
    return body;
}

/// வகை name : one member a line. An enumeration leaves no node: its members are folded to numbers where they are used.
StatementPtr Parser::parseVagaiStatement() {
    advance();
    const std::string name = consume(TokenType::IDENTIFIER, "பொழி-210").value;
    parseIndentedHeader();
    int ordinal = 0;
    while (!check(TokenType::DEDENT) && !is_at_end()) {
        const Token member = consumeName("பொழி-210");
        enums_[name][member.value] = ordinal++;
        consume(TokenType::NEWLINE, "பொழி-202");
        skipNewlines();
    }
    consume(TokenType::DEDENT, "பொழி-292");
    return nullptr;
}

/// வடிவமைப்பு name : the methods that a child must have, one a line.
StatementPtr Parser::parseAbstractStructStatement() {
    advance();
    Token name = consume(TokenType::IDENTIFIER, "பொழி-210");
    parseIndentedHeader();
    std::vector<AbstractMethod> methods;
    while (!check(TokenType::DEDENT) && !is_at_end()) {
        methods.push_back(parseAbstractMethod());
        consume(TokenType::NEWLINE, "பொழி-202");
        skipNewlines();
    }
    consume(TokenType::DEDENT, "பொழி-292");
    auto node = std::make_unique<AbstractStructDefinitionStatement>(std::move(name), std::move(methods));
    abstractStructs_[node->name.value] = node.get();
    return node;
}

/// செயல் name ( தான் { , name } ) [ : விடு ]
AbstractMethod Parser::parseAbstractMethod() {
    if (!checkKeyword("செயல்")) {
        பிழை("பொழி-210", peek().line);
    }
    advance();
    AbstractMethod method;
    method.name = consume(TokenType::IDENTIFIER, "பொழி-231");
    method.params = parseParameters(method.name.line, true);
    if (method.params.empty() || !isSelf(method.params.front().name)) {
        பிழை("பொழி-271", method.name.line);
    }
    if (accept(TokenType::COLON)) {
        skipNewlines();
        accept(TokenType::INDENT);
        if (!checkKeyword("விடு")) {
            பிழை("பொழி-210", peek().line);
        }
        advance();
    }
    return method;
}

} // namespace pozhil
