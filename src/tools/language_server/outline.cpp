#include "tools/language_server/outline.h"

#include "diagnostics/fault.h"
#include "scanner/lexer.h"
#include "scanner/second/scanner.h"
#include "tools/language_server/reaches.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <stdexcept>
#include <utility>

namespace pozhil::language_server {
namespace {

constexpr std::string_view APPLICATION = "வலைதளம்";

/// How many faults the scan goes on after.
constexpr std::size_t MOST_FAULTS = 1000;

bool isLayout(TokenType type) {
    return type == TokenType::NEWLINE || type == TokenType::INDENT || type == TokenType::DEDENT ||
           type == TokenType::END_OF_FILE;
}

} // namespace

std::size_t Outline::tokenBefore(std::size_t offset) const {
    const auto after = std::partition_point(scanned.places.begin(), scanned.places.end(),
                                            [&](const ByteRange& place) { return place.begin < offset; });
    return after == scanned.places.begin() ? NO_INDEX
                                           : static_cast<std::size_t>(std::distance(scanned.places.begin(), after)) - 1;
}

std::size_t Outline::tokenAt(std::size_t offset) const {
    // A name goes before the sign that ends right at it.
    std::size_t at = tokenBefore(offset + 1);
    while (at != NO_INDEX && (isLayout(token(at).type) || placeOf(at).begin > offset)) {
        at = at == 0 ? NO_INDEX : at - 1;
    }
    if (at == NO_INDEX || placeOf(at).end < offset) {
        return NO_INDEX;
    }
    const bool mayBeWordBefore = placeOf(at).begin == offset && at > 0 && placeOf(at - 1).end == offset;
    return mayBeWordBefore && !isWord(at) && isWord(at - 1) ? at - 1 : at;
}

bool Outline::isWord(std::size_t index) const {
    if (index >= scanned.tokens.size() || isType(index, TokenType::STRING) || isType(index, TokenType::CHAR)) {
        return false;
    }
    const std::string& value = token(index).value;
    constexpr unsigned char FIRST_LONG = 0x80;
    const auto first = value.empty() ? '\0' : value.front();
    const bool isLetter = static_cast<unsigned char>(first) >= FIRST_LONG || first == '_' ||
                          (first >= 'a' && first <= 'z') || (first >= 'A' && first <= 'Z');
    return isLetter && !isLayout(token(index).type) && !isType(index, TokenType::NUMBER);
}

std::size_t Outline::scopeAt(std::size_t offset) const {
    std::size_t innermost = NO_INDEX;
    for (std::size_t i = 0; i < symbols.size() && symbols[i].whole.begin <= offset; ++i) {
        const bool isScope = symbols[i].kind == SymbolKind::Function || symbols[i].kind == SymbolKind::Method ||
                             symbols[i].kind == SymbolKind::Structure;
        if (isScope && offset <= symbols[i].whole.end) {
            innermost = i;
        }
    }
    return innermost;
}

const Symbol* Outline::find(std::string_view name, std::size_t offset) const {
    const auto found = byName.find(std::string(name));
    if (found == byName.end()) {
        return nullptr;
    }
    const Symbol* best = nullptr;
    std::size_t bestSize = NO_INDEX;
    for (const std::size_t index : found->second) {
        const Symbol& symbol = symbols[index];
        if (isMember(symbol)) {
            continue;
        }
        // What stands in a function is known there; what stands in an application, in the whole source.
        const bool isEverywhere = symbol.parent == NO_INDEX || symbols[symbol.parent].kind == SymbolKind::Application;
        const bool hasReach = symbol.reach.end > symbol.reach.begin;
        const ByteRange reach = hasReach       ? symbol.reach
                                : isEverywhere ? ByteRange{0, std::numeric_limits<std::uint32_t>::max()}
                                               : symbols[symbol.parent].whole;
        const std::size_t size = reach.end - reach.begin;
        const bool isBetter = best == nullptr || size < bestSize || best->kind == SymbolKind::Application;
        if (reach.begin <= offset && offset <= reach.end && isBetter) {
            best = &symbol;
            bestSize = size;
        }
    }
    return best;
}

bool isMember(const Symbol& symbol) {
    return symbol.kind == SymbolKind::Method || symbol.kind == SymbolKind::Field ||
           symbol.kind == SymbolKind::EnumerationMember;
}

namespace {

/// Goes once over the tokens of a source.
class OutlineBuilder {
public:
    explicit OutlineBuilder(Outline& outline) : outline_(outline) {}

