#include "tools/language_server/grammar_places.h"

#include "base/source_loader.h"
#include "base/text.h"
#include "front_end/second_edition.h"

#include <algorithm>
#include <map>
#include <utility>

namespace pozhil::language_server {
namespace {

constexpr const char* MARKER = "ஃ பொழில் 2\n";
/// A name that means nothing.
constexpr const char* NAME = "ஆ";
constexpr const char* BLOCK_INDENTATION = "    ";

/// What makes a program of a word and what stands before it. A line that begins with blanks is in a block of the word's
/// statement.
constexpr const char* ENDINGS[] = {
    "",
    " 1",
    " அ",
    "(1)",
    " \"அ\"",
    " அ = 1",
    "(அ): 1",
    " 1 இல்லைஎனில் 2",
    ":\n    விடு",
    " மெய்:\n    விடு",
    " அ:\n    விடு",
    " அ:\n    அ = 1",
    " அ(அ):\n    விடு",
    " அ(தான்):\n    விடு",
    " அ இல் [1]:\n    விடு",
    " [1]:\n    விடு",
    ":\n    விடு\nபிடி(அ):\n    விடு",
    " 1:\n    நிலை 1:\n        விடு",
};

/// Every import is an empty file.
class EmptySources : public SourceLoader {
public:
    SourcePtr load(const std::string& path) const override { return makeSource(path, MARKER); }
};

bool isProgram(const std::string& text) {
    const EmptySources sources;
    FrontEndOptions options;
    options.loader = &sources;
    return parseSecondEdition(makeSource("அ", MARKER + text + "\n"), options).faults.empty();
}

bool canBeName(std::string_view word) {
    return isProgram(std::string(word) + " = 1");
}

/// Some words are names where they mean nothing; what any name could be there says nothing of them.
bool canStand(std::string_view word, const GrammarPlace& place) {
    const bool isMaybeName = canBeName(word);
    return std::any_of(std::begin(ENDINGS), std::end(ENDINGS), [&](const char* ending) {
        std::string rest = ending;
        replaceAll(rest, "\n", "\n" + place.indentation);
        return isProgram(place.before + std::string(word) + rest) &&
               !(isMaybeName && isProgram(place.before + NAME + rest));
    });
}

bool isLayout(const Outline& outline, std::size_t token) {
    return outline.isType(token, TokenType::NEWLINE) || outline.isType(token, TokenType::INDENT) ||
           outline.isType(token, TokenType::DEDENT);
}

bool endsValue(const Outline& outline, std::size_t token) {
    switch (outline.token(token).type) {
    case TokenType::IDENTIFIER:
    case TokenType::NUMBER:
    case TokenType::STRING:
    case TokenType::CHAR:
    case TokenType::BOOLEAN:
    case TokenType::RPAREN:
    case TokenType::RBRACKET:
    case TokenType::RBRACE: return true;
    default: return false;
    }
}

std::size_t firstOfStatement(const Outline& outline, std::size_t token) {
    while (token > 0 && !isLayout(outline, token - 1)) {
        --token;
    }
    return token;
}

/// The first words of the statement around a place, and of the one before it in the same block.
struct Neighbours {
    std::string around;
    std::string before;
    bool isInFunction = false;
};

/// How far a place is indented on its line.
std::size_t columnOf(const Outline& outline, std::size_t offset) {
    const std::string& text = outline.scanned.source->text;
    return offset == 0 ? 0 : offset - (text.rfind('\n', offset - 1) + 1); // npos + 1 is the beginning
}

/// By their columns, since a line that is being written may belong to any of the blocks before it.
Neighbours neighboursOf(const Outline& outline, std::size_t before, std::size_t offset) {
    Neighbours found;
    std::size_t column = columnOf(outline, offset);
    bool isSibling = true;
    for (std::size_t at = before; at != NO_INDEX; at = at == 0 ? NO_INDEX : at - 1) {
        const bool isFirst = !isLayout(outline, at) && (at == 0 || isLayout(outline, at - 1));
        const std::size_t own = isFirst ? columnOf(outline, outline.placeOf(at).begin) : column;
        const std::string& word = outline.token(at).value;
        if (isFirst && own < column) {
            found.around = found.around.empty() ? word : found.around;
            found.isInFunction = found.isInFunction || word == "செயல்";
            column = own;
            isSibling = false;
        } else if (isFirst && own == column && isSibling) {
            found.before = word;
            isSibling = false;
        }
    }
    return found;
}

/// Beginnings of statements: anywhere, and where a part of the statement around or before may stand.
std::vector<GrammarPlace> beginnings(const Outline& outline, std::size_t before, std::size_t offset) {
    const Neighbours neighbours = neighboursOf(outline, before, offset);
    if (neighbours.around == "தேர்வு") {
        return {{"தேர்வு 1:\n    நிலை 1:\n        விடு\n    ", BLOCK_INDENTATION}};
    }
    if (neighbours.around == "கட்டமைப்பு" || neighbours.around == "வடிவமைப்பு") {
        return {{neighbours.around + " அ:\n    ", BLOCK_INDENTATION}};
    }
    std::vector<GrammarPlace> places = {{""}};
    if (neighbours.isInFunction) {
        places.push_back({"செயல் அ():\n    ", BLOCK_INDENTATION});
    }
    if (neighbours.before == "எனில்" || neighbours.before == "இல்லைஎனில்") {
        places.push_back({"எனில் மெய்:\n    விடு\n"});
    } else if (neighbours.before == "முயற்சி") {
        places.push_back({"முயற்சி:\n    விடு\n"});
    }
    return places;
}

std::vector<GrammarPlace> placesAfterValue(const Outline& outline, std::size_t first, std::size_t before) {
    if (first == before && outline.isType(first, TokenType::IDENTIFIER)) {
        return {{"அ "}};
    }
    if (outline.token(first).value == "ஒவ்வொன்றாக" && before == first + 1) {
        return {{"ஒவ்வொன்றாக அ "}};
    }
    std::vector<GrammarPlace> places = {{"அ = 1 "}};
    for (std::size_t at = first + 1; at < before; ++at) {
        if (outline.token(at).value == "எனில்") {
            places.push_back({"அ = மெய் எனில் 1 "});
            break;
        }
    }
    return places;
}

} // namespace

std::vector<GrammarPlace> grammarPlaces(const Outline& outline, std::size_t before, std::size_t offset) {
    if (before == NO_INDEX || isLayout(outline, before)) {
        return beginnings(outline, before, offset);
    }
    const std::size_t first = firstOfStatement(outline, before);
    const std::string& word = outline.token(before).value;
    if (endsValue(outline, before)) {
        return placesAfterValue(outline, first, before);
    }
    if (word == "இல்" && outline.token(first).value == "ஒவ்வொன்றாக") {
        return {{"ஒவ்வொன்றாக அ இல் "}};
    }
    // After the word of a statement what this takes, else a value.
    return first == before && outline.isWord(before) ? std::vector<GrammarPlace>{{word + " "}}
                                                     : std::vector<GrammarPlace>{{"அ = "}};
}

std::vector<LanguageWord> wordsAt(const std::vector<GrammarPlace>& places) {
    static const std::vector<LanguageWord> all = statementWords();
    // There are no more places than words.
    static std::map<std::string, std::vector<LanguageWord>> known;
    std::vector<LanguageWord> words;
    for (const GrammarPlace& place : places) {
        const auto [found, isNew] = known.try_emplace(place.before);
        if (isNew) {
            std::copy_if(all.begin(), all.end(), std::back_inserter(found->second),
                         [&](const LanguageWord& word) { return canStand(word.word, place); });
        }
        words.insert(words.end(), found->second.begin(), found->second.end());
    }
    return words;
}

} // namespace pozhil::language_server
