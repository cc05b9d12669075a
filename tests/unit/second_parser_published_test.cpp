/// Web applications that are published mean the same in both editions: the second makes the same headers, widgets, styles
/// and animations of them.

#include "base/source_text.h"
#include "front_end/front_end.h"
#include "front_end/second_edition.h"
#include "support/published_programs.h"
#include "support/second_source.h"
#include "support/tree_text.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;
using testing::IsEmpty;

namespace {

namespace fs = std::filesystem;

const fs::path ROOT = fs::u8path(POZHIL_SOURCE_DIRECTORY);

/// Programs that the second edition refuses, and why.
struct Refused {
    std::string place;
    std::string because;
    std::string fault;
};

const std::vector<Refused> REFUSED = {
    {"விட்ஜெட்டுகள்", "a percentage where a number belongs, which the first edition refuses later", "637 5 '65%'"},
    {"விருந்தினர்_ஏடு", "an escape that the second edition doesn't have", "513 56 '\\x'"},
};

bool isApplication(const PublishedProgram& program) {
    return program.text.find("வலைதளம்") != std::string::npos;
}

/// Whether a program is refused as it is told above.
bool isRefused(const PublishedProgram& program, const std::vector<std::string>& faults) {
    return std::any_of(REFUSED.begin(), REFUSED.end(), [&](const Refused& row) {
        return program.place.substr(0, program.place.find(':')) == row.place && faults == std::vector{row.fault};
    });
}

/// Assignments have a class of their own in each edition.
std::string withOneAssignment(std::string text) {
    const std::string first = "(Assignment ";
    for (std::size_t at = text.find(first); at != std::string::npos; at = text.find(first, at)) {
        text.replace(at, first.size(), "(Assign ");
    }
    return text;
}

/// The applications of a tree in written form, without what they define: that is for the statements' own tests.
std::string applicationText(const Program& program) {
    std::string text;
    for (const StatementPtr& statement : program.statements) {
        if (const auto* app = nodeCast<WebAppNode>(statement.get())) {
            text += app->name + "\n";
            for (const Statement* part : {app->header.get(), app->uiBody.get(), app->databaseManager.get()}) {
                text += treeText(part) + "\n";
            }
        }
    }
    return withOneAssignment(text);
}

/// What is around the first difference.
std::string difference(const std::string& first, const std::string& second) {
    constexpr std::size_t BEFORE = 60;
    constexpr std::size_t SHOWN = 300;
    const auto begin = static_cast<std::size_t>(
        std::mismatch(first.begin(), first.end(), second.begin(), second.end()).first - first.begin());
    const std::size_t shown = begin - std::min(begin, BEFORE);
    return "\n1: " + first.substr(shown, SHOWN) + "\n2: " + second.substr(shown, SHOWN);
}

/// Whether it says itself that it is of the second edition, so that there is nothing to compare it with.
bool isOfSecondEdition(const PublishedProgram& published) {
    const std::string marker = "ஃ பொழில் 2\n";
    return published.text.compare(0, marker.size(), marker) == 0;
}

/// How many programs were compared, and where they differ.
struct Comparison {
    int programs = 0;
    std::vector<std::string> differences;
};

Comparison compared(const fs::path& directory) {
    Comparison found;
    for (const PublishedProgram& published : publishedPrograms(directory)) {
        if (!isApplication(published) || isOfSecondEdition(published)) {
            continue;
        }
        std::string first;
        try {
            first = applicationText(parseSource(makeSource("நிரல்.பொழில்", published.text), {}).program);
        } catch (const Fault&) {
            continue; // which shows what is refused
        }
        ++found.programs;
        const SecondProgram second = parseSecondEdition(makeSource("நிரல்.பொழில்", "ஃ பொழில் 2\n" + published.text), {});
        const std::vector<std::string> faults = faultTexts(second.faults);
        for (const std::string& fault : isRefused(published, faults) ? std::vector<std::string>() : faults) {
            found.differences.push_back(published.place + " " + fault);
        }
        const std::string text = applicationText(second.files.back().tree);
        if (second.faults.empty() && text != first) {
            found.differences.push_back(published.place + difference(first, text));
        }
    }
    return found;
}

TEST(PublishedApplications, OfTheGuideAreTheSameInBothEditions) {
    const Comparison found = compared(ROOT / fs::u8path("docs/வலை"));
    EXPECT_THAT(found.differences, IsEmpty());
    EXPECT_GT(found.programs, 40);
}

TEST(PublishedApplications, OfTheExamplesAreTheSameInBothEditions) {
    const Comparison found = compared(ROOT / fs::u8path("எடுத்துக்காட்டுகள்"));
    EXPECT_THAT(found.differences, IsEmpty());
    EXPECT_GT(found.programs, 8);
}

} // namespace