    void build() {
        for (at_ = 0; at_ < outline_.scanned.tokens.size(); ++at_) {
            trackLayout();
            if (isStart() || !outline_.isType(at_ - 1, TokenType::DOT)) {
                noteNames();
            }
            if (!isLayout(outline_.token(at_).type)) {
                lastEnd_ = outline_.placeOf(at_).end;
            }
        }
        while (!open_.empty()) {
            close();
        }
        if (outline_.edition == Edition::Second) {
            dropVariablesOfOuterFunctions();
        }
    }

private:
    /// A symbol whose end isn't reached.
    struct Open {
        std::size_t symbol;
        /// How deep the line is indented that it begins on.
        int depth;
        /// For an application, the token that closes it.
        std::size_t closing = NO_INDEX;
    };

    bool isStart() const { return at_ == 0; }
    bool isKeyword(std::size_t index, std::string_view word) const {
        return index < outline_.scanned.tokens.size() && outline_.token(index).value == word &&
               !outline_.isType(index, TokenType::STRING) && !outline_.isType(index, TokenType::CHAR);
    }
    /// The scanners of the editions have it as different kinds.
    bool isArrow(std::size_t index) const { return isKeyword(index, "=>"); }
    bool isName(std::size_t index) const { return outline_.isType(index, TokenType::IDENTIFIER); }

    void close() {
        Symbol& symbol = outline_.symbols[open_.back().symbol];
        symbol.whole.end = std::max(lastEnd_, symbol.place.end);
        open_.pop_back();
    }

    void trackLayout() {
        const TokenType type = outline_.token(at_).type;
        depth_ += type == TokenType::INDENT ? 1 : type == TokenType::DEDENT ? -1 : 0;
        const bool endsLine = type == TokenType::NEWLINE && !outline_.isType(at_ + 1, TokenType::INDENT);
        const bool endsBlocks = endsLine || type == TokenType::DEDENT;
        while (!open_.empty() && (open_.back().closing == NO_INDEX ? endsBlocks && open_.back().depth >= depth_
                                                                   : open_.back().closing < at_)) {
            close();
        }
    }

    std::size_t parent() const { return open_.empty() ? NO_INDEX : open_.back().symbol; }
    bool isParent(SymbolKind kind) const { return parent() != NO_INDEX && outline_.symbols[parent()].kind == kind; }
    bool isInStructure() const { return isParent(SymbolKind::Structure) || isParent(SymbolKind::AbstractStructure); }

    std::size_t add(SymbolKind kind, std::size_t name, std::size_t begin, std::size_t parent) {
        Symbol symbol;
        symbol.kind = kind;
        symbol.name = outline_.token(name).value;
        symbol.place = outline_.placeOf(name);
        symbol.whole = {outline_.placeOf(begin).begin, symbol.place.end};
        symbol.parent = parent;
        outline_.byName[symbol.name].push_back(outline_.symbols.size());
        outline_.symbols.push_back(std::move(symbol));
        return outline_.symbols.size() - 1;
    }

    bool has(std::string_view name, std::size_t parent) const {
        const auto found = outline_.byName.find(std::string(name));
        return found != outline_.byName.end() &&
               std::any_of(found->second.begin(), found->second.end(), [&](std::size_t index) {
                   const Symbol& symbol = outline_.symbols[index];
                   return symbol.parent == parent && symbol.reach.begin == symbol.reach.end;
               });
    }

    /// Of what stands around a name. Fields of a structure aren't variables of its methods in the second edition.
    bool hasVariable(std::string_view name, std::size_t around) const {
        const SymbolKind kind = outline_.symbols[around].kind;
        const bool isStructure = kind == SymbolKind::Structure || kind == SymbolKind::AbstractStructure;
        return (outline_.edition == Edition::First || !isStructure) && has(name, around);
    }

    /// A variable where it gets its first value; in a function within another one it may be that of the outer one.
    void addVariable(std::size_t name, SymbolKind kind = SymbolKind::Variable) {
        const std::string& value = outline_.token(name).value;
        for (std::size_t around = parent(); around != NO_INDEX; around = outline_.symbols[around].parent) {
            if (hasVariable(value, around) || publicNames_.count({around, value}) != 0) {
                return;
            }
        }
        if (parent() != NO_INDEX || !has(outline_.token(name).value, NO_INDEX)) {
            add(kind, name, name, parent());
        }
    }

