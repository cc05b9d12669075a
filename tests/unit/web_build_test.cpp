#include "driver/web/web_build.h"

#include "driver/server/web_state.h"
#include "driver/web/web_directory.h"
#include "support/working_folder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gmock/gmock.h>

using namespace pozhil;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;
namespace fs = std::filesystem;

namespace {

const std::string SOURCE_TEXT = "ஃ பொழில் 2\nமுதல்()\nஇரண்டு()\n";
const std::string OUTPUT_TEXT = "first\nsecond\nthird\n";
const std::string OUR_WORDS = "இது பொழிலின் தவறு, உன் நிரலின் தவறு அல்ல";

std::string contentOf(const fs::path& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<std::string> linesOf(const fs::path& path) {
    std::vector<std::string> lines;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        lines.push_back(line);
    }
    return lines;
}

/// What is built of a source of three lines: a line for each.
SecondTranslation translation() {
    SecondTranslation made;
    made.sources = {makeSource("அ.பொழில்", SOURCE_TEXT)};
    made.output.text = OUTPUT_TEXT;
    for (const char* line : {"ஃ", "முதல்", "இரண்டு"}) {
        const auto at = static_cast<std::uint32_t>(SOURCE_TEXT.find(line));
        made.output.origins.push_back({0, {at, at + 1}});
    }
    made.application = Application();
    made.application->title = "என் தளம்";
    return made;
}

/// An installation, and an em++ that is a shell script. Every test runs in a process of its own when ctest starts it;
/// alone, each one sets what it reads.
class WebBuilds : public test::WorkingFolder {
protected:
    void SetUp() override {
        WorkingFolder::SetUp();
        for (const char* name : {"EMCC_CFLAGS", "POZHIL_EMFLAGS", "POZHIL_SHOW_CXX", "POZHIL_HINTS"}) {
            unsetenv(name);
        }
        setenv("PATH", ((folder() / "tools").string() + ":/usr/bin:/bin").c_str(), 1);
        for (const char* object : {"error_handler_web.o", "nanovg_web.o", "libpozhil_engine_web.a"}) {
            write("inst/திரட்டு/" + std::string(object), "");
        }
        write("inst/உள்ளடக்கம்/template.html", "<title>{{{ இணைய_தலைப்பு }}}</title>{{{ SCRIPT }}}</body>");
        emscripten("echo built > \"${out}\"");
        outputDirectory_ = webDirectory();
        g_appVersion = 1;
        tellPagesOfSuccess();
    }

    void TearDown() override {
        g_appVersion = 1;
        g_web_html.store({});
        tellPagesOfSuccess();
        WorkingFolder::TearDown();
    }

    /// From now on em++ notes its arguments and does what \p behaviour says; $out is what it is to make, $1 its source.
    static void emscripten(const std::string& behaviour) {
        write("tools/em++", "#!/bin/sh\nprintf '%s\\n' \"$@\" > calls\nfor a in \"$@\"; do [ \"$p\" = -o ] && out=$a; "
                            "p=$a; done\n" +
                                behaviour + "\n");
        fs::permissions("tools/em++", fs::perms::owner_all);
    }

    /// Builds a text, what is said meanwhile kept.
    bool build(const WebText& text) {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        WebBuild webBuild(folder() / "inst", folder() / "work" / "அ.பொழில்", outputDirectory_);
        const bool isBuilt = webBuild.run(text);
        output_ = testing::internal::GetCapturedStdout();
        errors_ = testing::internal::GetCapturedStderr();
        return isBuilt;
    }

    /// Fails to build the text of the second edition, and returns what was said on standard error.
    std::string failure(const std::string& behaviour) {
        emscripten(behaviour);
        EXPECT_FALSE(build(webTextOf(translation_)));
        EXPECT_EQ(output_, "");
        EXPECT_EQ(g_appVersion, 1);
        return errors_;
    }

    std::string inInstallation(const std::string& name) const { return (folder() / "inst" / name).string(); }
    fs::path textFile() const { return folder() / "work" / "அ.பொழில்" / "வலை_வெளியீடு.cpp"; }

