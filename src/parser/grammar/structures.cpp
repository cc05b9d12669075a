#include "parser/grammar/structures.h"

#include "parser/file_parse.h"

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

StatementPtr StructureGrammar::parseStructDefinitionStatement() {
    cursor_.advance();
    Token name = cursor_.consumeName("பொழி-210");
    Token parent = name;
    const std::int32_t line = cursor_.peek().line;
    const bool hasParent = cursor_.accept(TokenType::LPAREN);
    if (hasParent) {
        parent = cursor_.consume(TokenType::IDENTIFIER, "பொழி-210");
        cursor_.consume(TokenType::RPAREN, "பொழி-204", line);
    }
    parse_.blocks.parseIndentedHeader();
    auto structure = std::make_unique<StructDefinitionStatement>(std::move(name), std::move(parent), hasParent);
    SideBySide siblings(nesting_);
    while (!cursor_.check(TokenType::DEDENT) && !cursor_.isAtEnd()) {
        siblings.next();
        recovery_.attemptStatement([&] {
            parseStructMember(*structure);
            cursor_.skipNewlines();
        });
    }
    cursor_.consume(TokenType::DEDENT, "பொழி-292");
    if (hasParent) {
        checkParent(*structure);
    }
    declarations_.structs[structure->name.value] = structure.get();
    return structure;
}

/// A method, a field, or a group of them after a visibility word. The default is public.
void StructureGrammar::parseStructMember(StructDefinitionStatement& structure) {
    if (cursor_.checkKeyword("செயல்")) {
        structure.methods.push_back(parse_.functions.parseMethod());
        return;
    }
    const bool isPrivate = cursor_.check(TokenType::PRIVATE);
    const bool hasVisibility = isPrivate || cursor_.checkKeyword("பொது");
    if (hasVisibility) {
        cursor_.advance();
    }
    if (hasVisibility && cursor_.check(TokenType::LPAREN)) {
        parseVisibilityGroup(structure, isPrivate);
    } else {
        parseSingleMember(structure, isPrivate);
    }
}

/// ( members ), over as many lines as they need; their indentation means nothing.
void StructureGrammar::parseVisibilityGroup(StructDefinitionStatement& structure, bool isPrivate) {
    const std::int32_t line = cursor_.advance().line;
    SideBySide siblings(nesting_);
    cursor_.skipLayout();
    while (!cursor_.check(TokenType::RPAREN) && !cursor_.isAtEnd()) {
        siblings.next();
        const auto parseMember = [&] {
            if (cursor_.checkKeyword("பொது")) {
                cursor_.பிழை("பொழி-210", cursor_.peek().line);
            }
            addMember(structure, parseStatement(true), isPrivate);
        };
        recovery_.attemptStatement(parseMember, Recovery::Enclosure::Brackets);
        cursor_.skipLayout();
    }
    cursor_.consume(TokenType::RPAREN, "பொழி-204", line);
}

void StructureGrammar::parseSingleMember(StructDefinitionStatement& structure, bool isPrivate) {
    if (cursor_.check(TokenType::IDENTIFIER) && cursor_.peekAhead(1).type == TokenType::ASSIGN) {
        const std::size_t first = cursor_.position();
        addMember(structure, placed(first, parseFieldDeclaration()), isPrivate);
        cursor_.consume(TokenType::NEWLINE, "பொழி-202");
        return;
    }
    StatementPtr member = parseStatement(true);
    const bool isNull = member == nullptr;
    addMember(structure, std::move(member), isPrivate);
    parse_.blocks.endStatementInBlock(isNull);
}

/// Sorts a parsed member into fields and methods. Anything else has no place in a structure and no effect, but the
/// structures that it defines stay known, and so it must outlive the tables.
void StructureGrammar::addMember(StructDefinitionStatement& structure, StatementPtr member, bool isPrivate) {
    if (auto* field = dynamic_cast<VarDeclaration*>(member.get())) {
        static_cast<void>(member.release());
        field->isPrivate = isPrivate;
        structure.fields.emplace_back(field);
    } else if (auto* method = dynamic_cast<FunctionDefinitionStatement*>(member.get())) {
        static_cast<void>(member.release());
        method->isPrivate = isPrivate;
        structure.methods.emplace_back(method);
    } else if (member != nullptr) {
        declarations_.droppedStatements.push_back(std::move(member));
    }
}

StatementPtr StructureGrammar::parseFieldDeclaration() {
    std::string name = cursor_.advance().value;
    cursor_.advance();
    return std::make_unique<VarDeclaration>(std::move(name), parseExpression(), VarType::Auto);
}

/// A child has every method that its abstract parent asks for, with as many parameters.
void StructureGrammar::checkParent(const StructDefinitionStatement& structure) const {
    const auto abstractParent = declarations_.abstractStructs.find(structure.parent.value);
    if (abstractParent == declarations_.abstractStructs.end()) {
        if (declarations_.structs.count(structure.parent.value) == 0) {
            cursor_.பிழை("பொழி-272", structure.name.line);
        }
        return;
    }
    const ParameterCounts own = parameterCounts(structure);
    for (const AbstractMethod& method : abstractParent->second->methods) {
        const auto found = own.find(method.name.value);
        if (found == own.end() || found->second != method.params.size()) {
            cursor_.பிழை("பொழி-273", structure.name.line);
        }
    }
}

} // namespace pozhil
