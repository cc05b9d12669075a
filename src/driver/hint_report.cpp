#include "driver/hint_report.h"

#include "analysis/hints.h"
#include "base/line_index.h"
#include "driver/console/console_style.h"
#include "driver/settings.h"
#include "front_end/second_edition.h"

#include <algorithm>
#include <cstddef>
#include <iostream>
#include <string>
#include <string_view>

namespace pozhil {
namespace {

/// A beginner reads a few lines, not a list.
constexpr std::size_t MOST_HINTS = 5;

void show(const std::string& path, std::size_t line, std::string_view text) {
    std::cerr << style::GOLD << HINT_TITLE << style::RESET << hintText(path, line, text) << std::endl;
}

} // namespace

std::string hintText(const std::string& path, std::size_t line, std::string_view text) {
    return path + " வரி " + std::to_string(line) + ": " + std::string(text);
}

void reportHints(const ParsedSource& parsed) {
    reportAlmostMarked(*parsed.parser->scanned().source);
    if (!settings::showsHints()) {
        return;
    }
    const std::vector<Hint> hints = hintsOf(parsed.program, *parsed.parser);
    for (std::size_t index = 0; index < std::min(hints.size(), MOST_HINTS); ++index) {
        const Hint& hint = hints[index];
        show(hint.place.source->path, static_cast<std::size_t>(hint.line), hint.text);
    }
}

void reportHints(const SecondHints& hints) {
    if (!settings::showsHints()) {
        return;
    }
    for (std::size_t index = 0; index < std::min(hints.size(), MOST_HINTS); ++index) {
        const SourcePlace& place = hints[index].place;
        show(place.source->path, LineIndex(place.source->text).lineAt(place.range.begin), hints[index].text);
    }
}

void reportAlmostMarked(const SourceText& source) {
    if (settings::showsHints() && isAlmostMarked(source)) {
        show(source.path, 1, ALMOST_MARKED_HINT);
    }
}

} // namespace pozhil