    void noteNames() {
        if (isKeyword(at_, "செயல்") && isName(at_ + 1)) {
            noteFunction();
        } else if ((isKeyword(at_, "கட்டமைப்பு") || isKeyword(at_, "வடிவமைப்பு")) && isName(at_ + 1)) {
            noteStructure();
        } else if (isKeyword(at_, "வகை") && isName(at_ + 1)) {
            open_.push_back({add(SymbolKind::Enumeration, at_ + 1, at_, parent()), depth_});
        } else if (isKeyword(at_, APPLICATION) && isName(at_ + 1)) {
            open_.push_back(
                {add(SymbolKind::Application, at_ + 1, at_, parent()), depth_, closingBracket(outline_, at_ + 2)});
        } else if (isKeyword(at_, APPLICATION) && outline_.isType(at_ + 1, TokenType::LPAREN)) {
            // Only one of several needs a name of its own.
            open_.push_back(
                {add(SymbolKind::Application, at_, at_, parent()), depth_, closingBracket(outline_, at_ + 1)});
        } else if (isKeyword(at_, "நூஇறக்கி") && outline_.isType(at_ + 1, TokenType::STRING)) {
            outline_.imports.push_back({outline_.token(at_ + 1).value, outline_.placeOf(at_ + 1)});
        } else if ((isKeyword(at_, "ஒவ்வொன்றாக") || isKeyword(at_, "பிடி")) && isName(nameAfter(at_))) {
            addVariable(nameAfter(at_));
        } else if (isKeyword(at_, "உருப்படி") && outline_.isType(at_ + 1, TokenType::COLON) && isName(at_ + 2)) {
            noteElement(at_ + 2);
        } else if (isKeyword(at_, "பொது") && isName(at_ + 1)) {
            notePublicNames();
        } else if (isKeyword(at_, "வினை") && outline_.isType(at_ + 1, TokenType::LPAREN)) {
            noteLambdaParameters(at_ + 1);
        } else if (isArrow(at_)) {
            noteArrowParameters();
        } else if (isName(at_)) {
            noteName();
        }
    }

    /// The name after a word, in brackets or not.
    std::size_t nameAfter(std::size_t word) const {
        return outline_.isType(word + 1, TokenType::LPAREN) ? word + 2 : word + 1;
    }

    void noteName() {
        const bool isGiven =
            outline_.isType(at_ + 1, TokenType::ASSIGN) || outline_.isType(at_ + 1, TokenType::COMPOUND_ASSIGN);
        if (isParent(SymbolKind::Enumeration)) {
            if (outline_.symbols[parent()].place.begin != outline_.placeOf(at_).begin) {
                add(SymbolKind::EnumerationMember, at_, at_, parent());
            }
        } else if (isGiven && isInStructure()) {
            addVariable(at_, SymbolKind::Field);
        } else if (isGiven) {
            addVariable(at_);
        } else if (outline_.token(at_).value == "தான்" && outline_.isType(at_ + 1, TokenType::DOT) && isName(at_ + 2) &&
                   outline_.isType(at_ + 3, TokenType::ASSIGN)) {
            noteFieldOfSelf(at_ + 2);
        }
    }

    /// தான்.name = value in a method.
    void noteFieldOfSelf(std::size_t name) {
        for (std::size_t around = parent(); around != NO_INDEX; around = outline_.symbols[around].parent) {
            if (outline_.symbols[around].kind == SymbolKind::Structure) {
                if (!has(outline_.token(name).value, around)) {
                    add(SymbolKind::Field, name, name, around);
                }
                return;
            }
        }
    }

    void noteFunction() {
        const SymbolKind kind = isInStructure() ? SymbolKind::Method : SymbolKind::Function;
        const std::size_t function = add(kind, at_ + 1, at_, parent());
        open_.push_back({function, depth_});
        if (outline_.isType(at_ + 2, TokenType::LPAREN)) {
            outline_.symbols[function].parameters = noteParameters(at_ + 2, function);
        }
    }

    void noteStructure() {
        const SymbolKind kind = isKeyword(at_, "கட்டமைப்பு") ? SymbolKind::Structure : SymbolKind::AbstractStructure;
        const std::size_t structure = add(kind, at_ + 1, at_, parent());
        open_.push_back({structure, depth_});
        if (outline_.isType(at_ + 2, TokenType::LPAREN) && isName(at_ + 3)) {
            outline_.symbols[structure].parentStructure = outline_.token(at_ + 3).value;
        }
    }

    /// \param open the bracket that they begin with
    std::vector<std::string> noteParameters(std::size_t open, std::size_t function) {
        std::vector<std::string> names;
        for (std::size_t at = open + 1; at < outline_.scanned.tokens.size(); ++at) {
            if (outline_.isType(at, TokenType::RPAREN) || outline_.isType(at, TokenType::COLON)) {
                break;
            }
            if (isName(at)) {
                names.push_back(outline_.token(at).value);
                add(SymbolKind::Parameter, at, at, function);
            }
        }
        return names;
    }

