#include "support/second_writing.h"

#include "analysis/second/analysis.h"
#include "base/line_index.h"
#include "front_end/second_edition.h"
#include "generator/second/generator.h"
#include "support/second_source.h"

#include <algorithm>
#include <regex>
#include <sstream>

namespace pozhil::test {
namespace {

constexpr const char* MARKER = "ஃ பொழில் 2\n";

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}

std::string trimmed(const std::string& line) {
    return line.substr(std::min(line.find_first_not_of(' '), line.size()));
}

/// Places of the source are told by a test of their own; @ stands for each.
std::string withoutPlaces(const std::string& text) {
    static const std::regex PLACE("\"[0-9]+:[0-9]+-[0-9]+\"");
    return std::regex_replace(text, PLACE, "@");
}

/// The lines between the heads of functions that begin so and their ends.
std::string bodies(const std::string& text, const std::string& head) {
    std::istringstream lines(text);
    std::string found;
    bool isInside = false;
    for (std::string line; std::getline(lines, line);) {
        const bool isHead = line.find(head) != std::string::npos && line.back() == '{';
        if (isInside && line == "}") {
            isInside = false;
        } else if (isInside) {
            const std::string statement = withoutPlaces(trimmed(line));
            const bool isNoise = statement.rfind("//", 0) == 0 || statement.rfind("Frame frame(", 0) == 0;
            found += isNoise ? "" : statement + "\n";
        }
        isInside = isInside || isHead;
    }
    return found;
}

} // namespace

WrittenProgram::WrittenProgram(const std::string& source) {
    const SecondProgram program = parseSecondEdition(makeSource("நிரல்.பொழில்", MARKER + source), {});
    if (!program.faults.empty()) {
        text_ = joined(faultTexts(program.faults));
        return;
    }
    const SecondMeaning meaning = analyseSecondEdition(program);
    if (!meaning.faults.empty()) {
        text_ = joined(faultTexts(meaning.faults));
        return;
    }
    const SecondText written = writeSecondEdition(meaning.program);
    text_ = written.text;
    const LineIndex lines(meaning.program.files.back().source->text);
    for (const resolved::Place& place : written.origins) {
        sourceLines_.push_back(lines.lineAt(place.range.begin));
    }
}

std::string WrittenProgram::statements() const {
    return bodies(text_, "static void start_");
}

std::string WrittenProgram::body(const std::string& function) const {
    return bodies(text_, " " + function + "(");
}

std::size_t WrittenProgram::sourceLine(std::size_t number) const {
    return sourceLines_.at(number - 1);
}

std::size_t WrittenProgram::lineWith(const std::string& piece) const {
    const std::size_t found = text_.find(piece);
    return found == std::string::npos ? 0 : LineIndex(text_).lineAt(found);
}

} // namespace pozhil::test
