#include "tools/language_server/reaches.h"

#include <limits>

namespace pozhil::language_server {
namespace {

bool isOpeningType(TokenType type) {
    return type == TokenType::LPAREN || type == TokenType::LBRACKET || type == TokenType::LBRACE ||
           type == TokenType::INDENT;
}

bool isClosingType(TokenType type) {
    return type == TokenType::RPAREN || type == TokenType::RBRACKET || type == TokenType::RBRACE ||
           type == TokenType::DEDENT;
}

/// By how much brackets that callers and widgets take nest deeper after a token.
int roundDepth(const Outline& outline, std::size_t at) {
    return outline.isType(at, TokenType::LPAREN) ? 1 : outline.isType(at, TokenType::RPAREN) ? -1 : 0;
}

} // namespace

std::size_t closingBracket(const Outline& outline, std::size_t open) {
    int depth = 0;
    for (std::size_t at = open; at < outline.scanned.tokens.size(); ++at) {
        depth += roundDepth(outline, at);
        if (depth <= 0) {
            return at;
        }
    }
    return outline.scanned.tokens.size();
}

std::size_t endOfElement(const Outline& outline, std::size_t name) {
    std::size_t after = name;
    for (int depth = 0; after < outline.scanned.tokens.size() && depth >= 0; ++after) {
        depth += roundDepth(outline, after);
    }
    return outline.isType(after, TokenType::LPAREN) ? closingBracket(outline, after) : after - 1;
}

std::uint32_t endOfLambda(const Outline& outline, std::size_t sign) {
    const bool isBlock = outline.isType(sign + 1, TokenType::NEWLINE) || outline.isType(sign + 1, TokenType::INDENT);
    int depth = 0;
    std::size_t at = sign + 1;
    for (; at < outline.scanned.tokens.size(); ++at) {
        const TokenType type = outline.token(at).type;
        depth += isOpeningType(type) ? 1 : isClosingType(type) ? -1 : 0;
        const bool isBorder = !isBlock && depth == 0 && (type == TokenType::COMMA || type == TokenType::NEWLINE);
        if (depth < 0 || isBorder || (isBlock && depth == 0 && type == TokenType::DEDENT)) {
            break;
        }
    }
    return at < outline.scanned.tokens.size() ? outline.placeOf(at).begin : std::numeric_limits<std::uint32_t>::max();
}

} // namespace pozhil::language_server
