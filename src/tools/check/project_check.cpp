#include "tools/check/project_check.h"

#include "driver/settings.h"
#include "front_end/second_imports.h"
#include "tools/check/source_check.h"
#include "tools/test/test_files.h"

#include <set>
#include <string>
#include <tuple>
#include <utility>

namespace pozhil::tools {
namespace {

/// A source that was checked as a program.
struct Checked {
    /// SecondImports::keyOf of the source, and of all that was read for it.
    std::string key;
    std::set<std::string> read;
    Findings findings;
    /// Whether it turned out to be a part of another.
    bool isPart = false;
};

class ProjectCheck {
public:
    ProjectCheck(SeenSources& sources, FrontEndOptions options) : sources_(sources), options_(std::move(options)) {
        options_.loader = &sources_;
    }

    Outcome check(const FoundSources& found) {
        Outcome outcome;
        outcome.unread = found.unread;
        for (const std::string& path : found.paths) {
            if (read_.count(SecondImports::keyOf(path)) == 0 && !checkProgram(path)) {
                outcome.unread.push_back({path, "இந்தக் கோப்பைப் படிக்க முடியவில்லை"});
            }
        }
        outcome.checked = read_.size();
        for (Checked& program : programs_) {
            if (!program.isPart) {
                takeFindings(program, outcome.findings);
            }
        }
        return outcome;
    }

private:
    /// \return whether it could be read
    bool checkProgram(const std::string& path) {
        const SourcePtr source = sources_.load(path);
        if (source == nullptr) {
            return false;
        }
        options_.isTest = isTestFile(path);
        Checked program{SecondImports::keyOf(path), {}, checkSource(source, options_, settings::showsHints())};
        program.read = sources_.takeRead();
        for (Checked& earlier : programs_) {
            earlier.isPart = earlier.isPart || program.read.count(earlier.key) != 0;
        }
        read_.insert(program.read.begin(), program.read.end());
        programs_.push_back(std::move(program));
        return true;
    }

    void takeFindings(Checked& program, Findings& findings) {
        for (Finding& finding : program.findings) {
            const std::string file = SecondImports::keyOf(finding.text.excerpt.file);
            const auto identity = std::make_tuple(file, finding.place.range.begin, finding.place.range.end,
                                                  finding.text.code, finding.text.message);
            if (told_.insert(identity).second) {
                findings.push_back(std::move(finding));
            }
        }
    }

    SeenSources& sources_;
    FrontEndOptions options_;
    std::vector<Checked> programs_;
    std::set<std::string> read_;
    std::set<std::tuple<std::string, std::uint32_t, std::uint32_t, std::string, std::string>> told_;
};

} // namespace

Outcome checkSources(const FoundSources& found, SeenSources& sources, FrontEndOptions options) {
    return ProjectCheck(sources, std::move(options)).check(found);
}

} // namespace pozhil::tools
