#include "parser/second/literals.h"

#include "base/number_text.h"

#include <algorithm>

namespace pozhil::second {
namespace {

bool isHexDigit(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool isSign(const UnaryExpression& unary) {
    return unary.op.type == TokenType::UNARY_MINUS || unary.op.type == TokenType::UNARY_PLUS;
}

template <class... Nodes> bool isOneOf(const Expression& value) {
    return ((nodeCast<Nodes>(&value) != nullptr) || ...);
}

} // namespace

LiteralKind literalKind(const Expression& value) {
    if (isOneOf<NumberLiteral, DoubleLiteral>(value)) {
        return LiteralKind::Number;
    }
    if (isOneOf<StringLiteral, ColorExpression>(value)) {
        return LiteralKind::Text;
    }
    if (isOneOf<BooleanLiteral>(value)) {
        return LiteralKind::Truth;
    }
    if (isOneOf<PercentageLiteral>(value)) {
        return LiteralKind::Percentage;
    }
    if (isOneOf<ListLiteral>(value)) {
        return LiteralKind::List;
    }
    if (isOneOf<KeyedMapLiteral>(value)) {
        return LiteralKind::Map;
    }
    if (isOneOf<LambdaExpression, FunctionExpression>(value)) {
        return LiteralKind::Function;
    }
    if (const auto* grouping = nodeCast<GroupingExpression>(&value)) {
        return literalKind(*grouping->inner);
    }
    const auto* sign = nodeCast<UnaryExpression>(&value);
    const bool isSigned = sign != nullptr && isSign(*sign) && literalKind(*sign->right) == LiteralKind::Number;
    return isSigned ? LiteralKind::Number : LiteralKind::None;
}

const char* literalName(LiteralKind kind) {
    switch (kind) {
    case LiteralKind::Number: return "எண்";
    case LiteralKind::Percentage: return "விழுக்காடு";
    case LiteralKind::Text: return "உரை";
    case LiteralKind::Truth: return "நிலை";
    case LiteralKind::List: return "பட்டியல்";
    case LiteralKind::Map: return "அகராதி";
    case LiteralKind::Function: return "வினை";
    case LiteralKind::None: break;
    }
    return "மதிப்பு";
}

std::optional<float> writtenNumber(const Expression& value) {
    if (const auto* whole = nodeCast<NumberLiteral>(&value)) {
        return floatOf(whole->value);
    }
    if (const auto* fraction = nodeCast<DoubleLiteral>(&value)) {
        return floatOf(fraction->value);
    }
    if (const auto* grouping = nodeCast<GroupingExpression>(&value)) {
        return writtenNumber(*grouping->inner);
    }
    const auto* sign = nodeCast<UnaryExpression>(&value);
    const std::optional<float> number = sign == nullptr ? std::nullopt : writtenNumber(*sign->right);
    if (!number || !isSign(*sign)) {
        return std::nullopt;
    }
    return sign->op.type == TokenType::UNARY_MINUS ? -*number : *number;
}

bool isHexColour(std::string_view text) {
    constexpr std::size_t OPAQUE = 7;
    constexpr std::size_t WITH_OPACITY = 9;
    return (text.size() == OPAQUE || text.size() == WITH_OPACITY) && text.front() == '#' &&
           std::all_of(text.begin() + 1, text.end(), isHexDigit);
}

} // namespace pozhil::second
