#include "driver/refusal_report.h"

#include "diagnostics/refusals/refusals.h"
#include "diagnostics/refusals/toolchain_errors.h"
#include "driver/console/explanation.h"
#include "driver/output_places.h"

#include <algorithm>
#include <cstdint>
#include <iostream>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace pozhil {
namespace {

constexpr std::size_t MOST_EXPLAINED = 5;

/// A line of a source that was refused, and the row that knows most of what was said of it.
struct RefusedLine {
    std::optional<StatementPlace> statement;
    /// The line of the output text that was spoken of first.
    std::size_t outputLine = 0;
    Refusal refusal;
    const RefusalRow* row = nullptr;
};

std::string_view firstLineOf(std::string_view text) {
    return text.substr(0, text.find('\n'));
}

/// Sorts what a tool said of the output text by the lines of the source.
class RefusedLines {
public:
    RefusedLines(const ParsedSource& source, const OutputText& output) : places_(source, output) {
        for (const auto& structure : source.parser->structs()) {
            if (const auto place = source.parser->places().of(*structure.second)) {
                structures_.push_back(*place);
            }
        }
    }

    /// What is said after a line whose row misleads counts for nothing.
    void add(const ToolchainError& error) {
        if (isMisled_ && error.line != misledAt_) {
            return;
        }
        RefusedLine found = locate(error);
        const auto key = found.statement ? std::pair(found.statement->place.source.get(), found.statement->line)
                                         : std::pair<const SourceText*, std::size_t>();
        const auto [known, isNew] = indices_.emplace(key, lines_.size());
        if (isNew) {
            lines_.push_back(std::move(found));
        }
        RefusedLine& line = lines_[known->second];
        if (line.row == nullptr) {
            recognise(line, error);
        }
    }

    /// In the order in which they were refused. What has neither a place nor a row tells nothing beside the others.
    std::vector<RefusedLine> take() {
        const auto tellsNothing = [](const RefusedLine& line) { return !line.statement && line.row == nullptr; };
        if (!std::all_of(lines_.begin(), lines_.end(), tellsNothing)) {
            lines_.erase(std::remove_if(lines_.begin(), lines_.end(), tellsNothing), lines_.end());
        }
        return std::move(lines_);
    }

private:
    RefusedLine locate(const ToolchainError& error) {
        RefusedLine found;
        found.outputLine = error.line;
        found.statement = places_.find(error.line);
        return found;
    }

    void recognise(RefusedLine& line, const ToolchainError& error) {
        Refusal& refusal = line.refusal;
        refusal.message = plainMessage(error.message);
        if (line.statement) {
            const SourcePlace& place = line.statement->place;
            const std::string_view text = place.source->text;
            refusal.statement = firstLineOf(text.substr(place.range.begin));
            refusal.isInStructure = isInStructure(place);
        }
        line.row = findRefusal(refusal);
        if (line.row != nullptr) {
            isMisled_ = line.row->misleads;
            misledAt_ = error.line;
        }
    }

    bool isInStructure(const SourcePlace& place) const {
        return std::any_of(structures_.begin(), structures_.end(), [&](const SourcePlace& structure) {
            return structure.source == place.source && structure.range.begin < place.range.begin &&
                   place.range.end <= structure.range.end;
        });
    }

    OutputPlaces places_;
    std::vector<SourcePlace> structures_;
    std::vector<RefusedLine> lines_;
    std::map<std::pair<const SourceText*, std::size_t>, std::size_t> indices_;
    bool isMisled_ = false;
    std::size_t misledAt_ = 0;
};

ShownPlace placeOf(const RefusedLine& line) {
    return line.statement ? shownPlace(*line.statement) : ShownPlace{};
}

/// A refusal that no row knows: the words of the target compiler are all there is to go by.
Explanation unknownRefusal(const RefusedLine& line, const std::string& file) {
    std::string text = "உருவான C++ உரை: '" + file + "'";
    if (line.outputLine > 0) {
        text += ", வரி " + std::to_string(line.outputLine);
    }
    return {placeOf(line),
            {line.statement ? "பொழில் ஏற்கும் இந்தக் கூற்றை C++ தொகுப்பி மறுக்கிறது." : "உருவான உரையை C++ தொகுப்பி மறுக்கிறது.",
             text},
            line.statement ? "கூற்றைச் சின்னச் சின்ன வரிகளா பிரிச்சு, ஒவ்வொரு விடையையும் ஒரு மாறியில வச்சுப் பாரு மச்சி!" : ""};
}

void explain(const RefusedLine& line, const std::string& file) {
    if (line.row == nullptr) {
        printExplanation(unknownRefusal(line, file));
        return;
    }
    printExplanation({placeOf(line),
                      {fillRefusalText(line.row->cause, line.refusal)},
                      fillRefusalText(line.row->remedy, line.refusal)});
}

} // namespace

ShownPlace reportRefusals(const ParsedSource& source, const OutputText& output, const std::string& file,
                          std::string_view written) {
    if (written.empty()) {
        return {};
    }
    RefusedLines refused(source, output);
    for (const ToolchainError& error : readToolchainErrors(written, file)) {
        refused.add(error);
    }
    const std::vector<RefusedLine> lines = refused.take();
    if (lines.empty()) {
        explain({}, file);
    }
    for (std::size_t index = 0; index < std::min(lines.size(), MOST_EXPLAINED); ++index) {
        explain(lines[index], file);
    }
    if (lines.size() > MOST_EXPLAINED) {
        std::cerr << "  … இன்னும் " << lines.size() - MOST_EXPLAINED << " வரிகள் மறுக்கப்பட்டன." << std::endl;
    }
    return lines.empty() ? ShownPlace() : placeOf(lines.front());
}

} // namespace pozhil