    /// (a, b) => value, or a => value
    void noteArrowParameters() {
        if (at_ > 0 && isName(at_ - 1)) {
            const std::size_t parameter = add(SymbolKind::Parameter, at_ - 1, at_ - 1, parent());
            outline_.symbols[parameter].reach = {outline_.placeOf(at_ - 1).begin, endOfLambda(outline_, at_)};
            return;
        }
        std::size_t at = at_ - 1;
        while (at > 0 && at < at_ && !outline_.isType(at, TokenType::LPAREN)) {
            --at;
        }
        if (outline_.isType(at, TokenType::LPAREN)) {
            noteLambdaParameters(at);
        }
    }

    /// Of a function without a name, which is known by them alone.
    void noteLambdaParameters(std::size_t open) {
        const std::size_t first = outline_.symbols.size();
        noteParameters(open, parent());
        const std::uint32_t end = endOfLambda(outline_, closingBracket(outline_, open) + 1);
        for (std::size_t i = first; i < outline_.symbols.size(); ++i) {
            outline_.symbols[i].reach = {outline_.placeOf(open).begin, end};
        }
    }

    /// உருப்படி: name, which is known in the brackets that follow those that it stands in.
    void noteElement(std::size_t name) {
        const std::size_t element = add(SymbolKind::Variable, name, name, parent());
        if (const std::size_t end = endOfElement(outline_, name); end < outline_.scanned.tokens.size()) {
            outline_.symbols[element].reach = {outline_.placeOf(name).begin, outline_.placeOf(end).begin};
        }
    }

    /// What a function around assigns is its variable, wherever it does so.
    bool isOfOuterFunction(const Symbol& symbol) const {
        if (symbol.kind != SymbolKind::Variable || symbol.parent == NO_INDEX) {
            return false;
        }
        std::size_t around = outline_.symbols[symbol.parent].parent;
        while (around != NO_INDEX && !hasVariable(symbol.name, around)) {
            around = outline_.symbols[around].parent;
        }
        return around != NO_INDEX;
    }

    void dropVariablesOfOuterFunctions() {
        std::vector<Symbol> kept;
        std::vector<std::size_t> places;
        for (const Symbol& symbol : outline_.symbols) {
            places.push_back(kept.size());
            if (!isOfOuterFunction(symbol)) {
                kept.push_back(symbol);
            }
        }
        outline_.symbols = std::move(kept);
        outline_.byName.clear();
        for (std::size_t i = 0; i < outline_.symbols.size(); ++i) {
            Symbol& symbol = outline_.symbols[i];
            symbol.parent = symbol.parent == NO_INDEX ? NO_INDEX : places[symbol.parent];
            outline_.byName[symbol.name].push_back(i);
        }
    }

    /// பொது அ, ஆ: names of the file, wherever they stand.
    void notePublicNames() {
        for (std::size_t at = at_ + 1; isName(at); at += 2) {
            publicNames_.insert({parent(), outline_.token(at).value});
            if (!has(outline_.token(at).value, NO_INDEX)) {
                add(SymbolKind::Variable, at, at, NO_INDEX);
            }
            if (!outline_.isType(at + 1, TokenType::COMMA)) {
                break;
            }
        }
    }

    Outline& outline_;
    std::size_t at_ = 0;
    int depth_ = 0;
    std::uint32_t lastEnd_ = 0;
    std::vector<Open> open_;
    /// Names that a function takes from the file, by the function's symbol.
    std::set<std::pair<std::size_t, std::string>> publicNames_;
};

ScannedSource scan(const SourcePtr& source, Edition edition) {
    if (edition == Edition::Second) {
        SecondFaults faults;
        return second::scanSecondEdition(source, faults);
    }
    try {
        return Lexer(source).scan(MOST_FAULTS);
    } catch (const std::exception&) {
        return {source, {}, {}, {}}; // as the scanner says, of a line whose tabs are wider than the text
    }
}

} // namespace

Outline outlineOf(const SourcePtr& source) {
    SecondFaults ignored;
    Outline outline;
    outline.edition = editionOf(source, ignored);
    if (source->text.size() <= MOST_OUTLINED_BYTES) {
        outline.scanned = scan(source, outline.edition);
        outline.scanned.tokens.resize(std::min(outline.scanned.tokens.size(), outline.scanned.places.size()));
        outline.scanned.places.resize(outline.scanned.tokens.size());
        OutlineBuilder(outline).build();
    }
    return outline;
}

} // namespace pozhil::language_server
