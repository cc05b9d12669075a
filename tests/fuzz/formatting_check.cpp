#include "formatting_check.h"

#include "diagnostics/fault.h"
#include "driver/second_translation.h"
#include "driver/translation.h"
#include "expectation.h"
#include "scanner/lexer.h"
#include "scanner/second/scanner.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <iterator>
#include <vector>

using namespace pozhil;

namespace {

constexpr std::string_view BLANKS = " \t\r\v\f";
constexpr std::string_view BLOCK_COMMENT = "ஃஃ";

std::string_view trimmed(std::string_view line) {
    line.remove_prefix(std::min(line.find_first_not_of(BLANKS), line.size()));
    return line.substr(0, line.find_last_not_of(BLANKS) + 1);
}

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

ScannedSource scanned(const SourcePtr& source) {
    SecondFaults faults;
    return editionOf(source, faults) == Edition::Second ? second::scanSecondEdition(source, faults)
                                                        : Lexer(source).scan();
}

/// What stands between two tokens but blanks: a comment over lines as it is, of other lines what isn't blank.
void addComments(std::string_view gap, std::vector<std::string>& all) {
    while (true) {
        gap.remove_prefix(std::min(gap.find_first_not_of(" \t\r\v\f\n"), gap.size()));
        if (gap.empty()) {
            return;
        }
        const bool isBlock = gap.substr(0, BLOCK_COMMENT.size()) == BLOCK_COMMENT;
        const std::size_t end = isBlock ? gap.find(BLOCK_COMMENT, BLOCK_COMMENT.size()) + BLOCK_COMMENT.size()
                                        : std::min(gap.find('\n'), gap.size());
        all.emplace_back(isBlock ? gap.substr(0, end) : trimmed(gap.substr(0, end)));
        gap.remove_prefix(end);
    }
}

/// All tokens that a source has a text for, byte for byte, and all comments, in the order of the text.
std::vector<std::string> partsOf(const SourcePtr& source) {
    const ScannedSource tokens = scanned(source);
    const std::string_view text = source->text;
    std::vector<std::string> parts;
    std::size_t position = 0;
    for (std::size_t index = 0; index < tokens.tokens.size(); ++index) {
        const ByteRange place = tokens.places[index];
        const TokenType type = tokens.tokens[index].type;
        const bool isLayout = type == TokenType::INDENT || type == TokenType::DEDENT || type == TokenType::NEWLINE ||
                              type == TokenType::END_OF_FILE;
        if (isLayout) {
            continue;
        }
        addComments(text.substr(position, place.begin - position), parts);
        parts.emplace_back(text.substr(place.begin, place.end - place.begin));
        position = place.end;
    }
    addComments(text.substr(position), parts);
    return parts;
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// How many characters of a line's columns stand here: ":4-9" of "12:4-9".
std::size_t columnsAt(std::string_view line, std::size_t at) {
    const auto digitsEnd = [&](std::size_t begin) {
        return begin < line.size() ? std::min(line.find_first_not_of("0123456789", begin), line.size()) : line.size();
    };
    const std::size_t middle = digitsEnd(at + 1);
    const std::size_t end = digitsEnd(middle + 1);
    const bool fits = line[at] == ':' && at > 0 && isDigit(line[at - 1]) && middle > at + 1 && end > middle + 1 &&
                      line[middle] == '-' && end < line.size() && line[end] == '"';
    return fits ? end - at : 0;
}

std::string withoutColumns(std::string_view line) {
    std::string masked;
    for (std::size_t at = 0; at < line.size();) {
        const std::size_t columns = columnsAt(line, at);
        if (columns == 0) {
            masked += line[at];
        }
        at += std::max<std::size_t>(columns, 1);
    }
    return masked;
}

/// The C++ text without what tells of the source's layout: the source itself, columns, and blanks of comments, which quote
/// the source.
std::string withoutLayout(std::string_view text) {
    std::string masked;
    bool isInSource = false;
    for (const std::string_view line : linesOf(text)) {
        isInSource = isInSource ? line != "};" : line == "static const Source sources[] = {";
        if (isInSource) {
            continue;
        }
        if (trimmed(line).substr(0, 2) == "//") {
            std::copy_if(line.begin(), line.end(), std::back_inserter(masked), [](char c) { return c != ' '; });
        } else {
            masked += withoutColumns(line);
        }
        masked += '\n';
    }
    return masked;
}

std::string firstMeaning(const SourcePtr& source, const FrontEndOptions& options) {
    try {
        return generateText(parseSource(source, options)).text;
    } catch (const Fault& fault) {
        return fault.code + " " + std::to_string(fault.line);
    } catch (const StageFailure& failure) {
        return failure.what();
    }
}

std::string secondMeaning(const SourcePtr& source, const FrontEndOptions& options) {
    const SecondTranslation translation = translateSecondEdition(source, options);
    std::string meaning = withoutLayout(translation.output.text);
    for (const SecondFault& fault : translation.faults) {
        meaning += std::to_string(fault.number) + "\n";
    }
    return meaning;
}

} // namespace

std::string meaningOf(const SourcePtr& source) {
    const MemoryLoader noFiles;
    FrontEndOptions options;
    options.loader = &noFiles;
    SecondFaults faults;
    return editionOf(source, faults) == Edition::Second ? secondMeaning(source, options)
                                                        : firstMeaning(source, options);
}

std::string withLinesOf(std::string_view source, std::string_view formatted) {
    const std::vector<std::string_view> made = linesOf(formatted);
    std::string text;
    std::size_t next = 0;
    for (const std::string_view line : linesOf(source)) {
        const bool isBlankLine = trimmed(line).empty();
        if (isBlankLine && (next == made.size() || !trimmed(made[next]).empty())) {
            text += '\n';
        } else if (next < made.size()) {
            text.append(made[next++]).append("\n");
        }
    }
    return text;
}

FormattedSource checkFormatting(const SourcePtr& source) {
    const MemoryLoader noFiles;
    FrontEndOptions options;
    options.loader = &noFiles;
    FormattedSource formatted = formatSource(source, options);
    if (formatted.result != FormatResult::Formatted) {
        expect(formatted.text == source->text, "what isn't formatted stays as it is");
        return formatted;
    }
    const SourcePtr made = makeSource(source->path, formatted.text);
    expect(partsOf(source) == partsOf(made), "words, texts and comments stay byte for byte");
    const FormattedSource again = formatSource(made, options);
    expect(again.result == FormatResult::Formatted, "what was formatted can be formatted");
    expect(again.text == formatted.text, "formatting twice changes nothing more");
    expect(formatted.text.find("\n\n\n") == std::string::npos || source->text.find("\n\n\n") != std::string::npos,
           "no more than one blank line");
    const SourcePtr onLines = makeSource(source->path, withLinesOf(source->text, formatted.text));
    expect(meaningOf(source) == meaningOf(onLines), "the same text is emitted");
    return formatted;
}
