#include "parser/parser.h"
#include "parser/siblings.h"

#include <string_view>
#include <unordered_map>
#include <utility>

namespace pozhil {
namespace {

using ParameterCounts = std::unordered_map<std::string_view, std::size_t>;

/// Number of parameters of each method, of the last one where several have a name.
ParameterCounts parameterCounts(const StructDefinitionStatement& structure) {
    ParameterCounts counts;
    for (const auto& method : structure.methods) {
        counts[method->name.value] = method->params.size();
    }
    return counts;
}

} // namespace

/// கட்டமைப்பு name [ ( parent ) ] : members
StatementPtr Parser::parseStructDefinitionStatement() {
    advance();
    Token name = consumeName("பொழி-210");
    Token parent = name;
    const std::int32_t line = peek().line;
    const bool hasParent = accept(TokenType::LPAREN);
    if (hasParent) {
        parent = consume(TokenType::IDENTIFIER, "பொழி-210");
        consume(TokenType::RPAREN, "பொழி-204", line);
    }
    parseIndentedHeader();
    auto structure = std::make_unique<StructDefinitionStatement>(std::move(name), std::move(parent), hasParent);
    Siblings siblings(*this);
    while (!check(TokenType::DEDENT) && !is_at_end()) {
        siblings.next();
        parseStructMember(*structure);
        skipNewlines();
    }
    consume(TokenType::DEDENT, "பொழி-292");
    if (hasParent) {
        checkParent(*structure);
    }
    structs_[structure->name.value] = structure.get();
    return structure;
}

/// A method, a field, or a group of them behind a visibility word. The default is public.
void Parser::parseStructMember(StructDefinitionStatement& structure) {
    if (checkKeyword("செயல்")) {
        parseMethod(structure);
        return;
    }
    const bool isPrivate = check(TokenType::PRIVATE);
    const bool hasVisibility = isPrivate || checkKeyword("பொது");
    if (hasVisibility) {
        advance();
    }
    if (hasVisibility && check(TokenType::LPAREN)) {
        parseVisibilityGroup(structure, isPrivate);
    } else {
        parseSingleMember(structure, isPrivate);
    }
}

/// A method that stands directly in the body. It may do without தான், unlike one behind a visibility word.
void Parser::parseMethod(StructDefinitionStatement& structure) {
    advance();
    Token name = consumeName("பொழி-231");
    std::vector<Param> params = parseParameters(name.line, false);
    consume(TokenType::COLON, "பொழி-202");
    structure.methods.push_back(
        std::make_unique<FunctionDefinitionStatement>(std::move(name), std::move(params), parseFunctionBody()));
}

/// ( members ), over as many lines as they need; their indentation means nothing.
void Parser::parseVisibilityGroup(StructDefinitionStatement& structure, bool isPrivate) {
    const std::int32_t line = advance().line;
    Siblings siblings(*this);
    skipLayout();
    while (!check(TokenType::RPAREN) && !is_at_end()) {
        siblings.next();
        if (checkKeyword("பொது")) {
            பிழை("பொழி-210", peek().line);
        }
        addMember(structure, parseStatement(true), isPrivate);
        skipLayout();
    }
    consume(TokenType::RPAREN, "பொழி-204", line);
}

void Parser::parseSingleMember(StructDefinitionStatement& structure, bool isPrivate) {
    if (check(TokenType::IDENTIFIER) && peekBehind(1).type == TokenType::ASSIGN) {
        addMember(structure, parseFieldDeclaration(), isPrivate);
        consume(TokenType::NEWLINE, "பொழி-202");
        return;
    }
    StatementPtr member = parseStatement(true);
    const bool isNull = member == nullptr;
    addMember(structure, std::move(member), isPrivate);
    endStatementInBlock(isNull);
}

/// Sorts a parsed member into fields and methods. Anything else has no place in a structure and no effect, but the
/// structures that it defines stay known, and so it must outlive the tables.
void Parser::addMember(StructDefinitionStatement& structure, StatementPtr member, bool isPrivate) {
    if (auto* field = dynamic_cast<VarDeclaration*>(member.get())) {
        static_cast<void>(member.release());
        field->isPrivate = isPrivate;
        structure.fields.emplace_back(field);
    } else if (auto* method = dynamic_cast<FunctionDefinitionStatement*>(member.get())) {
        static_cast<void>(member.release());
        method->isPrivate = isPrivate;
        structure.methods.emplace_back(method);
    } else if (member != nullptr) {
        droppedStatements_.push_back(std::move(member));
    }
}

/// name = expr
StatementPtr Parser::parseFieldDeclaration() {
    std::string name = advance().value;
    advance();
    return std::make_unique<VarDeclaration>(std::move(name), parseExpression(), VarType::Auto);
}

/// A child has every method that its abstract parent asks for, with as many parameters.
void Parser::checkParent(const StructDefinitionStatement& structure) const {
    const auto abstractParent = abstractStructs_.find(structure.parent.value);
    if (abstractParent == abstractStructs_.end()) {
        if (structs_.count(structure.parent.value) == 0) {
            பிழை("பொழி-272", structure.name.line);
        }
        return;
    }
    const ParameterCounts own = parameterCounts(structure);
    for (const AbstractMethod& method : abstractParent->second->methods) {
        const auto found = own.find(method.name.value);
        if (found == own.end() || found->second != method.params.size()) {
            பிழை("பொழி-273", structure.name.line);
        }
    }
}

} // namespace pozhil
