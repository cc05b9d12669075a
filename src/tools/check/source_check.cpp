#include "tools/check/source_check.h"

#include "analysis/hints.h"
#include "analysis/second/analysis.h"
#include "base/line_index.h"
#include "driver/hint_report.h"
#include "driver/translation.h"
#include "error_codes.h"
#include "front_end/second_edition.h"
#include "language/diagnostic_causes.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace pozhil::tools {
namespace {

/// What tells a person enough for a day.
constexpr std::size_t MOST_FAULTS = 100;

/// A whole line of a source without the blanks around it.
SourcePlace placeOfLine(const SourcePtr& source, std::size_t line) {
    constexpr std::string_view BLANKS = " \t";
    const std::string_view all = source->text;
    const LineIndex lines(all);
    const std::size_t number = std::clamp<std::size_t>(line, 1, lines.count());
    const std::size_t lineBegin = lines.beginOf(number);
    const std::string_view text = all.substr(lineBegin, all.substr(lineBegin).find('\n'));
    const std::size_t begin = std::min(text.find_first_not_of(BLANKS), text.size());
    const std::size_t end = std::max(begin, text.find_last_not_of(BLANKS) + 1);
    return {source, {static_cast<std::uint32_t>(lineBegin + begin), static_cast<std::uint32_t>(lineBegin + end)}};
}

language::Bilingual causeOf(std::string_view code) {
    const auto causes = language::diagnosticCauses();
    const auto* found = std::find_if(causes.begin(), causes.end(), [&](const auto& row) { return row.code == code; });
    return found == causes.end() ? language::Bilingual() : found->cause;
}

/// \param text as far as it is known without the place
Finding findingAt(SourcePlace place, const std::string& file, report::FaultText text, Mend mend) {
    Finding finding;
    finding.mend = std::move(mend);
    finding.cause = causeOf(text.code);
    finding.text = std::move(text);
    finding.text.excerpt.file = file;
    if (place.source != nullptr) {
        finding.text.excerpt = excerptOf(place);
    }
    finding.place = std::move(place);
    return finding;
}

Finding hintAt(SourcePlace place, const std::string& message, Mend mend = {}) {
    report::FaultText text;
    text.message = message;
    const std::string file = place.source->path;
    Finding finding = findingAt(std::move(place), file, std::move(text), std::move(mend));
    finding.kind = Finding::Kind::Hint;
    return finding;
}

/// Checks a source of the first edition.
class FirstEditionCheck {
public:
    FirstEditionCheck(SourcePtr source, const FrontEndOptions& options, bool withHints)
        : source_(std::move(source)), options_(options), withHints_(withHints) {
        options_.maxFaults = MOST_FAULTS;
    }

    Findings check() {
        try {
            const ParsedSource parsed = parseSource(source_, options_);
            for (const FoundFault& found : parsed.faults) {
                add(found.fault, found.place);
            }
            if (parsed.faults.empty()) {
                checkMeaning(parsed);
            }
        } catch (const Fault& fault) {
            add(fault, {});
        } catch (const StageFailure& failure) {
            addFailure(failure, {});
        }
        if (withHints_ && isAlmostMarked(*source_)) {
            findings_.push_back(hintAt(placeOfLine(source_, 1), ALMOST_MARKED_HINT));
        }
        return std::move(findings_);
    }

private:
    void checkMeaning(const ParsedSource& parsed) {
        try {
            generateText(parsed); // the analysis goes along with the writing
            addHints(parsed);
        } catch (const Fault& fault) {
            add(fault, placeOf(fault, parsed));
        } catch (const StageFailure& failure) {
            addFailure(failure, failure.fault ? placeOf(*failure.fault, parsed) : SourcePlace());
        }
    }

    /// Analysis notes the line, but only its node tells in which file.
    static SourcePlace placeOf(const Fault& fault, const ParsedSource& parsed) {
        const std::optional<SourcePlace> node = parsed.parser->places().ofAddress(fault.node);
        if (!node || fault.line <= 0) {
            return node.value_or(SourcePlace());
        }
        const auto line = static_cast<std::size_t>(fault.line);
        const bool beginsThere = LineIndex(node->source->text).lineAt(node->range.begin) == line;
        return beginsThere ? *node : placeOfLine(node->source, line);
    }

