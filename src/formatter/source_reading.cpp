#include "formatter/source_reading.h"

#include "base/text.h"
#include "parser/second/parser.h"
#include "scanner/second/scanner.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <string_view>
#include <utility>

namespace pozhil::formatter {
namespace {

/// More than this are worth no more than one.
constexpr std::size_t MOST_FAULTS = 100;

/// The folder of imports that are nowhere else.
constexpr const char* NOWHERE = "/\n";

/// Finds an empty source for every import that can't be found: how a file looks doesn't depend on where it is.
class LenientLoader : public SourceLoader {
public:
    explicit LenientLoader(const SourceLoader* loader) : loader_(loader == nullptr ? files_ : *loader) {}

    SourcePtr load(const std::string& path) const override {
        return startsWith(path, NOWHERE) ? makeSource(path, "") : loader_.load(path);
    }

private:
    const FileLoader files_;
    const SourceLoader& loader_;
};

bool hasFaultsOfItsOwn(const ParsedSource& parsed) {
    const auto isOwn = [&](const FoundFault& fault) { return fault.place.source == parsed.source; };
    return parsed.faults.size() >= MOST_FAULTS || std::any_of(parsed.faults.begin(), parsed.faults.end(), isOwn);
}

void readFirstEdition(SourceReading& reading, FrontEndOptions options) {
    const LenientLoader loader(options.loader);
    options.loader = &loader;
    options.moduleDirectories.emplace_back(NOWHERE);
    options.maxFaults = MOST_FAULTS;
    const ParsedSource parsed = parseSource(reading.source, options);
    reading.scanned = parsed.parser->scanned();
    reading.nodes = parsed.parser->places().allIn(reading.source);
    reading.isFaulty = hasFaultsOfItsOwn(parsed);
}

void readSecondEdition(SourceReading& reading) {
    SecondFaults faults;
    NodePlaces places;
    second::parseFile(reading.source, places, faults);
    reading.nodes = places.allIn(reading.source);
    reading.isFaulty = !faults.empty();
    reading.scanned = second::scanSecondEdition(reading.source, faults);
}

bool isBlockEdge(TokenType type) {
    return type == TokenType::INDENT || type == TokenType::DEDENT;
}

bool isLayout(TokenType type) {
    return isBlockEdge(type) || type == TokenType::NEWLINE || type == TokenType::END_OF_FILE;
}

/// The tokens without what the lines are, with their numbers by places.
class Words {
public:
    explicit Words(const SourceReading& reading) : scanned_(reading.scanned), text_(reading.source->text) {
        for (std::size_t index = 0; index < scanned_.tokens.size(); ++index) {
            if (!isLayout(scanned_.tokens[index].type)) {
                indices_.push_back(index);
            }
        }
    }

    std::size_t size() const { return indices_.size(); }
    TokenType typeAt(std::size_t number) const { return scanned_.tokens[indices_[number]].type; }
    std::string_view textAt(std::size_t number) const {
        const ByteRange range = scanned_.places[indices_[number]];
        return text_.substr(range.begin, range.end - range.begin);
    }

    /// How many words begin before an offset.
    std::size_t numberOf(std::uint32_t offset) const {
        const auto found = std::lower_bound(indices_.begin(), indices_.end(), offset, [&](std::size_t index, auto at) {
            return scanned_.places[index].begin < at;
        });
        return static_cast<std::size_t>(found - indices_.begin());
    }

private:
    const ScannedSource& scanned_;
    std::string_view text_;
    std::vector<std::size_t> indices_;
};

bool haveSameWords(const Words& a, const Words& b) {
    if (a.size() != b.size()) {
        return false;
    }
    for (std::size_t number = 0; number < a.size(); ++number) {
        if (a.typeAt(number) != b.typeAt(number) || a.textAt(number) != b.textAt(number)) {
            return false;
        }
    }
    return true;
}

/// The words that each node of the tree is made of, from one number up to another: what is the same for two sources only
/// if their trees have the same form.
std::vector<std::pair<std::size_t, std::size_t>> wordsOfNodes(const SourceReading& reading, const Words& words) {
    std::vector<std::pair<std::size_t, std::size_t>> nodes;
    nodes.reserve(reading.nodes.size());
    for (const ByteRange range : reading.nodes) {
        nodes.emplace_back(words.numberOf(range.begin), words.numberOf(range.end));
    }
    std::sort(nodes.begin(), nodes.end());
    return nodes;
}

/// In the second edition every line end and every edge of a block among the tokens counts. In the first they also come
/// where brackets join lines, and what they mean there is told by the tree alone.
bool haveSameLayout(const SourceReading& a, const SourceReading& b) {
    const std::vector<Token>& one = a.scanned.tokens;
    const std::vector<Token>& other = b.scanned.tokens;
    return a.edition == Edition::First || std::equal(one.begin(), one.end(), other.begin(), other.end(),
                                                     [](const Token& x, const Token& y) { return x.type == y.type; });
}

} // namespace

SourceReading readSource(const SourcePtr& source, const FrontEndOptions& options) {
    SourceReading reading;
    reading.source = source;
    SecondFaults faults;
    reading.edition = editionOf(source, faults);
    if (!faults.empty()) {
        return reading;
    }
    try {
        if (reading.edition == Edition::Second) {
            readSecondEdition(reading);
        } else {
            readFirstEdition(reading, options);
        }
    } catch (const Fault&) {
        reading.isFaulty = true;
    } catch (const std::exception&) {
        reading.isFaulty = true;
    }
    return reading;
}

bool meanTheSame(const SourceReading& a, const SourceReading& b) {
    if (a.isFaulty || b.isFaulty || a.edition != b.edition || !haveSameLayout(a, b)) {
        return false;
    }
    const Words wordsOfA(a);
    const Words wordsOfB(b);
    return haveSameWords(wordsOfA, wordsOfB) && wordsOfNodes(a, wordsOfA) == wordsOfNodes(b, wordsOfB);
}

} // namespace pozhil::formatter