    const SecondTranslation translation_ = translation();
    fs::path outputDirectory_;
    std::string output_;
    std::string errors_;
};

TEST_F(WebBuilds, TextOfTheSecondEditionIsLinkedWithItsEngine) {
    EXPECT_TRUE(build(webTextOf(translation_)));
    const std::vector<std::string> call = linesOf("calls");
    ASSERT_GE(call.size(), 5U);
    EXPECT_THAT(std::vector<std::string>(call.begin(), call.begin() + 5),
                ElementsAre(textFile().string(), inInstallation("திரட்டு/error_handler_web.o"),
                            inInstallation("திரட்டு/nanovg_web.o"), inInstallation("திரட்டு/libpozhil_engine_web.a"),
                            "-I" + inInstallation("உள்ளடக்கம்")));
    EXPECT_THAT(call.back(), EndsWith("/வெளியீடு/index.js"));
    EXPECT_EQ(contentOf(textFile()), OUTPUT_TEXT);
    EXPECT_EQ(output_ + errors_, "");
}

TEST_F(WebBuilds, PageOfTheSecondEditionIsServedAndItsVersionTold) {
    tellPages({"பொழி-551", "அ.பொழில்", 2, "பழைய பிழை"});
    EXPECT_TRUE(build(webTextOf(translation_)));
    EXPECT_EQ(g_appVersion, 2);
    EXPECT_EQ(answerToPage(), "{}");
    EXPECT_THAT(g_web_html.load()->text, HasSubstr("<title>என் தளம்</title>"));
    EXPECT_EQ(contentOf("வெளியீடு/index.js"), "built\n");
}

TEST_F(WebBuilds, ResultsAreServedFromWhereTheyGo) {
    write("வெளியீடு/index.js", "of another application");
    outputDirectory_ = webDirectoryOf("வேறு/../அ.பொழில்");
    EXPECT_TRUE(build(webTextOf(translation_)));
    EXPECT_EQ(contentOf("வெளியீடு/அ.பொழில்/index.js"), "built\n");
    EXPECT_EQ(contentOf("வெளியீடு/index.js"), "of another application");
    EXPECT_EQ(g_web_html.load()->results, "வெளியீடு/அ.பொழில்");
}

TEST_F(WebBuilds, ArgumentsOfTheLinkingStandBeforeThoseOfTheUser) {
    setenv("POZHIL_EMFLAGS", "-O1", 1);
    write("assets/a.txt", "");
    WebText text = webTextOf(translation_);
    text.linking.arguments = {"-s", "SOMETHING=1"};
    EXPECT_TRUE(build(text));
    const std::vector<std::string> call = linesOf("calls");
    ASSERT_GE(call.size(), 7U);
    EXPECT_THAT(std::vector<std::string>(call.end() - 7, call.end()),
                ElementsAre("-s", "SOMETHING=1", "--preload-file", "assets", "-o", EndsWith("index.js"), "-O1"));
}

TEST_F(WebBuilds, TextOfTheFirstEditionIsLinkedWithoutTheEngine) {
    fs::remove(fs::u8path("inst/திரட்டு/libpozhil_engine_web.a"));
    const ParsedSource source = parseSource(makeSource("அ.பொழில்", "அச்சிடு(1)\n"), {});
    const OutputText output = generateText(source);
    EXPECT_TRUE(build(webTextOf(source, output)));
    EXPECT_THAT(linesOf("calls"), Not(Contains(HasSubstr("engine"))));
    EXPECT_EQ(contentOf(textFile()), output.text);
}

TEST_F(WebBuilds, WhatEmscriptenRefusesIsOurFaultWithThePlaceOfTheSource) {
    const std::string errors = failure("echo \"$1:3:1: error: strange words\" >&2; exit 1");
    EXPECT_THAT(errors, HasSubstr(OUR_WORDS + ": உருவான C++ உரையை em++ ஏற்கவில்லை."));
    EXPECT_THAT(errors, HasSubstr("அ.பொழில்"));
    EXPECT_THAT(errors, HasSubstr("வரி 3"));
    EXPECT_THAT(errors, HasSubstr("இரண்டு()"));
    EXPECT_THAT(errors, HasSubstr(textFile().string()));
    EXPECT_THAT(errors, Not(HasSubstr("strange words")));
    const std::string told = answerToPage();
    EXPECT_THAT(told, HasSubstr(R"("file": "அ.பொழில்")"));
    EXPECT_THAT(told, HasSubstr(R"("line": 3)"));
    EXPECT_THAT(told, HasSubstr(OUR_WORDS));
}

TEST_F(WebBuilds, LineThatNoStatementStandsForHasNoPlace) {
    SecondTranslation made = translation();
    made.output.origins.front() = {};
    for (const char* line : {"1", "2"}) {
        const std::string words = std::string("a.cpp:") + line + ":1: error: x\n";
        testing::internal::CaptureStderr();
        const WebFailure failure = webTextOf(made).reportFailure({"a.cpp", {1, "", words}, {}});
        EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr(OUR_WORDS));
        EXPECT_EQ(failure.fault.line, line == std::string("1") ? 0 : 2);
        EXPECT_EQ(failure.fault.file, line == std::string("1") ? "" : "அ.பொழில்");
    }
    // One that has a place tells more.
    testing::internal::CaptureStderr();
    const std::string both = "a.cpp:1:1: error: x\na.cpp:3:1: error: x\n";
    EXPECT_EQ(webTextOf(made).reportFailure({"a.cpp", {1, "", both}, {}}).fault.line, 3);
    testing::internal::GetCapturedStderr();
}

TEST_F(WebBuilds, RefusalWithoutAPlaceIsOurFaultAsWell) {
    const std::string errors = failure("echo 'wasm-ld: error: undefined symbol: x' >&2; exit 1");
    EXPECT_THAT(errors, HasSubstr(OUR_WORDS));
    EXPECT_THAT(answerToPage(), HasSubstr(R"("file": "")"));
}

TEST_F(WebBuilds, WordsOfEmscriptenAreShownOnDemand) {
    setenv("POZHIL_SHOW_CXX", "1", 1);
    EXPECT_THAT(failure("echo 'strange words' >&2; exit 1"), HasSubstr("strange words"));
}

