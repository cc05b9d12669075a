#include "tools/language_server/member_kinds.h"

#include "language/second/builtins.h"

#include <algorithm>

namespace pozhil::language_server {
namespace {

namespace owner = language::second::owner;
using language::second::ResultKind;

bool isSame(const KnownKind& one, const KnownKind& other) {
    const auto structureOf = [](const KnownKind& kind) { return kind.structure ? kind.structure->symbol : nullptr; };
    return one.owners == other.owners && structureOf(one) == structureOf(other);
}

std::optional<KnownKind> kindOf(ResultKind kind) {
    switch (kind) {
    case ResultKind::Text: return KnownKind{owner::TEXT};
    case ResultKind::List: return KnownKind{owner::LIST};
    case ResultKind::Map: return KnownKind{owner::MAP};
    case ResultKind::Time: return KnownKind{owner::TIME};
    default: return std::nullopt;
    }
}

bool isOpening(const Outline& outline, std::size_t token) {
    return outline.isType(token, TokenType::LPAREN) || outline.isType(token, TokenType::LBRACKET) ||
           outline.isType(token, TokenType::LBRACE);
}

bool isClosing(const Outline& outline, std::size_t token) {
    return outline.isType(token, TokenType::RPAREN) || outline.isType(token, TokenType::RBRACKET) ||
           outline.isType(token, TokenType::RBRACE);
}

/// The bracket that this one closes, NO_INDEX if there is none.
std::size_t openingOf(const Outline& outline, std::size_t closing) {
    int depth = 0;
    for (std::size_t at = closing; at != NO_INDEX; at = at == 0 ? NO_INDEX : at - 1) {
        depth += isClosing(outline, at) ? 1 : isOpening(outline, at) ? -1 : 0;
        if (depth == 0) {
            return at;
        }
    }
    return NO_INDEX;
}

/// Finds kinds by the tokens of a source, the first of those that are visible.
class KindSearch {
public:
    explicit KindSearch(const std::vector<NamedSource>& files) : files_(files), outline_(*files.front().outline) {}

    /// Of a value that ends with this token.
    std::optional<KnownKind> ofValueUpTo(std::size_t last) const {
        if (outline_.isType(last, TokenType::STRING)) {
            return isAlone(last) ? std::optional<KnownKind>(KnownKind{owner::TEXT}) : std::nullopt;
        }
        if (isClosing(outline_, last)) {
            return ofBrackets(openingOf(outline_, last), last);
        }
        return outline_.isType(last, TokenType::IDENTIFIER) && isAlone(last) ? ofVariable(last) : std::nullopt;
    }

private:
    /// Whether a value begins there, instead of going on.
    bool isAlone(std::size_t first) const { return first == 0 || !outline_.isType(first - 1, TokenType::DOT); }

    std::optional<KnownKind> ofBrackets(std::size_t opening, std::size_t closing) const {
        if (opening == NO_INDEX) {
            return std::nullopt;
        }
        const bool isAfterValue = opening > 0 && (outline_.isWord(opening - 1) || isClosing(outline_, opening - 1)) &&
                                  !outline_.isType(opening - 1, TokenType::KEYWORD);
        if (outline_.isType(closing, TokenType::RPAREN)) {
            return isAfterValue && isAlone(opening - 1) ? ofCall(opening - 1) : std::nullopt;
        }
        if (isAfterValue) {
            return std::nullopt; // an element
        }
        return KnownKind{outline_.isType(closing, TokenType::RBRACKET) ? owner::LIST : owner::MAP};
    }

    std::optional<KnownKind> ofCall(std::size_t name) const {
        const std::vector<FoundSymbol> meanings = meaningsOf(files_, name);
        if (!meanings.empty()) {
            const bool isStructure = meanings.front().symbol->kind == SymbolKind::Structure;
            return isStructure ? std::optional<KnownKind>(KnownKind{owner::NONE, meanings.front()}) : std::nullopt;
        }
        const auto* const row =
            language::second::findBuiltin(language::second::BuiltinForm::Call, outline_.token(name).value);
        return row == nullptr ? std::nullopt : kindOf(row->result);
    }

