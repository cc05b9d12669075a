#include "formatter/formatter.h"

#include "formatter/line_columns.h"
#include "formatter/pieces.h"
#include "formatter/source_reading.h"
#include "formatter/spacing.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace pozhil {
namespace {

using formatter::InBrackets;
using formatter::Piece;
using formatter::Pieces;
using formatter::SourceReading;

/// One of them ends a line, the other makes a blank one.
constexpr std::size_t MOST_LINE_ENDS = 2;

std::optional<Pieces> piecesOf(const SourceReading& reading) {
    return formatter::piecesOf(reading.scanned, reading.edition == Edition::First);
}

std::string textOf(const Pieces& pieces, InBrackets inBrackets) {
    const std::vector<std::size_t> columns = formatter::lineColumns(pieces, inBrackets);
    const std::vector<std::size_t> blanks = formatter::blanksBefore(pieces);
    std::string text;
    for (std::size_t index = 0; index < pieces.size(); ++index) {
        const Piece& piece = pieces[index];
        if (piece.kind == Piece::Kind::End) {
            break;
        }
        if (index > 0) {
            text.append(std::min(piece.linesBefore, MOST_LINE_ENDS), '\n');
        }
        text.append(piece.isLineStart ? columns[index] : blanks[index], ' ');
        text += piece.text;
    }
    return text.empty() ? text : text + "\n";
}

/// Whether nothing but blanks differs: the same words and comments byte for byte, with the same meaning.
bool isSafe(const SourceReading& reading, const Pieces& pieces, const SourceReading& made) {
    if (!haveSameForm(reading, made)) {
        return false;
    }
    const std::optional<Pieces> others = piecesOf(made);
    return others &&
           std::equal(pieces.begin(), pieces.end(), others->begin(), others->end(), [](const Piece& a, const Piece& b) {
               return a.kind == b.kind && a.type == b.type && a.text == b.text;
           });
}

} // namespace

FormattedSource formatSource(const SourcePtr& source, const FrontEndOptions& options) {
    const SourceReading reading = formatter::readSource(source, options);
    if (reading.isFaulty) {
        return {FormatResult::Faulty, source->text};
    }
    const std::optional<Pieces> pieces = piecesOf(reading);
    if (!pieces) {
        return {FormatResult::NotUnderstood, source->text};
    }
    for (const InBrackets inBrackets : {InBrackets::Brackets, InBrackets::Lines}) {
        if (inBrackets == InBrackets::Lines && reading.edition == Edition::Second) {
            break;
        }
        std::string text = textOf(*pieces, inBrackets);
        const SourcePtr made = makeSource(source->path, text);
        if (text == source->text || isSafe(reading, *pieces, formatter::readSource(made, options))) {
            return {FormatResult::Formatted, std::move(text)};
        }
    }
    return {FormatResult::NotUnderstood, source->text};
}

} // namespace pozhil
