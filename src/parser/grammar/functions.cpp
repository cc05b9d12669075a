#include "parser/grammar/functions.h"

#include "base/scoped_increment.h"
#include "parser/file_parse.h"

#include <utility>

namespace pozhil {
namespace {

bool isSelf(const Token& token) {
    return token.value == "தான்" || token.value == "self";
}

} // namespace

StatementPtr FunctionGrammar::parseFunctionDefinitionStatement(bool inStruct) {
    cursor_.advance();
    Token name = cursor_.consumeName("பொழி-231");
    std::vector<Param> params = parseParameters(name.line, name.line, true);
    cursor_.consume(TokenType::COLON, "பொழி-202");
    if (inStruct && (params.empty() || !isSelf(params.front().name))) {
        cursor_.பிழை("பொழி-271", name.line);
    }
    if (!inStruct && !isInsideFunction()) {
        declarations_.functions[name.value] = params;
    }
    return std::make_unique<FunctionDefinitionStatement>(std::move(name), std::move(params), parseFunctionBody());
}

/// It may do without தான், unlike a method after a visibility word.
std::unique_ptr<FunctionDefinitionStatement> FunctionGrammar::parseMethod() {
    const std::size_t first = cursor_.position();
    cursor_.advance();
    Token name = cursor_.consumeName("பொழி-231");
    std::vector<Param> params = parseParameters(name.line, name.line, false);
    cursor_.consume(TokenType::COLON, "பொழி-202");
    auto body = parseFunctionBody();
    return placed(first,
                  std::make_unique<FunctionDefinitionStatement>(std::move(name), std::move(params), std::move(body)));
}

/// ( [ [மாற்று] name { , [மாற்று] name } ] ); faults of the brackets are raised at their own lines, -1 being the current.
/// \param mutableMayBeName whether மாற்று also counts when it arrives as a plain name
std::vector<Param> FunctionGrammar::parseParameters(std::int32_t openingLine, std::int32_t closingLine,
                                                    bool mutableMayBeName) {
    cursor_.consume(TokenType::LPAREN, "பொழி-203", openingLine);
    std::vector<Param> params;
    if (!cursor_.check(TokenType::RPAREN)) {
        do {
            cursor_.skipNewlines();
            Param param;
            const bool isMutableName =
                mutableMayBeName && cursor_.check(TokenType::IDENTIFIER) && cursor_.peek().value == "மாற்று";
            if (cursor_.checkKeyword("மாற்று") || isMutableName) {
                cursor_.advance();
                param.isMutable = true;
            }
            param.name = cursor_.consumeName("பொழி-232");
            params.push_back(std::move(param));
        } while (cursor_.accept(TokenType::COMMA));
    }
    cursor_.consume(TokenType::RPAREN, "பொழி-204", closingLine);
    return params;
}

/// The block after a function's colon.
std::unique_ptr<BlockStatement> FunctionGrammar::parseFunctionBody() {
    const ScopedIncrement inside(depth_);
    return parse_.blocks.parseBlockStatement(false);
}

StatementPtr FunctionGrammar::parseVagaiStatement() {
    cursor_.advance();
    const std::string name = cursor_.consume(TokenType::IDENTIFIER, "பொழி-210").value;
    parse_.blocks.parseIndentedHeader();
    int ordinal = 0;
    while (!cursor_.check(TokenType::DEDENT) && !cursor_.isAtEnd()) {
        const Token member = cursor_.consumeName("பொழி-210");
        declarations_.enums[name][member.value] = ordinal++;
        cursor_.consume(TokenType::NEWLINE, "பொழி-202");
        cursor_.skipNewlines();
    }
    cursor_.consume(TokenType::DEDENT, "பொழி-292");
    return nullptr;
}

StatementPtr FunctionGrammar::parseAbstractStructStatement() {
    cursor_.advance();
    Token name = cursor_.consume(TokenType::IDENTIFIER, "பொழி-210");
    parse_.blocks.parseIndentedHeader();
    std::vector<AbstractMethod> methods;
    while (!cursor_.check(TokenType::DEDENT) && !cursor_.isAtEnd()) {
        methods.push_back(parseAbstractMethod());
        cursor_.consume(TokenType::NEWLINE, "பொழி-202");
        cursor_.skipNewlines();
    }
    cursor_.consume(TokenType::DEDENT, "பொழி-292");
    auto node = std::make_unique<AbstractStructDefinitionStatement>(std::move(name), std::move(methods));
    declarations_.abstractStructs[node->name.value] = node.get();
    return node;
}

/// செயல் name ( தான் { , name } ) [ : விடு ]
AbstractMethod FunctionGrammar::parseAbstractMethod() {
    if (!cursor_.checkKeyword("செயல்")) {
        cursor_.பிழை("பொழி-210", cursor_.peek().line);
    }
    cursor_.advance();
    AbstractMethod method;
    method.name = cursor_.consume(TokenType::IDENTIFIER, "பொழி-231");
    method.params = parseParameters(method.name.line, -1, true);
    if (method.params.empty() || !isSelf(method.params.front().name)) {
        cursor_.பிழை("பொழி-271", method.name.line);
    }
    if (cursor_.accept(TokenType::COLON)) {
        cursor_.skipNewlines();
        cursor_.accept(TokenType::INDENT);
        if (!cursor_.checkKeyword("விடு")) {
            cursor_.பிழை("பொழி-210", cursor_.peek().line);
        }
        cursor_.advance();
    }
    return method;
}

} // namespace pozhil
