#include "tools/language_server/requests/completion.h"

#include "language/alignments.h"
#include "language/colours.h"
#include "language/second/animations.h"
#include "language/second/widgets.h"
#include "scanner/second/normal_form.h"
#include "tools/language_server/grammar_places.h"
#include "tools/language_server/member_kinds.h"
#include "tools/language_server/names.h"
#include "tools/language_server/protocol.h"
#include "tools/language_server/surroundings.h"
#include "tools/language_server/transliteration.h"
#include "tools/language_server/vocabulary.h"

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil::language_server {
namespace {

/// As the protocol numbers them.
enum ItemKind : int {
    METHOD = 2,
    FUNCTION = 3,
    FIELD = 5,
    VARIABLE = 6,
    CLASS = 7,
    PROPERTY = 10,
    ENUMERATION = 13,
    KEYWORD = 14,
    COLOUR = 16,
    MEMBER = 20,
    CONSTANT = 21,
    OPERATOR = 24,
};

ItemKind itemKindOf(SymbolKind kind) {
    switch (kind) {
    case SymbolKind::Function: return FUNCTION;
    case SymbolKind::Method: return METHOD;
    case SymbolKind::Structure:
    case SymbolKind::AbstractStructure:
    case SymbolKind::Application: return CLASS;
    case SymbolKind::Enumeration: return ENUMERATION;
    case SymbolKind::EnumerationMember: return MEMBER;
    case SymbolKind::Field: return FIELD;
    default: return VARIABLE;
    }
}

ItemKind itemKindOf(WordKind kind) {
    switch (kind) {
    case WordKind::Function: return FUNCTION;
    case WordKind::Member: return METHOD;
    case WordKind::Widget: return CLASS;
    case WordKind::Style: return PROPERTY;
    case WordKind::Operator: return OPERATOR;
    default: return KEYWORD;
    }
}

/// Gathers what fits, each word once: the first that has it counts.
class Offers {
public:
    /// \param typed what stands before the place and is to be replaced
    Offers(const AskedPlace& asked, ByteRange typed)
        : range_(jsonOf(asked.document->rangeOf(typed))),
          typed_(second::normalForm(
              std::string_view(asked.file.source->text).substr(typed.begin, typed.end - typed.begin))) {}

    void add(std::string_view word, ItemKind kind, const std::string& detail, const std::string& told,
             const std::string& written) {
        if (!beginsWith(word, typed_) || !words_.insert(std::string(word)).second) {
            return;
        }
        Json item = {{"label", word},
                     {"kind", kind},
                     {"textEdit", {{"range", range_}, {"newText", written}}},
                     // Clients leave out what doesn't begin as typed; they know nothing of how words sound.
                     {"filterText", typed_.empty() ? std::string(word) : typed_}};
        if (!detail.empty()) {
            item["detail"] = detail;
        }
        if (!told.empty()) {
            item["documentation"] = told;
        }
        items_.push_back(std::move(item));
    }

    void add(const Symbol& symbol) { add(symbol.name, itemKindOf(symbol.kind), headingOf(symbol), "", symbol.name); }

    void add(const std::vector<LanguageWord>& words) {
        for (const LanguageWord& word : words) {
            const std::string told = std::string(word.description.tamil) + "\n" + std::string(word.description.english);
            add(word.word, itemKindOf(word.kind), headingOf(word), word.description.tamil.empty() ? "" : told,
                std::string(word.word));
        }
    }

    Json take() { return {{"isIncomplete", true}, {"items", std::move(items_)}}; }

private:
    Json range_;
    std::string typed_;
    std::set<std::string> words_;
    Json items_ = Json::array();
};

/// Adds what a property can have as its value.
/// \param quoted whether the place is in a text already
void offerValues(Offers& offers, const language::WidgetProperty& property, bool quoted) {
    const auto add = [&](std::string_view word, ItemKind kind, std::string_view english, bool isText) {
        const std::string plain(word);
        offers.add(word, kind, std::string(english), "", quoted || !isText ? plain : "\"" + plain + "\"");
    };
    for (const std::string_view choice : property.choices) {
        add(choice, CONSTANT, "", true);
    }
    if (property.kind == language::ValueKind::Colour) {
        for (const language::ColourWord& colour : language::colourWords()) {
            add(colour.word, COLOUR, colour.english, true);
        }
    } else if (property.kind == language::ValueKind::Alignment) {
        for (const language::Alignment& alignment : language::alignments()) {
            add(alignment.word, CONSTANT, "", false);
        }
    } else if (property.kind == language::ValueKind::Truth && !quoted) {
        add("மெய்", CONSTANT, "", false);
        add("பொய்", CONSTANT, "", false);
    } else if (property.name == language::second::ANIMATION_CURVE) {
        for (const std::string_view curve : language::second::curveNames()) {
            add(curve, CONSTANT, "", true);
        }
    }
}

/// Adds what can stand between the brackets of a widget.
void offerParts(Offers& offers, const PropertyPlace& place) {
    for (const language::WidgetProperty* property : place.properties) {
        const std::string told =
            std::string(property->description.tamil) + "\n" + std::string(property->description.english);
        offers.add(property->name, PROPERTY, "", told, std::string(property->name) + ": ");
    }
    if (place.widget != nullptr && place.style.empty()) {
        for (const std::string_view style : language::second::stylesOf(*place.widget)) {
            offers.add(style, PROPERTY, "", "", std::string(style));
        }
    }
}

void offerNames(Offers& offers, const std::vector<NamedSource>& files, std::size_t offset) {
    for (std::size_t i = 0; i < files.size(); ++i) {
        for (const Symbol& symbol : files[i].outline->symbols) {
            const bool isKnown =
                i == 0 ? files[i].outline->find(symbol.name, offset) == &symbol : symbol.parent == NO_INDEX;
            if (isKnown && !isMember(symbol)) {
                offers.add(symbol);
            }
        }
    }
}

void offerMembers(Offers& offers, const std::vector<NamedSource>& files, std::size_t dot) {
    const Edition edition = files.front().outline->edition;
    const std::optional<KnownKind> kind = kindBeforeDot(files, dot);
    if (kind && kind->structure) {
        for (const FoundSymbol& member : membersOf(files, *kind->structure->symbol)) {
            offers.add(*member.symbol);
        }
    } else if (kind) {
        offers.add(memberWords(edition, kind->owners));
    } else {
        for (const FoundSymbol& member : membersBefore(files, dot + 1)) {
            offers.add(*member.symbol);
        }
        offers.add(memberWords(edition));
    }
}

bool isInComment(const Outline& outline, std::size_t offset) {
    const std::string_view text = std::string_view(outline.scanned.source->text).substr(0, offset);
    const std::size_t line = text.rfind('\n') + 1; // npos + 1 is the beginning of the text
    const std::size_t sign = text.find("ஃ", line);
    const std::size_t token = sign == std::string_view::npos ? NO_INDEX : outline.tokenAt(sign);
    return sign != std::string_view::npos && (token == NO_INDEX || !outline.isType(token, TokenType::STRING));
}

/// What stands at a place and is being written.
struct Typed {
    ByteRange place;
    /// The token before it, NO_INDEX if there is none.
    std::size_t before = NO_INDEX;
    bool isInText = false;
};

Typed typedAt(const Outline& outline, std::size_t offset) {
    const auto end = static_cast<std::uint32_t>(offset);
    Typed typed = {{end, end}, outline.tokenBefore(offset)};
    const std::size_t last = typed.before;
    if (last == NO_INDEX) {
        return typed;
    }
    typed.isInText = outline.isType(last, TokenType::STRING) && offset < outline.placeOf(last).end;
    if (typed.isInText || (outline.isWord(last) && outline.placeOf(last).end >= offset)) {
        typed.place.begin = outline.placeOf(last).begin + (typed.isInText ? 1 : 0);
        typed.before = last == 0 ? NO_INDEX : last - 1;
    }
    return typed;
}

} // namespace

Json completion(const Workspace& workspace, const Json& params) {
    const AskedPlace asked = askedPlace(workspace, params);
    const Outline& outline = *asked.file.outline;
    const Typed typed = typedAt(outline, asked.offset);
    Offers offers(asked, typed.place);
    if (isInComment(outline, asked.offset)) {
        return offers.take();
    }
    const std::vector<NamedSource> files = visibleSources(workspace, asked.file);
    if (typed.before != NO_INDEX && outline.isType(typed.before, TokenType::DOT) && !typed.isInText) {
        offerMembers(offers, files, typed.before);
        return offers.take();
    }
    const PropertyPlace properties = propertiesAt(outline, openBrackets(outline, typed.place.begin));
    const bool isValue = typed.before != NO_INDEX && typed.before > 0 && outline.isType(typed.before, TokenType::COLON);
    const auto* const property = isValue ? findProperty(properties, outline.token(typed.before - 1).value) : nullptr;
    if (property != nullptr) {
        offerValues(offers, *property, typed.isInText);
    }
    if (typed.isInText) {
        return offers.take();
    }
    if (property == nullptr) {
        offerParts(offers, properties);
    }
    offerNames(offers, files, asked.offset);
    offers.add(functionWords(outline.edition));
    offers.add(wordsAt(grammarPlaces(outline, typed.before, typed.place.begin)));
    if (hasApplication(outline)) {
        offers.add(widgetWords());
    }
    return offers.take();
}

} // namespace pozhil::language_server
