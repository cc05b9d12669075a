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

using formatter::Piece;
using formatter::Pieces;

std::string textOf(const Pieces& pieces) {
    const std::vector<std::size_t> columns = formatter::lineColumns(pieces);
    const std::vector<std::size_t> blanks = formatter::blanksBefore(pieces);
    std::string text;
    for (std::size_t index = 0; index < pieces.size(); ++index) {
        const Piece& piece = pieces[index];
        if (piece.kind == Piece::Kind::End) {
            break;
        }
        if (piece.linesBefore > 0 && index > 0) {
            text.append(std::min<std::size_t>(piece.linesBefore, 2), '\n');
        }
        text.append(index == 0 || piece.linesBefore > 0 ? columns[index] : blanks[index], ' ');
        text += piece.text;
    }
    return text.empty() ? text : text + "\n";
}

} // namespace

FormattedSource formatSource(const SourcePtr& source, const FrontEndOptions& options) {
    const formatter::SourceReading reading = formatter::readSource(source, options);
    if (reading.isFaulty) {
        return {FormatResult::Faulty, source->text};
    }
    const std::optional<Pieces> pieces = formatter::piecesOf(reading.scanned);
    if (!pieces) {
        return {FormatResult::NotUnderstood, source->text};
    }
    std::string text = textOf(*pieces);
    if (text == source->text) {
        return {FormatResult::Formatted, std::move(text)};
    }
    const SourcePtr made = makeSource(source->path, text);
    if (!meanTheSame(reading, formatter::readSource(made, options))) {
        return {FormatResult::NotUnderstood, source->text};
    }
    return {FormatResult::Formatted, std::move(text)};
}

} // namespace pozhil
