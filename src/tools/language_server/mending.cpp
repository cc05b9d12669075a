#include "tools/language_server/mending.h"

#include "base/line_index.h"
#include "driver/settings.h"
#include "tools/check/source_check.h"
#include "tools/language_server/changed_texts.h"
#include "tools/test/test_files.h"

#include <algorithm>
#include <ios>
#include <string_view>
#include <utility>
#include <vector>

namespace pozhil::language_server {
namespace {

using tools::Finding;
using tools::Findings;

/// The word in a part of the source, if it stands there once, or at its beginning.
std::optional<ByteRange> wordIn(const Outline& outline, ByteRange part, std::string_view word) {
    std::vector<ByteRange> found;
    for (std::size_t i = 0; i < outline.scanned.tokens.size(); ++i) {
        const ByteRange& place = outline.placeOf(i);
        const bool isText = outline.isType(i, TokenType::STRING) || outline.isType(i, TokenType::CHAR);
        if (part.begin <= place.begin && place.end <= part.end && !isText && outline.token(i).value == word) {
            found.push_back(place);
        }
    }
    const bool isCertain = found.size() == 1 || (!found.empty() && found.front().begin == part.begin);
    return isCertain ? std::optional<ByteRange>(found.front()) : std::nullopt;
}

ByteRange lineAround(const SourcePtr& source, std::size_t offset) {
    const std::string& text = source->text;
    const std::size_t begin = offset == 0 ? 0 : text.rfind('\n', offset - 1) + 1; // npos + 1 is the beginning
    const std::size_t end = std::min(text.find('\n', offset), text.size());
    return {static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(end)};
}

/// Where the word or sign stands that is to be replaced.
std::optional<ByteRange> writtenPlace(const Workspace& workspace, const SourcePtr& source, const Finding& finding) {
    const ByteRange& range = finding.place.range;
    const std::string_view text = source->text;
    const std::string_view word = finding.mend.written;
    if (text.substr(range.begin, range.end - range.begin) == word) {
        return range;
    }
    if (text.substr(range.begin, range.end - range.begin) == '"' + finding.mend.written + '"') {
        return ByteRange{range.begin + 1, range.end - 1};
    }
    const auto outline = workspace.outlineOf(source);
    const std::optional<ByteRange> within = wordIn(*outline, range, word);
    return within ? within : wordIn(*outline, lineAround(source, range.begin), word);
}

bool isBlank(char byte) {
    return byte == ' ' || byte == '\t' || byte == '\n';
}

bool isSign(std::string_view written) {
    constexpr char FIRST_OF_TAMIL = '\xE0';
    const char first = written.front();
    const bool isLatin = (first >= 'a' && first <= 'z') || (first >= 'A' && first <= 'Z') || first == '_';
    return !isLatin && first != FIRST_OF_TAMIL;
}

/// A word in the place of a sign needs blanks around it.
std::string writtenAt(const SourcePtr& source, ByteRange place, const Finding& finding) {
    const std::string& text = source->text;
    const bool needsBlanks = isSign(finding.mend.written);
    const bool needsBefore = needsBlanks && place.begin > 0 && !isBlank(text[place.begin - 1]);
    const bool needsAfter = needsBlanks && place.end < text.size() && !isBlank(text[place.end]);
    return (needsBefore ? " " : "") + finding.mend.meant + (needsAfter ? " " : "");
}

/// What tells findings of a line apart, whatever else moves on it.
std::vector<std::string> kindsOnLine(const SourcePtr& source, const Findings& findings, std::size_t line) {
    const LineIndex lines(source->text);
    std::vector<std::string> kinds;
    for (const Finding& finding : findings) {
        const bool isHere = finding.place.source != nullptr && finding.place.source->path == source->path;
        if (isHere && lines.lineAt(finding.place.range.begin) == line) {
            kinds.push_back(finding.text.code.empty() ? finding.text.message : finding.text.code);
        }
    }
    std::sort(kinds.begin(), kinds.end());
    return kinds;
}

} // namespace

Findings findingsOf(const SourcePtr& source, FrontEndOptions options) {
    options.isTest = tools::isTestFile(source->path);
    try {
        return tools::checkSource(source, options, settings::showsHints());
    } catch (const std::ios_base::failure&) {
        return {}; // an import that can be opened but not read
    }
}

std::optional<SourceEdit> mendOf(const Workspace& workspace, const SourcePtr& source, const Findings& findings,
                                 const Finding& finding) {
    if (finding.mend.written.empty() || finding.mend.meant.empty()) {
        return std::nullopt;
    }
    const std::optional<ByteRange> place = writtenPlace(workspace, source, finding);
    if (!place) {
        return std::nullopt;
    }
    SourceEdit edit = {*place, writtenAt(source, *place, finding)};
    const std::size_t line = LineIndex(source->text).lineAt(finding.place.range.begin);
    std::vector<std::string> before = kindsOnLine(source, findings, line);
    before.erase(
        std::find(before.begin(), before.end(), finding.text.code.empty() ? finding.text.message : finding.text.code));
    ChangedTexts texts(workspace);
    const SourcePtr mended = texts.change(source, {edit.place}, edit.text);
    const std::vector<std::string> after = kindsOnLine(mended, findingsOf(mended, texts.options()), line);
    const bool isMended = std::includes(before.begin(), before.end(), after.begin(), after.end());
    return isMended ? std::optional<SourceEdit>(std::move(edit)) : std::nullopt;
}

} // namespace pozhil::language_server
