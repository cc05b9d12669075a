#pragma once

#include "base/source_place.h"
#include "front_end/second_edition.h"
#include "scanner/scanned_source.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace pozhil::language_server {

enum class SymbolKind : std::uint8_t {
    Application,
    Function,
    Method,
    Structure,
    AbstractStructure,
    Enumeration,
    EnumerationMember,
    Field,
    Variable,
    Parameter
};

constexpr std::size_t NO_INDEX = std::numeric_limits<std::size_t>::max();

/// Something that a source gives a name.
struct Symbol {
    SymbolKind kind = SymbolKind::Variable;
    std::string name;
    /// Where the name stands, and all that belongs to it.
    ByteRange place;
    ByteRange whole;
    /// Index of the symbol that it stands in, NO_INDEX at top level.
    std::size_t parent = NO_INDEX;
    /// Of functions and methods.
    std::vector<std::string> parameters{};
    /// Of a structure; may be empty.
    std::string parentStructure{};
    /// Of a parameter of a function without a name, and of an element that a page shows, where it is known; empty for all
    /// others.
    ByteRange reach{};
};

struct Import {
    /// As it is written.
    std::string path;
    ByteRange place;
};

/// What can be told of a single source by its tokens alone, so that it can be told while there are faults in it: a source
/// that is being written nearly always has some.
struct Outline {
    Edition edition = Edition::First;
    ScannedSource scanned;
    /// In the order of the text.
    std::vector<Symbol> symbols;
    std::unordered_map<std::string, std::vector<std::size_t>> byName{};
    std::vector<Import> imports{};

    /// Index of the token that a byte stands in or right after, NO_INDEX if there is none. Line ends and indentation are no
    /// tokens here.
    std::size_t tokenAt(std::size_t offset) const;

    /// Index of the last token that begins before a byte, NO_INDEX if there is none; with line ends and indentation.
    std::size_t tokenBefore(std::size_t offset) const;

    const Token& token(std::size_t index) const { return scanned.tokens[index]; }
    const ByteRange& placeOf(std::size_t index) const { return scanned.places[index]; }
    bool isType(std::size_t index, TokenType type) const {
        return index < scanned.tokens.size() && scanned.tokens[index].type == type;
    }
    /// Whether it is a word that stands for itself or a name: all but texts, numbers and signs.
    bool isWord(std::size_t index) const;

    /// The symbol that a name means where it stands, nothing but members excepted; null if this source has none.
    const Symbol* find(std::string_view name, std::size_t offset) const;
    /// The innermost function or structure around a byte, NO_INDEX if there is none.
    std::size_t scopeAt(std::size_t offset) const;
};

/// Whether it can only be reached over something else, by a dot.
bool isMember(const Symbol& symbol);

/// Sources that are longer have no outline: nobody writes them by hand.
constexpr std::size_t MOST_OUTLINED_BYTES = std::size_t(8) << 20U;

/// Scans a source and notes what it names. Whatever the bytes, this comes to an end without a fault.
Outline outlineOf(const SourcePtr& source);

} // namespace pozhil::language_server
