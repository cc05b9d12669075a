#include "driver/output_places.h"

#include <cstdint>

namespace pozhil {

OutputPlaces::OutputPlaces(const ParsedSource& source, const OutputText& output)
    : source_(source), output_(output), outputLines_(output.text) {}

std::optional<StatementPlace> OutputPlaces::find(std::size_t outputLine) {
    if (outputLine == 0 || outputLine > outputLines_.count()) {
        return std::nullopt;
    }
    const void* node = output_.origins.ofLineAt(output_.text, outputLines_.beginOf(outputLine));
    const std::optional<SourcePlace> place = source_.parser->places().ofAddress(node);
    if (!place) {
        return std::nullopt;
    }
    const SourceText* text = place->source.get();
    const auto& index = sourceLines_.try_emplace(text, text->text).first->second;
    return StatementPlace{*place, index.lineAt(place->range.begin)};
}

ShownPlace shownPlace(const StatementPlace& statement) {
    const auto number = static_cast<std::int32_t>(statement.line);
    const SourceText& source = *statement.place.source;
    return {source.path, number, lineOf(source.text, number)};
}

} // namespace pozhil
