#include "support/working_folder.h"
#include "tools/publish/font_licence.h"
#include "tools/publish/licences.h"
#include "tools/publish/site_folder.h"
#include "tools/publish/tidying.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gmock/gmock.h>

using namespace pozhil::tools;
using namespace std::string_literals;
using testing::HasSubstr;
using testing::Not;
namespace fs = std::filesystem;

namespace {

std::string shortNumber(std::size_t number) {
    return {static_cast<char>(number >> 8U), static_cast<char>(number)};
}

std::string longNumber(std::size_t number) {
    return shortNumber(number >> 16U) + shortNumber(number & 0xFFFFU);
}

/// The least that is a font with names: of the licence alone, in the language of this number.
std::string font(const std::u16string& licence, std::size_t language = 0x409) {
    std::string text;
    for (const char16_t unit : licence) {
        text += shortNumber(unit);
    }
    const std::string names = shortNumber(0) + shortNumber(1) + shortNumber(18) + shortNumber(3) + shortNumber(1) +
                              shortNumber(language) + shortNumber(13) + shortNumber(text.size()) + shortNumber(0) +
                              text;
    return "\0\1\0\0"s + shortNumber(1) + std::string(6, '\0') + "name" + std::string(4, '\0') + longNumber(28) +
           longNumber(names.size()) + names;
}

TEST(LicenceOfAFont, StandsInItsNames) {
    const auto licence = readFontLicence(font(u"உரிமம் é"));
    ASSERT_TRUE(licence);
    EXPECT_EQ(licence->licence, "உரிமம் é");
    EXPECT_EQ(licence->copyright, "");
    EXPECT_EQ(readFontLicence(font(u"Lizenz", 0x407))->licence, "");
}

TEST(LicenceOfAFont, IsNoneOfOtherFiles) {
    EXPECT_FALSE(readFontLicence(""));
    EXPECT_FALSE(readFontLicence("wOF2 and so on"));
    EXPECT_FALSE(readFontLicence("\0\1\0"s));
}

TEST(LicenceOfAFont, FontMayBeCutOrSpoiltAnywhere) {
    const std::string whole = font(u"licence");
    for (std::size_t length = 0; length < whole.size(); ++length) {
        readFontLicence(whole.substr(0, length));
        std::string spoilt = whole;
        spoilt[length] = '\xff';
        readFontLicence(spoilt);
    }
}

class Publishing : public pozhil::test::WorkingFolder {
protected:
    static std::string read(const fs::path& path) {
        std::ifstream file(path);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    /// Publishes a folder with one file.
    static void publish(const std::string& text, const fs::path& place = "தளம்") {
        write("made/index.html", text);
        SiteFolder(place).replaceWith("made");
        fs::remove_all("made");
    }

    static FolderProblem::Kind problemOf(const fs::path& place) {
        const auto problem = SiteFolder(place).problem();
        EXPECT_TRUE(problem) << place;
        return problem ? problem->kind : FolderProblem::Kind::Unwritable;
    }
};

TEST_F(Publishing, LicencesAreThoseOfAllFonts) {
    write("assets/font/a.ttf", font(u"free"));
    write("assets/font/OFL.txt", "the whole licence");
    write("assets/font/notes.txt", "none");
    write("b.woff2", "wOF2");
    const std::string text = licencesOf({"assets", "b.woff2", "missing.ttf"});
    EXPECT_THAT(text, HasSubstr("assets/font/a.ttf\n    free\n"));
    EXPECT_THAT(text, HasSubstr("b.woff2\n"));
    EXPECT_THAT(text, HasSubstr("--- assets/font/OFL.txt\n\nthe whole licence"));
    EXPECT_THAT(text, Not(HasSubstr("none")));
    EXPECT_THAT(text, Not(HasSubstr("missing")));
    EXPECT_EQ(licencesOf({"assets/font/notes.txt", "missing"}), "");
}

TEST_F(Publishing, FolderThatIsNotThereIsMade) {
    EXPECT_FALSE(SiteFolder("தளம்").problem());
    EXPECT_FALSE(SiteFolder("அ/ஆ/தளம்/").problem());
    publish("one");
    EXPECT_EQ(read("தளம்/index.html"), "one");
}

TEST_F(Publishing, OwnFolderIsReplaced) {
    publish("one");
    write("தளம்/index.html", "changed by hand");
    EXPECT_FALSE(SiteFolder("தளம்").problem());
    publish("two");
    EXPECT_EQ(read("தளம்/index.html"), "two");
    EXPECT_FALSE(SiteFolder("தளம்").problem());
}

TEST_F(Publishing, EmptyFolderMayBeUsed) {
    fs::create_directory("தளம்");
    EXPECT_FALSE(SiteFolder("தளம்").problem());
    publish("one");
    EXPECT_EQ(read("தளம்/index.html"), "one");
}

TEST_F(Publishing, WhatIsNotOursStays) {
    write("அடைவு/index.html", "other");
    write("கோப்பு", "");
    write("போலி/pozhil-site.txt", "something else\n");
    for (const char* place : {"அடைவு", "கோப்பு", "போலி", ".", "..", "/"}) {
        EXPECT_EQ(problemOf(place), FolderProblem::Kind::NotOurs) << place;
    }
}

TEST_F(Publishing, WhatSomebodyHasAddedStays) {
    publish("one");
    write("தளம்/CNAME", "example");
    EXPECT_EQ(problemOf("தளம்"), FolderProblem::Kind::ForeignFile);
    fs::remove("தளம்/CNAME");
    fs::remove("தளம்/index.html");
    write("தளம்/index.html/inside", "");
    EXPECT_EQ(problemOf("தளம்"), FolderProblem::Kind::ForeignFile);
}

TEST_F(Publishing, LinkToAFolderStaysALink) {
    publish("one", "உண்மை");
    fs::create_directory_symlink("உண்மை", "தளம்");
    publish("two");
    EXPECT_TRUE(fs::is_symlink("தளம்"));
    EXPECT_EQ(read("உண்மை/index.html"), "two");
}

TEST_F(Publishing, WorkshopLeavesNothing) {
    fs::path folder;
    {
        const Workshop workshop(fs::absolute("தளம்"));
        folder = workshop.folder();
        write((folder / "work/file").u8string(), "");
        EXPECT_EQ(folder.parent_path(), fs::current_path());
    }
    EXPECT_FALSE(fs::exists(folder));
}

TEST(TidiedPage, IsWithoutIndentationAndComments) {
    EXPECT_EQ(tidiedPage("<p>\n    a // b\n\n  // c\n<script>\n    // d\n    /// e\n    f(); // g\n</script>\n// h\n"),
              "<p>\na // b\n// c\n<script>\nf(); // g\n</script>\n// h\n");
    EXPECT_EQ(tidiedPage("<script src=\"a\"></script>\n// text\n"), "<script src=\"a\"></script>\n// text\n");
}

TEST(TidiedScript, DoesNotTellWhereItWasMade) {
    EXPECT_EQ(tidiedScript(R"(var PACKAGE_NAME="/home/me/x/index.data";f("datafile_/home/me/x/index.data"))"),
              R"(var PACKAGE_NAME="index.data";f("datafile_index.data"))");
    for (const char* script :
         {"", "no data", "PACKAGE_NAME=\"", "PACKAGE_NAME=\"\"", "var PACKAGE_NAME=\"index.data\";"}) {
        EXPECT_EQ(tidiedScript(script), script);
    }
}

} // namespace
