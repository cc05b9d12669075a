#include "base/source_text.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using pozhil::canReadSource;
using pozhil::readSourceText;

/// A folder of the test's own, with a blank and Tamil letters in its path.
class SourceText : public testing::Test {
protected:
    void SetUp() override {
        std::string pattern = testing::TempDir() + "மூல உரை XXXXXX";
        folder_ = mkdtemp(pattern.data());
        fs::permissions(folder_, fs::perms(0755)); // for the ordinary user below
    }

    void TearDown() override { fs::remove_all(folder_); }

    std::string path(const std::string& name) const { return (folder_ / fs::u8path(name)).u8string(); }

    std::string write(const std::string& contents, const std::string& name = "நிரல்.பொழில்") const {
        std::ofstream(fs::u8path(path(name)), std::ios::binary) << contents;
        return path(name);
    }

    std::optional<std::string> textOf(const std::string& contents) const { return readSourceText(write(contents)); }

private:
    fs::path folder_;
};

TEST_F(SourceText, IsTheContentOfTheFile) {
    for (const std::string& contents :
         {""s, "\n"s, "அ = 1\n"s, "அ\0ஆ\n"s, "\xFF\x80\xE0"s, std::string(1'000'000, 'x')}) {
        EXPECT_EQ(textOf(contents), contents);
        EXPECT_TRUE(canReadSource(write(contents)));
    }
}

TEST_F(SourceText, HasNoCarriageReturns) {
    EXPECT_EQ(textOf("அ = 1\r\nஆ = 2\r\n"), "அ = 1\nஆ = 2\n");
    EXPECT_EQ(textOf("\r\n\r\n"), "\n\n");
    EXPECT_EQ(textOf("\"அ\rஆ\"\r\r\n\r"), "\"அஆ\"\n");
    EXPECT_EQ(textOf("\r"), "");
}

TEST_F(SourceText, HasNoByteOrderMarkAtItsBeginning) {
    EXPECT_EQ(textOf("\uFEFFஅ"), "அ");
    EXPECT_EQ(textOf("\uFEFF"), "");
    EXPECT_EQ(textOf("\uFEFF\uFEFFஅ"), "\uFEFFஅ");
    EXPECT_EQ(textOf("அ\uFEFF"), "அ\uFEFF");
    EXPECT_EQ(textOf("\xEF\xBB"), "\xEF\xBB");
}

TEST_F(SourceText, IsReadThroughALink) {
    fs::create_symlink(fs::u8path(write("அ")), fs::u8path(path("இணைப்பு")));
    EXPECT_TRUE(canReadSource(path("இணைப்பு")));
    EXPECT_EQ(readSourceText(path("இணைப்பு")), "அ");
}

void expectUnreadable(const std::string& path) {
    EXPECT_FALSE(canReadSource(path)) << path;
    EXPECT_EQ(readSourceText(path), std::nullopt) << path;
}

TEST_F(SourceText, IsNoneWithoutAFile) {
    fs::create_symlink(fs::u8path(path("இல்லாதது")), fs::u8path(path("இணைப்பு")));
    expectUnreadable("");
    expectUnreadable(path("இல்லாதது"));
    expectUnreadable(path("இணைப்பு"));
    expectUnreadable(write("அ") + "/");
    expectUnreadable(path(std::string(5000, 'x')));
}

TEST_F(SourceText, IsNoneInADirectory) {
    fs::create_directory(fs::u8path(path("அடைவு.பொழில்")));
    expectUnreadable(path("அடைவு.பொழில்"));
    expectUnreadable(path(""));
}

TEST_F(SourceText, IsNoneInWhatMightNeverEnd) {
    ASSERT_EQ(mkfifo(path("குழாய்").c_str(), S_IRUSR | S_IWUSR), 0);
    expectUnreadable(path("குழாய்"));
    expectUnreadable("/dev/zero");
}

/// Takes the rights of the superuser away for a while, if the tests run with them.
class OrdinaryUser {
public:
    OrdinaryUser() : former_(geteuid()) {
        if (former_ == 0) {
            EXPECT_EQ(seteuid(NOBODY), 0);
        }
    }
    ~OrdinaryUser() {
        if (former_ == 0) {
            EXPECT_EQ(seteuid(former_), 0);
        }
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    static constexpr uid_t NOBODY = 65534;
    uid_t former_;
};

TEST_F(SourceText, IsNoneInAFileThatMayNotBeRead) {
    const std::string open = write("அ", "திறந்தது");
    const std::string closed = write("அ", "மூடியது");
    fs::permissions(fs::u8path(closed), fs::perms::none);
    const OrdinaryUser user;
    EXPECT_EQ(readSourceText(open), "அ");
    expectUnreadable(closed);
}

} // namespace
