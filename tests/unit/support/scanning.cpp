#include "support/scanning.h"

#include "scanner/lexer.h"
#include "support/diagnosis.h"
#include "support/token_kinds.h"

namespace pozhil::test {
namespace {

constexpr const char* FILE_NAME = "நிரல்.பொழில்";

std::string written(const Token& token) {
    std::string text(TOKEN_KINDS[static_cast<std::size_t>(token.type)].name);
    return token.value.empty() ? text : text + "(" + token.value + ")";
}

} // namespace

std::vector<Token> scan(const std::string& source) {
    return Lexer(source, FILE_NAME).tokenize();
}

std::string tokens(const std::string& source) {
    return tokenText(scan(source));
}

std::string tokenText(const std::vector<Token>& tokens) {
    std::string text;
    int line = 0;
    for (const Token& token : tokens) {
        if (token.line != line) {
            line = token.line;
            text += (text.empty() ? "" : "\n") + std::to_string(line) + ":";
        }
        text += " " + written(token);
    }
    return text;
}

std::string scanFault(const std::string& source) {
    return diagnosisOf([&] { scan(source); });
}

} // namespace pozhil::test
