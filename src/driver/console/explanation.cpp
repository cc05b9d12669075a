#include "driver/console/explanation.h"

#include "base/utf8.h"
#include "driver/console/console_style.h"

#include <algorithm>
#include <iostream>

namespace pozhil {
namespace {

using namespace style;

/// The line without its indentation, and not more of it than is read at a glance.
std::string glance(std::string_view line) {
    constexpr std::size_t MOST_BYTES = 240;
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    std::size_t end = 0;
    while (end < line.size() && end < MOST_BYTES) {
        end += firstCharacter(line.substr(end)).size();
    }
    return std::string(line.substr(0, end)) + (end < line.size() ? "…" : "");
}

} // namespace

void printPlace(const ShownPlace& place) {
    if (place.file.empty()) {
        return;
    }
    std::cerr << "  📍 " << CYAN << place.file << RESET;
    if (place.line > 0) {
        std::cerr << ", வரி " << place.line << "\n     " << place.line << " |  " << glance(place.lineText);
    }
    std::cerr << std::endl;
}

void printExplanation(const Explanation& explanation) {
    printPlace(explanation.place);
    for (const std::string& cause : explanation.causes) {
        if (!cause.empty()) {
            std::cerr << "  ╰── " << cause << "\n";
        }
    }
    if (!explanation.remedy.empty()) {
        std::cerr << GOLD << "  💡 " << explanation.remedy << RESET << "\n";
    }
    std::cerr << std::flush;
}

} // namespace pozhil
