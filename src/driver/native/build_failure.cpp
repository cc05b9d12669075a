#include "driver/native/build_failure.h"

#include "driver/console/console_style.h"
#include "driver/console/explanation.h"

#include <algorithm>
#include <array>
#include <iostream>
#include <iterator>
#include <string>

namespace pozhil {
namespace {

struct Row {
    /// Words of g++, of the assembler, of the linkers, or of the system; empty ones don't exist.
    std::array<std::string_view, 5> words;
    BuildObstacle obstacle;
};

constexpr BuildObstacle ENDED = {"g++ தன் வேலையை முடிக்கும் முன் நிறுத்தப்பட்டது; நினைவகம் போதாதபோது கணினியே அப்படி நிறுத்தும்.",
                                 "மத்த செயலிகளை மூடிட்டு மீண்டும் ஓட்டு மச்சி!"};

constexpr Row ROWS[] = {
    {{"No space left on device", "Disk full", "Disk quota exceeded"},
     {"வட்டில் இடம் இல்லை.", "தேவையில்லாத கோப்புகளை நீக்கிட்டு மீண்டும் ஓட்டு மச்சி!"}},
    {{"File size limit exceeded", "File too large"},
     {"கோப்புகளின் அளவுக்குக் கணினி வைத்த வரம்பை உருவாகும் நிரல் மீறுகிறது.", "அந்த வரம்பை உயர்த்திட்டு (ulimit -f) மீண்டும் ஓட்டு!"}},
    {{"out of memory", "memory exhausted", "Cannot allocate memory", "std::bad_alloc"},
     {"நினைவகம் போதவில்லை.", "மத்த செயலிகளை மூடிட்டு மீண்டும் ஓட்டு; வரம்பு வைத்திருந்தால் அதை உயர்த்து (ulimit -v) மச்சி!"}},
    {{"Killed signal terminated", "Terminated signal terminated", "terminated with signal 9 ",
      "terminated with signal 15 "},
     ENDED},
};

/// Lines that begin with a blank show what g++ was given, which may hold any words.
bool says(std::string_view written, std::string_view words) {
    for (std::size_t found = written.find(words); found != std::string_view::npos;
         found = written.find(words, found + 1)) {
        const std::size_t lineEnd = found == 0 ? std::string_view::npos : written.rfind('\n', found - 1);
        if (written[lineEnd + 1] != ' ') {
            return true;
        }
    }
    return false;
}

} // namespace

std::optional<BuildObstacle> findObstacle(const platform::CommandResult& result) {
    constexpr int SIGNALLED = 128;
    const std::string_view written = result.errors;
    const auto* const row = std::find_if(std::begin(ROWS), std::end(ROWS), [&](const Row& one) {
        return std::any_of(one.words.begin(), one.words.end(),
                           [&](std::string_view words) { return !words.empty() && says(written, words); });
    });
    if (row != std::end(ROWS)) {
        return row->obstacle;
    }
    return result.status > SIGNALLED ? std::optional(ENDED) : std::nullopt;
}

void tellObstacle(const BuildObstacle& obstacle) {
    std::cerr << style::RED << "பிழை: உன் நிரலை g++-ஆல் தொகுக்க முடியவில்லை!" << style::RESET << std::endl;
    printExplanation({{}, {std::string(obstacle.cause)}, std::string(obstacle.remedy)});
}

} // namespace pozhil