    void add(const Fault& fault, SourcePlace place) {
        report::FaultText text;
        text.code = fault.code;
        text.category = ErrorHandler::வகைச்சொல்(fault.category);
        text.message = descriptionOf(fault);
        text.remedy = பிழை_அகராதி.at(fault.code).தீர்வு;
        text.suggestion = fault.hint;
        const std::string file = fault.file.empty() ? source_->path : fault.file;
        if (place.source == nullptr && fault.line > 0) {
            const SourcePtr source = file == source_->path ? source_ : loadSource(file, options_);
            place = source == nullptr ? place : placeOfLine(source, static_cast<std::size_t>(fault.line));
        }
        findings_.push_back(findingAt(std::move(place), file, std::move(text), fault.mend));
    }

    void addFailure(const StageFailure& failure, SourcePlace place) {
        if (failure.fault) {
            add(*failure.fault, std::move(place));
            return;
        }
        report::FaultText text;
        text.message = failure.what();
        findings_.push_back(findingAt({}, source_->path, std::move(text), {}));
    }

    void addHints(const ParsedSource& parsed) {
        if (!withHints_) {
            return;
        }
        for (const Hint& hint : hintsOf(parsed.program, *parsed.parser)) {
            const bool isWholeLine = hint.place.range.begin == hint.place.range.end;
            findings_.push_back(
                hintAt(isWholeLine ? placeOfLine(hint.place.source, static_cast<std::size_t>(hint.line)) : hint.place,
                       hint.text, hint.mend));
        }
    }

    const SourcePtr source_;
    FrontEndOptions options_;
    const bool withHints_;
    Findings findings_;
};

Findings faultFindings(const SecondFaults& faults) {
    Findings findings;
    for (const SecondFault& fault : faults) {
        findings.push_back(findingAt(fault.place, fault.place.source->path, faultText(fault), fault.mend));
    }
    return findings;
}

/// Faults of the grammar and of the meaning, in the order of the files and of their texts.
SecondFaults inOrder(SecondFaults grammar, SecondFaults meaning, const SecondProgram& program) {
    SecondFaults all = std::move(grammar);
    std::move(meaning.begin(), meaning.end(), std::back_inserter(all));
    std::unordered_map<const SourceText*, std::size_t> files;
    for (const SecondFile& file : program.files) {
        files.emplace(file.source.get(), files.size());
    }
    const auto order = [&](const SecondFault& fault) {
        return std::make_pair(files[fault.place.source.get()], fault.place.range.begin);
    };
    std::stable_sort(all.begin(), all.end(),
                     [&](const SecondFault& a, const SecondFault& b) { return order(a) < order(b); });
    return all;
}

/// What is wrong with the grammar of one statement hides nothing of the others' meaning.
Findings checkSecondEdition(const SourcePtr& source, const FrontEndOptions& options, bool withHints) {
    const SecondProgram program = parseSecondEdition(source, options);
    if (!isReadThrough(program)) {
        return faultFindings(program.faults);
    }
    const SecondMeaning meaning = analyseSecondEdition(program);
    Findings findings = faultFindings(inOrder(program.faults, meaning.faults, program));
    if (withHints && findings.empty()) {
        for (const SecondHint& hint : meaning.hints) {
            findings.push_back(hintAt(hint.place, hint.text, hint.mend));
        }
    }
    return findings;
}

} // namespace

Findings checkSource(const SourcePtr& source, const FrontEndOptions& options, bool withHints) {
    SecondFaults editionFaults;
    const Edition edition = editionOf(source, editionFaults);
    if (!editionFaults.empty()) {
        return faultFindings(editionFaults);
    }
    return edition == Edition::Second ? checkSecondEdition(source, options, withHints)
                                      : FirstEditionCheck(source, options, withHints).check();
}

} // namespace pozhil::tools
