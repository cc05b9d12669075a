#include "tools/language_server/requests/semantic_tokens.h"

#include "language/operators.h"
#include "language/second/widgets.h"
#include "tools/language_server/names.h"
#include "tools/language_server/protocol.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <unordered_map>

namespace pozhil::language_server {
namespace {

enum class Kind : std::uint8_t {
    Keyword,
    Operator,
    Number,
    String,
    Function,
    Method,
    Variable,
    Parameter,
    Property,
    Structure,
    Enumeration,
    EnumerationMember,
    Type
};

constexpr const char* NAMES[] = {"keyword",   "operator", "number", "string", "function",   "method", "variable",
                                 "parameter", "property", "class",  "enum",   "enumMember", "type"};

Kind kindOf(SymbolKind kind) {
    switch (kind) {
    case SymbolKind::Function: return Kind::Function;
    case SymbolKind::Method: return Kind::Method;
    case SymbolKind::Structure:
    case SymbolKind::AbstractStructure: return Kind::Structure;
    case SymbolKind::Enumeration: return Kind::Enumeration;
    case SymbolKind::EnumerationMember: return Kind::EnumerationMember;
    case SymbolKind::Field: return Kind::Property;
    case SymbolKind::Parameter: return Kind::Parameter;
    default: return Kind::Variable;
    }
}

/// Tells the words of a source apart.
class Classifier {
public:
    Classifier(const Workspace& workspace, const NamedSource& file) : outline_(*file.outline) {
        const std::vector<NamedSource> files = visibleSources(workspace, file);
        for (auto other = files.rbegin(); other != files.rend(); ++other) {
            for (const Symbol& symbol : other->outline->symbols) {
                if (symbol.parent == NO_INDEX) {
                    known_[symbol.name] = kindOf(symbol.kind);
                }
            }
        }
    }

    /// \return nothing for signs and line ends
    std::optional<Kind> classify(std::size_t token) const {
        switch (outline_.token(token).type) {
        case TokenType::NUMBER:
        case TokenType::PERCENT: return Kind::Number;
        case TokenType::STRING:
        case TokenType::CHAR: return Kind::String;
        default: break;
        }
        if (!outline_.isWord(token)) {
            return std::nullopt;
        }
        const std::string& word = outline_.token(token).value;
        if (!isMemberToken(outline_, token) && !outline_.isType(token, TokenType::IDENTIFIER)) {
            return kindOfVocabulary(token, word);
        }
        return kindOfName(token, word);
    }

private:
    std::optional<Kind> kindOfVocabulary(std::size_t token, const std::string& word) const {
        if (language::findOperator(word) != nullptr) {
            return Kind::Operator;
        }
        if (outline_.isType(token + 1, TokenType::COLON) && language::second::isProperty(word)) {
            return Kind::Property;
        }
        return language::second::findWidget(word) != nullptr ? Kind::Type : Kind::Keyword;
    }

    std::optional<Kind> kindOfName(std::size_t token, const std::string& name) const {
        const bool isCalled = outline_.isType(token + 1, TokenType::LPAREN);
        if (isMemberToken(outline_, token)) {
            return isCalled ? Kind::Method : Kind::Property;
        }
        const Symbol* const symbol = outline_.find(name, outline_.placeOf(token).begin);
        if (symbol != nullptr) {
            return kindOf(symbol->kind);
        }
        if (outline_.isType(token + 1, TokenType::COLON) && language::second::isProperty(name)) {
            return Kind::Property;
        }
        const auto found = known_.find(name);
        if (found != known_.end()) {
            return found->second;
        }
        if (language::second::findWidget(name) != nullptr || language::second::isStyle(name)) {
            return Kind::Type;
        }
        return isCalled ? Kind::Function : Kind::Variable;
    }

    const Outline& outline_;
    std::unordered_map<std::string, Kind> known_;
};

/// Writes tokens as the protocol has them: each by its distance from the one before.
class TokenWriter {
public:
    explicit TokenWriter(const Document& document) : document_(document) {}

    void write(ByteRange place, Kind kind) {
        const Range range = document_.rangeOf(place);
        // A text over several lines is coloured by the editor's grammar: clients needn't take such tokens.
        if (range.begin.line != range.end.line || range.end.character <= range.begin.character) {
            return;
        }
        const bool isSameLine = range.begin.line == last_.line;
        data_.push_back(range.begin.line - last_.line);
        data_.push_back(isSameLine ? range.begin.character - last_.character : range.begin.character);
        data_.push_back(range.end.character - range.begin.character);
        data_.push_back(static_cast<int>(kind));
        data_.push_back(0);
        last_ = range.begin;
    }

    Json take() { return std::move(data_); }

private:
    const Document& document_;
    Position last_;
    Json data_ = Json::array();
};

} // namespace

Json semanticTokens(const Workspace& workspace, const Json& params) {
    const Document* document = nullptr;
    const NamedSource file = askedSource(workspace, params, document);
    const Classifier classifier(workspace, file);
    TokenWriter writer(*document);
    for (std::size_t i = 0; i < file.outline->scanned.tokens.size(); ++i) {
        if (const std::optional<Kind> kind = classifier.classify(i)) {
            writer.write(file.outline->placeOf(i), *kind);
        }
    }
    return {{"data", writer.take()}};
}

Json semanticTokenLegend() {
    return {{"tokenTypes", Json(std::vector<std::string>(std::begin(NAMES), std::end(NAMES)))},
            {"tokenModifiers", Json::array()}};
}

} // namespace pozhil::language_server
