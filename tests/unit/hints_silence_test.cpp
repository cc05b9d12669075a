/// Programs that are meant as they stand: those of the guides, the examples and the modules bring no hint.

#include "analysis/hints.h"
#include "diagnostics/fault.h"
#include "driver/translation.h"
#include "front_end/front_end.h"
#include "support/published_programs.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;
using pozhil::test::PublishedProgram;
using pozhil::test::publishedPrograms;
using testing::IsEmpty;

namespace {

namespace fs = std::filesystem;

const fs::path ROOT = fs::u8path(POZHIL_SOURCE_DIRECTORY);

/// The places of the samples that bring hints, and of those that are refused.
struct Outcome {
    std::vector<std::string> hinted;
    std::vector<std::string> refused;
};

/// Hints are of the first edition.
bool isOfSecondEdition(const PublishedProgram& sample) {
    return sample.text.rfind("ஃ பொழில் 2\n", 0) == 0;
}

Outcome outcomeOf(const std::vector<PublishedProgram>& samples) {
    const FileLoader files;
    Outcome outcome;
    for (const PublishedProgram& sample : samples) {
        if (isOfSecondEdition(sample)) {
            continue;
        }
        MemoryLoader loader(&files);
        for (const auto& [name, text] : sample.files) {
            loader.set(name, text);
        }
        FrontEndOptions options;
        options.loader = &loader;
        options.moduleDirectories = {(ROOT / fs::u8path("தொகுப்புகள்")).u8string(), ROOT.u8string()};
        try {
            const ParsedSource parsed = parseSource(makeSource("நிரல்.பொழில்", sample.text), options);
            generateText(parsed);
            if (!hintsOf(parsed.program, *parsed.parser).empty()) {
                outcome.hinted.push_back(sample.place);
            }
        } catch (const Fault&) {
            outcome.refused.push_back(sample.place);
        } catch (const StageFailure&) {
            outcome.refused.push_back(sample.place);
        }
    }
    return outcome;
}

TEST(Silence, OfExamples) {
    const std::vector<PublishedProgram> samples = publishedPrograms(ROOT / fs::u8path("எடுத்துக்காட்டுகள்"));
    EXPECT_GT(samples.size(), 20U);
    const Outcome outcome = outcomeOf(samples);
    EXPECT_THAT(outcome.hinted, IsEmpty());
    EXPECT_THAT(outcome.refused, IsEmpty());
}

TEST(Silence, OfModules) {
    const std::vector<PublishedProgram> samples = publishedPrograms(ROOT / fs::u8path("தொகுப்புகள்"));
    EXPECT_GT(samples.size(), 3U);
    const Outcome outcome = outcomeOf(samples);
    EXPECT_THAT(outcome.hinted, IsEmpty());
    EXPECT_THAT(outcome.refused, IsEmpty());
}

/// The pages of surprises and of errors show what isn't meant, and the one on values what an unset variable is.
TEST(Silence, OfGuides) {
    std::vector<PublishedProgram> samples = publishedPrograms(ROOT / "docs");
    EXPECT_GT(samples.size(), 150U);
    const auto showsTrouble = [](const PublishedProgram& sample) {
        const auto isOf = [&](const char* page) { return sample.place.rfind(page, 0) == 0; };
        return isOf("01அ_பத்துச்_சுவர்கள்:") || isOf("14_வியப்புகள்:") || isOf("பிழைகள்:") ||
               sample.text.find("இல்லாதது") != std::string::npos;
    };
    samples.erase(std::remove_if(samples.begin(), samples.end(), showsTrouble), samples.end());
    const Outcome outcome = outcomeOf(samples);
    EXPECT_GT(samples.size() - outcome.refused.size(), 50U);
    EXPECT_THAT(outcome.hinted, IsEmpty());
}

} // namespace
