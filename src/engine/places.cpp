#include "engine/places.h"

#include "engine/running_program.h"

#include <cstdlib>
#include <string_view>

namespace pozhil::engine {
namespace {

/// A place in numbers.
struct Position {
    int file = 0;
    /// Counted from 1; 0 if it is unknown.
    int line = 0;
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// Reads a number and the character after it.
/// \return the number
unsigned long readNumber(const char*& rest) {
    char* end = nullptr;
    const unsigned long number = std::strtoul(rest, &end, 10);
    rest = *end == '\0' ? end : end + 1;
    return number;
}

Position positionOf(Place place) {
    Position position;
    if (place == nullptr) {
        return position;
    }
    const char* rest = place;
    if (std::string_view(place).find('/') != std::string_view::npos) {
        position.file = static_cast<int>(readNumber(rest));
    }
    position.line = static_cast<int>(readNumber(rest));
    position.begin = readNumber(rest);
    position.end = readNumber(rest);
    return position;
}

/// The source of this number, null if the program has none.
const Source* sourceOf(int file) {
    const ProgramInfo& program = runningProgram();
    return file < program.sourceCount ? &program.sources[file] : nullptr;
}

std::string_view lineOf(const Source& source, int line) {
    std::string_view rest(source.text, source.length);
    for (int skipped = 1; skipped < line; ++skipped) {
        const std::size_t end = rest.find('\n');
        if (end == std::string_view::npos) {
            return {};
        }
        rest.remove_prefix(end + 1);
    }
    return rest.substr(0, rest.find('\n'));
}

} // namespace

report::Excerpt excerptOf(Place place) {
    const Position position = positionOf(place);
    const Source* const source = sourceOf(position.file);
    if (source == nullptr) {
        return {};
    }
    if (source->text == nullptr) {
        return {source->path, position.line, "", 0, 0, true};
    }
    return {source->path, position.line, std::string(lineOf(*source, position.line)), position.begin, position.end};
}

report::Call callOf(const Frame& frame) {
    const Position position = positionOf(frame.calledAt());
    const Source* const source = sourceOf(position.file);
    return {frame.function(), source == nullptr ? "" : source->path, position.line};
}

} // namespace pozhil::engine