TEST_F(WebBuilds, WhatKeepsEmscriptenFromWorkingIsNotOurFault) {
    const std::string full =
        failure("echo 'LLVM ERROR: IO failure on output stream: No space left on device' >&2; exit 1");
    EXPECT_THAT(full, HasSubstr("உன் நிரலை em++-ஆல் தொகுக்க முடியவில்லை!"));
    EXPECT_THAT(full, HasSubstr("வட்டில் இடம் இல்லை."));
    EXPECT_THAT(answerToPage(), HasSubstr("முனையத்தில்"));
    for (const char* end : {"kill -9 $$", "echo \"em++: error: 'clang' failed (received SIGKILL (-9))\" >&2; exit 1"}) {
        const std::string ended = failure(end);
        EXPECT_THAT(ended, HasSubstr("em++ தன் வேலையை முடிக்கும் முன் நிறுத்தப்பட்டது")) << end;
        EXPECT_THAT(full + ended, Not(HasSubstr(OUR_WORDS)));
        EXPECT_THAT(full + ended, Not(HasSubstr("g++")));
    }
}

TEST_F(WebBuilds, ArgumentsOfTheUserThatEmscriptenRefusesAreTold) {
    const std::string refusesThem = "case \"$*\" in *-fno-such*) exit 1;; esac";
    setenv("POZHIL_EMFLAGS", "-fno-such", 1);
    const std::string errors = failure(refusesThem);
    EXPECT_THAT(errors, HasSubstr("POZHIL_EMFLAGS-இல் உள்ள தெரிவுகளோடு em++ ஏற்காத உரையை"));
    EXPECT_THAT(errors, Not(HasSubstr(OUR_WORDS)));
    setenv("POZHIL_EMFLAGS", "-O1", 1);
    EXPECT_THAT(failure("exit 1"), HasSubstr(OUR_WORDS));
}

TEST_F(WebBuilds, MissingEngineIsTold) {
    fs::remove(fs::u8path("inst/திரட்டு/libpozhil_engine_web.a"));
    const std::string errors = failure("exit 1");
    EXPECT_THAT(errors, HasSubstr("libpozhil_engine_web.a' கிடைக்கவில்லை!"));
    EXPECT_THAT(errors, Not(HasSubstr(OUR_WORDS)));
    EXPECT_THAT(answerToPage(), HasSubstr("முனையத்தில்"));
}

TEST_F(WebBuilds, FailuresOfTheFirstEditionAreToldAsEver) {
    const ParsedSource source = parseSource(makeSource("அ.பொழில்", "அச்சிடு(1)\n"), {});
    const OutputText output = generateText(source);
    emscripten("echo \"$1:1:1: error: strange words\" >&2; exit 1");
    EXPECT_FALSE(build(webTextOf(source, output)));
    EXPECT_THAT(output_, HasSubstr("🚨 (பொழி-404)"));
    EXPECT_THAT(errors_, Not(HasSubstr(OUR_WORDS)));
    EXPECT_THAT(answerToPage(), HasSubstr(R"("code": "பொழி-404")"));
}

/// Whoever publishes is told by the exit status whom it was the fault of.
TEST_F(WebBuilds, FailureTellsWhomToBlame) {
    const WebText text = webTextOf(translation_);
    testing::internal::CaptureStderr();
    EXPECT_FALSE(text.reportFailure({"a.cpp", {1, "", "a.cpp:2:1: error: x"}, {}}).isOfMachine);
    EXPECT_TRUE(text.reportFailure({"a.cpp", {1, "", "out of memory"}, {}}).isOfMachine);
    EXPECT_TRUE(text.reportFailure({"a.cpp", {1, "", ""}, {}, true}).isOfMachine);
    setenv("POZHIL_EMFLAGS", "-x", 1);
    EXPECT_TRUE(text.reportFailure({"a.cpp", {1, "", ""}, {{"true"}, {}}}).isOfMachine);
    testing::internal::GetCapturedStderr();
}

/// Nobody is sent to look at a text that is gone.
TEST_F(WebBuilds, RefusedTextIsNamedIfItIsKept) {
    const WebText text = webTextOf(translation_);
    for (const bool isKept : {true, false}) {
        testing::internal::CaptureStderr();
        text.reportFailure({"a.cpp", {1, "", "a.cpp:3:1: error: x"}, {}, false, isKept});
        const std::string told = testing::internal::GetCapturedStderr();
        EXPECT_THAT(told, HasSubstr("இரண்டு()"));
        EXPECT_EQ(told.find("a.cpp") != std::string::npos, isKept);
        EXPECT_EQ(told.find("அந்த C++ உரையையும்") != std::string::npos, isKept);
    }
}

TEST_F(WebBuilds, HintsOfTheSecondEditionAreThoseOfTheTranslation) {
    SecondTranslation made = translation();
    made.hints.push_back({{made.sources.front(), {0, 1}}, "இது குறிப்பு."});
    testing::internal::CaptureStderr();
    webTextOf(made).reportHints();
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("அ.பொழில் வரி 1: இது குறிப்பு."));
}

} // namespace
