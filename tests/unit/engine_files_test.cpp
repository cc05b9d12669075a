#include "engine/running_faults.h"
#include "engine_support.h"

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace pozhil::engine;
using testing::HasSubstr;

constexpr Place HERE = "1:0-1";

class Files : public testing::Test {
protected:
    Files() {
        std::filesystem::remove_all(folder_);
        std::filesystem::create_directory(folder_);
    }
    ~Files() override { std::filesystem::remove_all(folder_); }

    Value path(const std::string& name) const { return makeText((folder_ / name).string()); }

private:
    std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() / ("engine_files_test_" + std::to_string(getpid()));
};

TEST_F(Files, AreWrittenReadAndRemoved) {
    const Value file = path("குறிப்பு.txt");
    EXPECT_FALSE(fileExists(file, HERE));
    writeFile(file, text("பழையது"), HERE);
    writeFile(file, text("முதல் வரி\n"), HERE);
    appendFile(file, 42, HERE);
    appendFile(file, list({1, text("அ")}), HERE);
    EXPECT_TRUE(fileExists(file, HERE));
    EXPECT_EQ(form(readFile(file, HERE)), "முதல் வரி\n42[1, அ]");
    EXPECT_TRUE(removeFile(file, HERE));
    EXPECT_FALSE(removeFile(file, HERE));
    EXPECT_FALSE(fileExists(file, HERE));
}

TEST_F(Files, AppendingMakesThem) {
    appendFile(path("அ"), text("x"), HERE);
    EXPECT_EQ(form(readFile(path("அ"), HERE)), "x");
}

TEST_F(Files, HoldAsMuchAsTheyLike) {
    for (const std::size_t size : {0UL, 1UL, 65535UL, 65536UL, 65537UL, 300000UL}) {
        const std::string content(size, 'x');
        writeFile(path("பெரியது"), makeText(content), HERE);
        EXPECT_EQ(form(readFile(path("பெரியது"), HERE)), content);
    }
}

TEST_F(Files, AreReadInNormalForm) {
    writeFile(path("அ"), text("x"), HERE);
    std::FILE* const file = std::fopen(form(path("அ")).c_str(), "w");
    ASSERT_NE(file, nullptr);
    std::fputs("க\u0BC6\u0BBE", file);
    std::fclose(file);
    EXPECT_TRUE(equal(readFile(path("அ"), HERE), text("கொ")));
}

TEST_F(Files, ThatAreMissingAreTold) {
    EXPECT_EQ(faultOf([&] { readFile(path("இல்லை"), HERE); }), FILE_NOT_OPENED);
    EXPECT_THAT(messageOf([&] { readFile(path("இல்லை"), HERE); }), HasSubstr("அப்படி ஒரு கோப்போ அடைவோ இல்லை"));
    EXPECT_THAT(messageOf([&] { readFile(path("இல்லை"), HERE); }), HasSubstr("இல்லை'"));
    EXPECT_EQ(faultOf([&] { writeFile(path("இல்லை/அ"), 1, HERE); }), FILE_NOT_WRITTEN);
    EXPECT_EQ(faultOf([&] { appendFile(path("இல்லை/அ"), 1, HERE); }), FILE_NOT_WRITTEN);
}

TEST_F(Files, FoldersAreNoFiles) {
    EXPECT_EQ(faultOf([&] { readFile(path(""), HERE); }), FILE_NOT_READ);
    EXPECT_EQ(faultOf([&] { writeFile(path(""), 1, HERE); }), FILE_NOT_WRITTEN);
    EXPECT_THAT(messageOf([&] { readFile(path(""), HERE); }), HasSubstr("அது ஓர் அடைவு"));
}

TEST_F(Files, FullDisksAreTold) {
    EXPECT_EQ(faultOf([] { writeFile(text("/dev/full"), text("x"), HERE); }), FILE_NOT_WRITTEN);
    EXPECT_THAT(messageOf([] { writeFile(text("/dev/full"), text("x"), HERE); }), HasSubstr("இடம் தீர்ந்துவிட்டது"));
    EXPECT_THAT(messageOf([] { writeFile(text("/dev/full"), makeText(std::string(1U << 20U, 'x')), HERE); }),
                HasSubstr("இடம் தீர்ந்துவிட்டது"));
}

TEST_F(Files, PathsThatCannotBeAreTold) {
    for (const char* const bad : {"", "a//b", "*.txt", "a?b"}) {
        const Value file = makeText(bad);
        EXPECT_EQ(faultOf([&] { readFile(file, HERE); }), BAD_PATH) << bad;
        EXPECT_EQ(faultOf([&] { writeFile(file, 1, HERE); }), BAD_PATH) << bad;
        EXPECT_EQ(faultOf([&] { appendFile(file, 1, HERE); }), BAD_PATH) << bad;
        EXPECT_FALSE(fileExists(file, HERE)) << bad;
    }
    const Value withZero = makeText(std::string("a\0b", 3));
    EXPECT_EQ(faultOf([&] { writeFile(withZero, 1, HERE); }), BAD_PATH);
    writeFile(path("a"), 1, HERE);
    EXPECT_FALSE(removeFile(makeText(form(path("a")) + std::string("\0b", 2)), HERE));
    EXPECT_FALSE(fileExists(makeText(form(path("a")) + std::string("\0b", 2)), HERE));
    EXPECT_TRUE(fileExists(path("a"), HERE));
    EXPECT_EQ(faultOf([] { readFile(5, HERE); }), PATH_NOT_TEXT);
    EXPECT_EQ(faultOf([] { fileExists(list({}), HERE); }), PATH_NOT_TEXT);
    EXPECT_EQ(faultOf([] { removeFile(Value(), HERE); }), PATH_NOT_TEXT);
}

} // namespace