    /// Where the statement ends that a token is of.
    std::size_t lastOfStatement(std::size_t token) const {
        while (token + 1 < outline_.scanned.tokens.size() && !outline_.isType(token + 1, TokenType::NEWLINE) &&
               !outline_.isType(token + 1, TokenType::END_OF_FILE) && !outline_.isType(token + 1, TokenType::DEDENT)) {
            ++token;
        }
        return token;
    }

    /// Of the value that stands alone from one token to another.
    std::optional<KnownKind> ofWholeValue(std::size_t first, std::size_t last) const {
        if (first > last) {
            return std::nullopt;
        }
        std::size_t begin = last;
        if (isClosing(outline_, last)) {
            begin = openingOf(outline_, last);
            const bool isCall = begin != NO_INDEX && begin == first + 1 && outline_.isWord(first);
            begin = isCall ? first : begin;
        }
        const bool isVariable = outline_.isType(last, TokenType::IDENTIFIER);
        return begin == first && !isVariable ? ofValueUpTo(last) : std::nullopt;
    }

    bool mayBeGivenOtherwise(std::size_t token) const {
        const bool isInBracket = token > 1 && outline_.isType(token - 1, TokenType::LPAREN);
        const std::size_t before = token - (isInBracket ? 2 : 1);
        const bool isGivenByWord =
            token > 0 && (outline_.token(before).value == "ஒவ்வொன்றாக" || outline_.token(before).value == "பிடி");
        return isGivenByWord || outline_.isType(token + 1, TokenType::COMPOUND_ASSIGN);
    }

    std::optional<KnownKind> ofVariable(std::size_t name) const {
        const std::vector<FoundSymbol> meanings = meaningsOf(files_, name);
        if (meanings.size() != 1 || meanings.front().symbol->kind != SymbolKind::Variable || isChangedByCalls() ||
            meanings.front().file.source != files_.front().source) {
            return std::nullopt;
        }
        std::optional<KnownKind> kind;
        for (std::size_t at = 0; at < outline_.scanned.tokens.size(); ++at) {
            if (!isUseOf(*meanings.front().symbol, at)) {
                continue;
            }
            if (mayBeGivenOtherwise(at)) {
                return std::nullopt;
            }
            if (outline_.isType(at + 1, TokenType::ASSIGN)) {
                const auto given = ofWholeValue(at + 2, lastOfStatement(at));
                if (!given || (kind && !isSame(*kind, *given))) {
                    return std::nullopt;
                }
                kind = given;
            }
        }
        return kind;
    }

    /// In the first edition a variable of this name is the same one, wherever it stands.
    bool isUseOf(const Symbol& variable, std::size_t token) const {
        if (outline_.token(token).value != variable.name || !outline_.isType(token, TokenType::IDENTIFIER) ||
            isMemberToken(outline_, token)) {
            return false;
        }
        if (outline_.edition == Edition::First) {
            return true;
        }
        const std::vector<FoundSymbol> meanings = meaningsOf(files_, token);
        return meanings.size() == 1 && meanings.front().symbol->place.begin == variable.place.begin;
    }

    /// Parameters that are places can give a variable any value.
    bool isChangedByCalls() const {
        return std::any_of(files_.begin(), files_.end(), [](const NamedSource& file) {
            const auto& tokens = file.outline->scanned.tokens;
            return std::any_of(tokens.begin(), tokens.end(), [](const Token& token) {
                return token.type == TokenType::KEYWORD && token.value == "மாற்று";
            });
        });
    }

    const std::vector<NamedSource>& files_;
    const Outline& outline_;
};

} // namespace

std::optional<KnownKind> kindBeforeDot(const std::vector<NamedSource>& files, std::size_t dot) {
    return dot == 0 || dot == NO_INDEX ? std::nullopt : KindSearch(files).ofValueUpTo(dot - 1);
}

} // namespace pozhil::language_server
