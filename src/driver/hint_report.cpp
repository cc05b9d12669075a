#include "driver/hint_report.h"

#include "analysis/hints.h"
#include "driver/console/console_style.h"
#include "driver/settings.h"

#include <algorithm>
#include <cstddef>
#include <iostream>

namespace pozhil {

/// A beginner reads a few lines, not a list.
void reportHints(const ParsedSource& parsed) {
    constexpr std::size_t MOST_HINTS = 5;
    if (!settings::showsHints()) {
        return;
    }
    const std::vector<Hint> hints = hintsOf(parsed.program, *parsed.parser);
    for (std::size_t index = 0; index < std::min(hints.size(), MOST_HINTS); ++index) {
        const Hint& hint = hints[index];
        std::cerr << style::GOLD << "💡 குறிப்பு: " << style::RESET << hint.place.source->path << " வரி " << hint.line
                  << ": " << hint.text << std::endl;
    }
}

} // namespace pozhil
