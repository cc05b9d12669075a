#include "support/parsing.h"

#include "scanner/lexer.h"
#include "support/diagnosis.h"
#include "support/tree_text.h"

#include <stdexcept>
#include <utility>

namespace pozhil::test {
namespace {

constexpr const char* FILE_NAME = "நிரல்.பொழில்";

std::string printing(const std::string& expression) {
    return "அச்சிடு(" + expression + ")";
}

std::string applicationWith(const std::string& widget) {
    return "வலைதளம் (தலைமை() குமரி(\n" + widget + ") வரையறை())";
}

Program parseTokens(std::vector<Token> tokens) {
    tokens.push_back({TokenType::END_OF_FILE, "", tokens.empty() ? 1 : tokens.back().line});
    return Parser(std::move(tokens), "", FILE_NAME).parse();
}

} // namespace

Program parseText(const std::string& source, const std::vector<std::string>& moduleDirectories) {
    return Parser(Lexer(source, FILE_NAME).tokenize(), source, FILE_NAME, moduleDirectories).parse();
}

std::string tree(const std::string& source) {
    return treeText(parseText(source));
}

std::string treeWithLines(const std::string& source) {
    return treeText(parseText(source), Lines::Shown);
}

std::string valueTree(const std::string& expression) {
    const Program program = parseText(printing(expression));
    if (program.statements.size() != 1) {
        throw std::logic_error("not one statement: " + treeText(program));
    }
    const auto& print = dynamic_cast<const PrintStatement&>(*program.statements.front());
    return treeText(print.arguments.at(0).get());
}

std::string widgetTree(const std::string& widget) {
    const Program program = parseText(applicationWith(widget));
    if (program.statements.size() != 1) {
        throw std::logic_error("not one statement: " + treeText(program));
    }
    return treeText(dynamic_cast<const WebAppNode&>(*program.statements.front()).uiBody.get());
}

std::string treeOfTokens(std::vector<Token> tokens) {
    return treeText(parseTokens(std::move(tokens)));
}

std::string fault(const std::string& source) {
    return diagnosisOf([&] { parseText(source); });
}

std::string valueFault(const std::string& expression) {
    return fault(printing(expression));
}

std::string widgetFault(const std::string& widget) {
    return fault(applicationWith(widget));
}

std::string faultOfTokens(const std::vector<Token>& tokens) {
    return diagnosisOf([&] { parseTokens(tokens); });
}

} // namespace pozhil::test
