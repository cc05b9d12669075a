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

} // namespace

FormattedSource formatSource(const SourcePtr& source, const FrontEndOptions& options) {
    const SourceReading reading = formatter::readSource(source, options);
    if (reading.isFaulty) {
        return {FormatResult::Faulty, source->text};
    }
    const bool isFirst = reading.edition == Edition::First;
    const std::optional<Pieces> pieces = formatter::piecesOf(reading.scanned, isFirst);
    if (!pieces) {
        return {FormatResult::NotUnderstood, source->text};
    }
    for (const InBrackets inBrackets : {InBrackets::Brackets, InBrackets::Lines}) {
        std::string text = textOf(*pieces, inBrackets);
        const SourcePtr made = makeSource(source->path, text);
        if (text == source->text || meanTheSame(reading, formatter::readSource(made, options))) {
            return {FormatResult::Formatted, std::move(text)};
        }
    }
    return {FormatResult::NotUnderstood, source->text};
}

} // namespace pozhil
