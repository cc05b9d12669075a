#include "parser/second/structures.h"

#include "parser/second/file_parse.h"
#include "parser/second/names.h"

namespace pozhil::second {

StatementPtr StructureGrammar::parseStructure() {
    const std::size_t first = tokens_.position();
    tokens_.advance();
    const ByteRange nameRange = tokens_.rangeOf(tokens_.position());
    Token name = consumeName("கட்டமைப்பின் பெயர்");
    Token parent = name;
    ByteRange parentRange = nameRange;
    const std::size_t opening = tokens_.position();
    const bool hasParent = tokens_.accept(TokenType::LPAREN);
    if (hasParent) {
        parentRange = tokens_.rangeOf(tokens_.position());
        parent = consumeName("பெற்றோரின் பெயர்");
        consumeClosingOfOne(TokenType::RPAREN, opening);
    }
    auto structure = std::make_unique<StructDefinitionStatement>(std::move(name), std::move(parent), hasParent);
    parse_.blocks.parseLines([&] { parseMember(*structure); });
    place(*structure, first);
    notePlace(&structure->name, nameRange);
    notePlace(&structure->parent, parentRange);
    return structure;
}

/// A method, a field, or a group of them after a visibility word. Without one all are public.
void StructureGrammar::parseMember(StructDefinitionStatement& structure) {
    enter();
    const bool isPrivate = tokens_.check(TokenType::PRIVATE);
    const bool hasVisibility = (isPrivate || tokens_.checkWord("பொது")) && tokens_.peek(1).type != TokenType::ASSIGN;
    if (hasVisibility) {
        tokens_.advance();
    }
    if (hasVisibility && tokens_.check(TokenType::LPAREN)) {
        parseGroup(structure, isPrivate);
    } else {
        parseMethodOrField(structure, hasVisibility && isPrivate);
    }
    consumeStatementEnd();
}

/// ( members ), with line ends or commas between them.
void StructureGrammar::parseGroup(StructDefinitionStatement& structure, bool isPrivate) {
    const std::size_t opening = tokens_.position();
    tokens_.advance();
    Parts siblings(height_);
    while (!tokens_.check(TokenType::RPAREN) && !tokens_.isAtEnd()) {
        siblings.next();
        recovery_.attempt([&] {
            if (tokens_.accept(TokenType::NEWLINE) || parse_.blocks.takeStrayDedent() ||
                tokens_.accept(TokenType::DEDENT) || parse_.blocks.takeStrayIndent()) {
                return;
            }
            parseMethodOrField(structure, isPrivate);
            if (!tokens_.accept(TokenType::COMMA)) {
                consumeStatementEnd();
            }
        });
    }
    consumeClosing(TokenType::RPAREN, opening);
}

/// A structure without members holds விடு.
void StructureGrammar::parseMethodOrField(StructDefinitionStatement& structure, bool isPrivate) {
    const std::size_t first = tokens_.position();
    if (parse_.statements.isFunctionAhead()) {
        auto method = parse_.definitions.parseMethod();
        method->isPrivate = isPrivate;
        structure.methods.push_back(std::move(method));
    } else if (isWord(tokens_.peek()) && tokens_.peek(1).type == TokenType::ASSIGN) {
        auto field = parseField();
        field->isPrivate = isPrivate;
        structure.fields.push_back(std::move(field));
    } else if (!tokens_.acceptWord("விடு")) {
        failHere(fault::NO_MEMBER, {tokens_.shown(first)});
    }
}

/// A field is read after a dot only, so that every word may be its name.
std::unique_ptr<VarDeclaration> StructureGrammar::parseField() {
    const std::size_t first = tokens_.position();
    std::string name = tokens_.advance().value;
    tokens_.advance();
    ExpressionPtr value = parseExpression();
    return make<VarDeclaration>(first, std::move(name), std::move(value), VarType::Auto);
}

} // namespace pozhil::second
