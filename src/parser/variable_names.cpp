#include "parser/variable_names.h"

#include "parser/widget_tokens.h"

namespace pozhil {

bool isValidVariableName(const Token& token) {
    switch (token.type) {
    case TokenType::IDENTIFIER:
    case TokenType::KEYWORD:
    case TokenType::PAGE:
    case TokenType::WIDTH:
    case TokenType::HEIGHT:
    case TokenType::STYLE:
    case TokenType::ON_PRESS:
    case TokenType::BACKGROUND: return true;
    default: return isWidgetToken(token);
    }
}

} // namespace pozhil
