#include "formatter/source_reading.h"

#include "base/text.h"
#include "parser/second/parser.h"
#include "scanner/second/scanner.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <utility>

namespace pozhil::formatter {
namespace {

/// The folder of imports that are nowhere else.
constexpr const char* NOWHERE = "/\n";

/// Finds an empty source for every import that can't be found: how a file looks doesn't depend on where it is.
class LenientLoader : public SourceLoader {
public:
    explicit LenientLoader(const SourceLoader& loader) : loader_(loader) {}

    SourcePtr load(const std::string& path) const override {
        return startsWith(path, NOWHERE) ? makeSource(path, "") : loader_.load(path);
    }

private:
    const SourceLoader& loader_;
};

ParsedSource parseLeniently(const SourcePtr& source, FrontEndOptions options, const SourceLoader& imports) {
    const LenientLoader loader(imports);
    options.loader = &loader;
    options.moduleDirectories.emplace_back(NOWHERE);
    options.maxFaults = 0;
    return parseSource(source, options);
}

/// Parses a source with what it imports, or if something is wrong with that, without it.
/// \throws Fault of the source itself
ParsedSource parseFirstEdition(const SourcePtr& source, const FrontEndOptions& options) {
    const FileLoader files;
    try {
        return parseLeniently(source, options, options.loader == nullptr ? files : *options.loader);
    } catch (const Fault& fault) {
        if (fault.file == source->path) {
            throw;
        }
        return parseLeniently(source, options, MemoryLoader());
    }
}

void readFirstEdition(SourceReading& reading, const FrontEndOptions& options) {
    const ParsedSource parsed = parseFirstEdition(reading.source, options);
    reading.scanned = parsed.parser->scanned();
    reading.nodes = parsed.parser->places().allIn(reading.source);
    reading.isFaulty = false;
}

void readSecondEdition(SourceReading& reading) {
    SecondFaults faults;
    NodePlaces places;
    second::Unread unread;
    second::parseFile(reading.source, places, faults, unread);
    reading.nodes = places.allIn(reading.source);
    reading.isFaulty = !faults.empty();
    reading.scanned = second::scanSecondEdition(reading.source, faults);
}

bool isLayout(TokenType type) {
    return type == TokenType::INDENT || type == TokenType::DEDENT || type == TokenType::NEWLINE ||
           type == TokenType::END_OF_FILE;
}

/// Where the words begin, which are the tokens that lines and blocks don't bring.
std::vector<std::uint32_t> beginsOfWords(const ScannedSource& scanned) {
    std::vector<std::uint32_t> begins;
    for (std::size_t index = 0; index < scanned.tokens.size(); ++index) {
        if (!isLayout(scanned.tokens[index].type)) {
            begins.push_back(scanned.places[index].begin);
        }
    }
    return begins;
}

/// The words that each node of the tree is made of, from one number up to another: what is the same for two sources only
/// if their trees have the same form.
std::vector<std::pair<std::size_t, std::size_t>> wordsOfNodes(const SourceReading& reading) {
    const std::vector<std::uint32_t> begins = beginsOfWords(reading.scanned);
    const auto wordsBefore = [&](std::uint32_t offset) {
        return static_cast<std::size_t>(std::lower_bound(begins.begin(), begins.end(), offset) - begins.begin());
    };
    std::vector<std::pair<std::size_t, std::size_t>> nodes;
    nodes.reserve(reading.nodes.size());
    for (const ByteRange range : reading.nodes) {
        nodes.emplace_back(wordsBefore(range.begin), wordsBefore(range.end));
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

bool haveSameForm(const SourceReading& a, const SourceReading& b) {
    return !a.isFaulty && !b.isFaulty && a.edition == b.edition && haveSameLayout(a, b) &&
           wordsOfNodes(a) == wordsOfNodes(b);
}

} // namespace pozhil::formatter
