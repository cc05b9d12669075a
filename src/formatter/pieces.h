#pragma once

#include "scanner/scanned_source.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace pozhil::formatter {

/// What stands between blanks: a token, or what the scanner passes over.
struct Piece {
    enum class Kind { Token, LineComment, BlockComment, Semicolon, End };

    Kind kind = Kind::End;
    /// Of a token.
    TokenType type = TokenType::END_OF_FILE;
    /// As it is written, a comment without the blanks after it.
    std::string_view text;
    /// How many line ends stand before it, after the piece before it.
    std::size_t linesBefore = 0;
    /// Whether it is indented: at the beginning of a line, and in the first edition after a semicolon.
    bool isLineStart = false;
    /// How far it is indented, a tab reaching to the next multiple of four.
    std::size_t width = 0;
    /// Edges of blocks before it: INDENT and DEDENT.
    std::vector<TokenType> edges{};

    bool isComment() const { return kind == Kind::LineComment || kind == Kind::BlockComment; }
    /// Whether it is what the scanner sees.
    bool isCode() const { return kind == Kind::Token || kind == Kind::Semicolon; }
    bool isOpeningBracket() const {
        return type == TokenType::LPAREN || type == TokenType::LBRACKET || type == TokenType::LBRACE;
    }
    bool isClosingBracket() const {
        return type == TokenType::RPAREN || type == TokenType::RBRACKET || type == TokenType::RBRACE;
    }
};

using Pieces = std::vector<Piece>;

/// Takes a source to pieces, the last of which is its end.
/// \param areStatementsIndented whether the blanks after a semicolon count like those at the beginning of a line
/// \return nothing if anything else than blanks and comments stands between tokens
std::optional<Pieces> piecesOf(const ScannedSource& scanned, bool areStatementsIndented);

} // namespace pozhil::formatter
