#include "support/generating.h"

#include "generator/first/generator.h"
#include "generator/web/page/runtime_text.h"
#include "scanner/lexer.h"
#include "support/diagnosis.h"

#include <iterator>
#include <stdexcept>

namespace pozhil::test {
namespace {

constexpr const char* FILE_NAME = "நிரல்.பொழில்";
constexpr std::int32_t LINE = 3;

/// A parsed source with statements behind it, and the tables that belong to it.
struct Parsed {
    Parsed(const std::string& theSource, StatementList behind)
        : source(theSource), parser(Lexer(theSource, FILE_NAME).tokenize(), theSource, FILE_NAME),
          program(parser.parse()) {
        std::move(behind.begin(), behind.end(), std::back_inserter(program.statements));
    }

    std::string generate() const {
        return Generator(program, parser.functions(), parser.structs(), parser.abstractStructs(), source, FILE_NAME)
            .generate();
    }

    std::string source;
    Parser parser;
    Program program;
};

/// What stands in \p text between the first \p before and the last \p behind.
std::string between(const std::string& text, const std::string& before, const std::string& behind) {
    const std::size_t start = text.find(before);
    const std::size_t end = text.rfind(behind);
    if (start == std::string::npos || end == std::string::npos || end < start + before.size()) {
        throw std::logic_error("no such part:\n" + text);
    }
    return text.substr(start + before.size(), end - start - before.size());
}

template <class Node> std::unique_ptr<Node> inLine(std::unique_ptr<Node> node) {
    node->line = LINE;
    return node;
}

} // namespace

std::string generatedText(const std::string& source, StatementList behind) {
    return Parsed(source, std::move(behind)).generate();
}

std::string ownPart(const std::string& text) {
    const std::string lastSection = std::string(page_runtime::frame_helpers) + "#endif\n";
    const std::size_t start = text.find(lastSection);
    return start == std::string::npos ? text : text.substr(start + lastSection.size());
}

std::string mainBody(const std::string& source, StatementList behind) {
    return between(ownPart(generatedText(source, std::move(behind))), "int main() {\n", "return 0;\n}\n");
}

std::string functionBody(StatementList statements, const std::string& source) {
    auto body = make<BlockStatement>();
    body->statements = std::move(statements);
    const std::vector<Param> parameters = {{{TokenType::IDENTIFIER, "உ", LINE}, false}};
    StatementPtr function =
        make<FunctionDefinitionStatement>(Token{TokenType::IDENTIFIER, "வினவு", LINE}, parameters, std::move(body));
    return between(ownPart(generatedText(source, listOf(std::move(function)))),
                   "std::any fn_வினவு(std::any உ) {\n    CallTracker _tracker(\"நிரல்.பொழில்\");\n",
                   "\n    return std::any(); // Default return\n");
}

std::string generatorFault(const std::string& source, StatementList behind) {
    const Parsed parsed(source, std::move(behind));
    return diagnosisOf([&] { parsed.generate(); });
}

std::string generatorReport(const std::string& source, StatementList behind) {
    const Parsed parsed(source, std::move(behind));
    return reportOf([&] { parsed.generate(); });
}

ExpressionPtr variable(const std::string& name) {
    return inLine(make<VariableAccess>(name));
}

ExpressionPtr number(const std::string& value) {
    return inLine(make<NumberLiteral>(value));
}

ExpressionPtr text(const std::string& value) {
    return inLine(make<StringLiteral>(value));
}

ExpressionPtr member(ExpressionPtr object, const std::string& name) {
    return inLine(make<GetExpression>(std::move(object), Token{TokenType::IDENTIFIER, name, LINE}));
}

ExpressionPtr call(const std::string& name, ExpressionList arguments) {
    return inLine(make<CallExpression>(variable(name), std::move(arguments)));
}

StatementPtr assignment(const std::string& name, ExpressionPtr value) {
    return make<ExpressionStatement>(
        inLine(make<AssignmentExpression>(name, Token{TokenType::ASSIGN, "=", LINE}, std::move(value))));
}

Token word(const std::string& value) {
    return {TokenType::COMPOUND_ASSIGN, value, LINE};
}

} // namespace pozhil::test
