#include "parser/second/definitions.h"

#include "parser/second/file_parse.h"
#include "parser/second/names.h"

namespace pozhil::second {
namespace {

bool isSelf(const Token& token) {
    return token.value == "தான்" || token.value == "self";
}

} // namespace

StatementPtr DefinitionGrammar::parseFunction() {
    return parseDefinition("செயலின் பெயர்", false);
}

std::unique_ptr<FunctionDefinitionStatement> DefinitionGrammar::parseMethod() {
    return parseDefinition("கட்டமைப்பின் செயலுக்குப் பெயர்", true);
}

/// A method is called after a dot only, so that every word may be its name.
std::unique_ptr<FunctionDefinitionStatement> DefinitionGrammar::parseDefinition(const char* what, bool isMethod) {
    const std::size_t first = tokens_.position();
    tokens_.advance();
    const ByteRange nameRange = tokens_.rangeOf(tokens_.position());
    const bool isAnyWord = isMethod && isWord(tokens_.peek());
    Token name = isAnyWord ? tokens_.advance() : consumeName(what);
    name.type = TokenType::IDENTIFIER;
    std::vector<Param> params = parse_.functionValues.parseParameters();
    if (isMethod) {
        checkSelf(params, nameRange, name);
    }
    consumeColon();
    BlockPtr body = parse_.blocks.parseFunctionBody();
    auto function = make<FunctionDefinitionStatement>(first, std::move(name), std::move(params), std::move(body));
    notePlace(&function->name, nameRange);
    return function;
}

void DefinitionGrammar::checkSelf(const std::vector<Param>& params, ByteRange nameRange, const Token& name) {
    if (params.empty() || !isSelf(params.front().name)) {
        note(fault::METHOD_WITHOUT_SELF, nameRange, {name.value});
    }
}

StatementPtr DefinitionGrammar::parseEnumeration() {
    const std::size_t first = tokens_.position();
    tokens_.advance();
    const ByteRange nameRange = tokens_.rangeOf(tokens_.position());
    Token name = consumeName("வகையின் பெயர்");
    std::vector<Token> members;
    std::vector<ByteRange> ranges;
    parse_.blocks.parseLines([&] { parseMembers(members, ranges); });
    auto enumeration = make<EnumerationStatement>(first, std::move(name), std::move(members));
    notePlace(&enumeration->name, nameRange);
    for (std::size_t index = 0; index < ranges.size(); ++index) {
        notePlace(&enumeration->members[index], ranges[index]);
    }
    return enumeration;
}

/// A name on a line, or several with commas between them. After a dot any word can stand, so that any may be one.
void DefinitionGrammar::parseMembers(std::vector<Token>& members, std::vector<ByteRange>& ranges) {
    do {
        const std::size_t index = tokens_.position();
        if (!isWord(tokens_.peek())) {
            failHere(fault::NO_NAME, {"வகையின் உறுப்பு", tokens_.shown(index)});
        }
        const Token& word = tokens_.advance();
        members.push_back({TokenType::IDENTIFIER, word.value, word.line});
        ranges.push_back(tokens_.rangeOf(index));
    } while (tokens_.accept(TokenType::COMMA) && !tokens_.isAtLineEnd());
    consumeStatementEnd();
}

StatementPtr DefinitionGrammar::parseAbstractStructure() {
    const std::size_t first = tokens_.position();
    tokens_.advance();
    const ByteRange nameRange = tokens_.rangeOf(tokens_.position());
    Token name = consumeName("வடிவமைப்பின் பெயர்");
    std::vector<AbstractMethod> methods;
    std::vector<ByteRange> ranges;
    parse_.blocks.parseLines([&] {
        const ByteRange methodRange = tokens_.rangeOf(tokens_.position() + 1);
        methods.push_back(parseAbstractMethod());
        ranges.push_back(methodRange);
        consumeStatementEnd();
    });
    auto structure = make<AbstractStructDefinitionStatement>(first, std::move(name), std::move(methods));
    notePlace(&structure->name, nameRange);
    for (std::size_t index = 0; index < ranges.size(); ++index) {
        notePlace(&structure->methods[index].name, ranges[index]);
    }
    return structure;
}

/// செயல் name ( தான் { , name } ) [ : விடு ]
AbstractMethod DefinitionGrammar::parseAbstractMethod() {
    const std::size_t first = tokens_.position();
    if (!tokens_.acceptWord("செயல்")) {
        failHere(fault::NO_MEMBER, {tokens_.shown(first)});
    }
    AbstractMethod method;
    const ByteRange nameRange = tokens_.rangeOf(tokens_.position());
    if (!isWord(tokens_.peek())) {
        failHere(fault::NO_NAME, {"கட்டமைப்பின் செயலுக்குப் பெயர்", tokens_.shown(tokens_.position())});
    }
    method.name = tokens_.advance();
    method.name.type = TokenType::IDENTIFIER;
    method.params = parse_.functionValues.parseParameters();
    checkSelf(method.params, nameRange, method.name);
    if (!tokens_.accept(TokenType::COLON)) {
        return method;
    }
    const bool isIndented = tokens_.check(TokenType::NEWLINE) && tokens_.peek(1).type == TokenType::INDENT;
    if (isIndented) {
        tokens_.advance();
        tokens_.advance();
    }
    if (!tokens_.acceptWord("விடு")) {
        failHere(fault::NO_SIGN, {"'விடு'", tokens_.shown(tokens_.position())});
    }
    if (isIndented) {
        tokens_.accept(TokenType::NEWLINE);
        if (!tokens_.accept(TokenType::DEDENT)) {
            failHere(fault::NO_STATEMENT_END, {"'விடு'", tokens_.shown(tokens_.position())});
        }
    }
    return method;
}

} // namespace pozhil::second
