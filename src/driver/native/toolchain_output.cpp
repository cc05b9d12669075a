#include "driver/native/toolchain_output.h"

#include <sstream>

namespace pozhil {
namespace {

constexpr const char* SPELLING_WARNING = "[-Wnormalized=";

/// Whether g++ shows a line of the text here, or marks a place in it: " 12 | ...", "    | ...".
bool isExcerpt(const std::string& line) {
    const std::size_t bar = line.find(" |");
    return !line.empty() && line.front() == ' ' && bar != std::string::npos &&
           line.find_first_not_of(" 0123456789") == bar + 1;
}

} // namespace

std::string withoutSpellingWarnings(const std::string& errors) {
    if (errors.find(SPELLING_WARNING) == std::string::npos) {
        return errors;
    }
    std::string kept;
    std::istringstream lines(errors);
    bool isDropping = false;
    for (std::string line; std::getline(lines, line);) {
        const bool isWarning = line.find(SPELLING_WARNING) != std::string::npos;
        isDropping = isWarning || (isDropping && isExcerpt(line));
        if (!isDropping) {
            kept += line + "\n";
        }
    }
    return kept;
}

} // namespace pozhil
