#include "front_end/second_edition.h"
#include "support/second_source.h"
#include "support/tree_text.h"
#include "support/working_folder.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The edition of a text, with its faults.
std::string edition(const std::string& text) {
    SecondFaults faults;
    std::string found = editionOf(makeSource("நிரல்.பொழில்", text), faults) == Edition::Second ? "second" : "first";
    for (const std::string& fault : faultTexts(faults)) {
        found += " " + fault.substr(0, 5);
    }
    return found;
}

TEST(Marker, AsksForTheSecondEdition) {
    for (const char* text :
         {"ஃ பொழில் 2", "ஃ பொழில் 2\n", "ஃ பொழில் ௨\nவிடு\n", "\xEF\xBB\xBFஃ பொழில் 2\r\n", "  ஃ\tபொழில்   2  \n",
          "ஃபொழில் 2\n", "ஃ பொழில்2\n", "ஃ ப\u0BC6\u0BBEழில் 2\n", "ஃ பொழில் 02\n"}) {
        EXPECT_EQ(edition(text), "second") << text;
    }
}

TEST(Marker, IsNothingElse) {
    for (const char* text :
         {"", "\n", "அ = 1\n", "ஃ பொழில்\n", "ஃ பொழில் 2 நிரல்\n", "ஃஃ பொழில் 2\n", "பொழில் 2\n", "ஃ பொழில் இரண்டு\n",
          "ஃ பொழில் 1\n", "ஃ பொழில் 1\nஃ பொழில் 3\n", "ஃ பொழில் 2.0\n", "ஃ பொழிலன் 2\n"}) {
        EXPECT_EQ(edition(text), "first") << text;
    }
}

TEST(Marker, IsAlmostThere) {
    const auto isAlmost = [](const std::string& text) { return isAlmostMarked(*makeSource("நிரல்.பொழில்", text)); };
    for (const char* text :
         {"ஃ பொழில் 2 நிரல்\n", "ஃஃ பொழில் 2\n", "# பொழில் 2\n", "// பொழில் 2", "பொழில் 2\n", "ஃ பொழில் இரண்டு\n",
          "ஃ பொழில் இரண்டாம் பதிப்பு\n", "ஃ பொழில் பதிப்பு 2\n", "ஃ பொழில் 2.0\n", "ஃ பொழிள் 2\n", "ஃ பொழில் ௨ நிரல்"}) {
        EXPECT_TRUE(isAlmost(text)) << text;
    }
    for (const char* text :
         {"", "\n", "ஃ பொழில் 2\n", "ஃ பொழில் 3\n", "ஃ பொழில்\n", "ஃ வணக்கம் 2\n", "அ = 2\n", "ஃ பொழில் நிரல் 2\n",
          "ஃ பொழிலில் 2 செயல்கள்\n", "ஃ பொழிலை 2 முறை ஓட்டு\n", "அ = 1\nஃ பொழில் இரண்டு\n", "பொழில் 2 கூட்டு 1\n"}) {
        EXPECT_FALSE(isAlmost(text)) << text;
    }
}

TEST(Marker, IsFaulty) {
    EXPECT_EQ(edition("ஃ பொழில் 3\n"), "first 501 1");
    EXPECT_EQ(edition("ஃ பொழில் ௨௦\n"), "first 501 1");
    EXPECT_EQ(edition("\nஃ பொழில் 2\n"), "first 503 2");
    EXPECT_EQ(edition("ஃ என் நிரல்\n\n  ஃபொழில் ௨"), "first 503 3");
    EXPECT_EQ(edition("ஃஃ என்\nநிரல் ஃஃ\nஃ பொழில் 2\nஃ பொழில் 2\n"), "first 503 3");
}

TEST(Marker, IsACommentWhereItCantBeMeant) {
    for (const char* text : {"அ = 1\nஃ பொழில் 2\n", "ஃஃ\nஃ பொழில் 2\nகேட்கும்\nஃஃ\nஅ = 1\n", "ஃஃ\nஃ பொழில் 2\n",
                             "\"\nஃ பொழில் 2\n\"\n", "\nஃ பொழில் 3\n", "ஃ நிரல்\nஅ = 1\nஃ பொழில் 2\n"}) {
        EXPECT_EQ(edition(text), "first") << text;
    }
}

TEST(Marker, IsToldTwice) {
    EXPECT_THAT(secondFaults("ஃ பொழில் 2\nஅ = 1\n  ஃ பொழில் 2\nஃ பொழில் ௨\n"),
                ElementsAre("502 3 'ஃ பொழில் 2'", "502 4 'ஃ பொழில் ௨'"));
    EXPECT_THAT(secondFaults("ஃ பொழில் 2\nஅ = [1,\nஃ பொழில் 2\n2]\n"), ElementsAre("502 3 'ஃ பொழில் 2'"));
    EXPECT_THAT(secondFaults("ஃ பொழில் 2\nஅச்சிடு(\"\nஃ பொழில் 2\n\")\nஃஃ\nஃ பொழில் 2\nஃஃ\nஅ = 1 ஃ பொழில் 2\n"
                             "ஃ பொழில் 3\nஃ பொழில் 2 போதும்\n"),
                IsEmpty());
    EXPECT_THAT(secondFaults("அ = 1\nஃ பொழில் 2\nஃ பொழில் 2\n"), IsEmpty()) << "an import without the line";
}

class Imports : public WorkingFolder {
protected:
    static SecondProgram read(const std::string& path, std::vector<std::string> modules = {}) {
        FrontEndOptions options;
        options.moduleDirectories = std::move(modules);
        return parseSecondEdition(loadSource(path, options), options);
    }

    /// The files in the order in which they run, each with those that it imports.
    static std::vector<std::string> filesOf(const SecondProgram& program) {
        std::vector<std::string> files;
        for (const SecondFile& file : program.files) {
            std::string text = file.source->path;
            for (const std::size_t import : file.imports) {
                text += " < " + program.files.at(import).source->path;
            }
            files.push_back(text);
        }
        return files;
    }
};

TEST_F(Imports, RunBeforeWhoImportsThem) {
    write("முதன்மை.பொழில்", "ஃ பொழில் 2\nஅ = 1\nநூஇறக்கி \"ஆ\"\nநூஇறக்கி \"அ.பொழில்\"\nநூஇறக்கி ஆ\n");
    write("அ.பொழில்", "நூஇறக்கி \"ஆ\"\n");
    write("ஆ.பொழில்", "விடு\n");
    const SecondProgram program = read("முதன்மை.பொழில்");
    EXPECT_THAT(filesOf(program), ElementsAre("ஆ.பொழில்", "அ.பொழில் < ஆ.பொழில்", "முதன்மை.பொழில் < ஆ.பொழில் < அ.பொழில்"));
    EXPECT_THAT(faultTexts(program.faults), IsEmpty());
    EXPECT_EQ(treeText(program.files.front().tree), "(Pass)");
}

TEST_F(Imports, MayBeCircular) {
    write("அ.பொழில்", "நூஇறக்கி \"ஆ\"\nநூஇறக்கி \"அ\"\n");
    write("ஆ.பொழில்", "நூஇறக்கி \"இ\"\n");
    write("இ.பொழில்", "நூஇறக்கி \"./அ\"\nநூஇறக்கி \"ஆ\"\n");
    const SecondProgram program = read("அ.பொழில்");
    EXPECT_THAT(filesOf(program), ElementsAre("இ.பொழில் < அ.பொழில் < ஆ.பொழில்", "ஆ.பொழில் < இ.பொழில்", "அ.பொழில் < ஆ.பொழில்"));
    EXPECT_THAT(faultTexts(program.faults), IsEmpty());
}

TEST_F(Imports, AreLookedForBesideTheFileFirst) {
    write("கருவிகள்/அ.பொழில்", "நூஇறக்கி \"ஆ\"\nநூஇறக்கி \"இ\"\nநூஇறக்கி \"ஈ\"\nநூஇறக்கி \"உள்/உ\"\n");
    write("கருவிகள்/ஆ.பொழில்", "விடு\n");
    write("ஆ.பொழில்", "விடு\n");
    write("இ.பொழில்", "விடு\n");
    write("தொகுதி/இ.பொழில்", "விடு\n");
    write("தொகுதி/ஈ.பொழில்", "விடு\n");
    write("கருவிகள்/உள்/உ.பொழில்", "நூஇறக்கி \"../ஆ\"\n");
    EXPECT_THAT(filesOf(read("கருவிகள்/அ.பொழில்", {"தொகுதி"})),
                ElementsAre("கருவிகள்/ஆ.பொழில்", "இ.பொழில்", "தொகுதி/ஈ.பொழில்", "கருவிகள்/உள்/உ.பொழில் < கருவிகள்/ஆ.பொழில்",
                            "கருவிகள்/அ.பொழில் < கருவிகள்/ஆ.பொழில் < இ.பொழில் < தொகுதி/ஈ.பொழில் < கருவிகள்/உள்/உ.பொழில்"));
}

TEST_F(Imports, AreOneFileHoweverTheyAreReached) {
    write("அ.பொழில்", "நூஇறக்கி \"உள்/ஆ\"\nநூஇறக்கி \"இ\"\n");
    write("உள்/ஆ.பொழில்", "நூஇறக்கி \"இ\"\n");
    write("இ.பொழில்", "விடு\n");
    const SecondProgram program = read(std::filesystem::current_path().u8string() + "/அ.பொழில்");
    EXPECT_EQ(program.files.size(), 3U) << "beside the one and in the working directory of the other";
}

TEST_F(Imports, OfModulesTakeTheirSecondText) {
    write("அ.பொழில்", "நூஇறக்கி \"உரை\"\nநூஇறக்கி \"கணிதம்\"\n");
    write("தொகுதி/உரை.பொழில்", "நூஇறக்கி \"கணிதம்\"\n");
    write("தொகுதி/கணிதம்.பொழில்", "நூஇறக்கி \"உரை\"\n");
    write("தொகுதி/இரண்டாம்_பதிப்பு/கணிதம்.பொழில்", "நூஇறக்கி \"உரை\"\n");
    EXPECT_THAT(filesOf(read("அ.பொழில்", {"தொகுதி"})),
                ElementsAre("தொகுதி/இரண்டாம்_பதிப்பு/கணிதம்.பொழில் < தொகுதி/உரை.பொழில்",
                            "தொகுதி/உரை.பொழில் < தொகுதி/இரண்டாம்_பதிப்பு/கணிதம்.பொழில்",
                            "அ.பொழில் < தொகுதி/உரை.பொழில் < தொகுதி/இரண்டாம்_பதிப்பு/கணிதம்.பொழில்"));
}

TEST_F(Imports, BesideAFileAreFoundWhateverItsFolderIsCalled) {
    write("இரண்டாம்_பதிப்பு/அ.பொழில்", "நூஇறக்கி \"ஆ\"\n");
    write("இரண்டாம்_பதிப்பு/ஆ.பொழில்", "விடு\n");
    write("ஆ.பொழில்", "விடு\n");
    EXPECT_THAT(filesOf(read("இரண்டாம்_பதிப்பு/அ.பொழில்", {"தொகுதி"})),
                ElementsAre("இரண்டாம்_பதிப்பு/ஆ.பொழில்", "இரண்டாம்_பதிப்பு/அ.பொழில் < இரண்டாம்_பதிப்பு/ஆ.பொழில்"));
}

TEST_F(Imports, OfModulesTakeTheirSecondTextInTheirFolderToo) {
    write("அ.பொழில்", "நூஇறக்கி \"கணிதம்\"\n");
    write("கணிதம்.பொழில்", "விடு\n");
    write("இரண்டாம்_பதிப்பு/கணிதம்.பொழில்", "விடு\n");
    EXPECT_THAT(filesOf(read("அ.பொழில்", {std::filesystem::current_path().u8string()})),
                ElementsAre("இரண்டாம்_பதிப்பு/கணிதம்.பொழில்", "அ.பொழில் < இரண்டாம்_பதிப்பு/கணிதம்.பொழில்"));
}

TEST_F(Imports, AreToldThatAreMissing) {
    write("அ.பொழில்", "அ = 1 1\nநூஇறக்கி \"இல்லாதது\"\nஆ = 2 2\nநூஇறக்கி \"இ\"\n");
    write("இ.பொழில்", "\nநூஇறக்கி \"அதுவும்\"\n");
    const SecondProgram program = read("அ.பொழில்");
    EXPECT_THAT(faultTexts(program.faults),
                ElementsAre("545 2 'நூஇறக்கி \"அதுவும்\"'", "530 1 '1'", "545 2 'நூஇறக்கி \"இல்லாதது\"'", "530 3 '2'"));
    EXPECT_EQ(program.faults.front().place.source->path, "இ.பொழில்");
}

TEST_F(Imports, AreOfTheSecondEditionWithAndWithoutItsMarker) {
    write("அ.பொழில்", "ஃ பொழில் 2\nநூஇறக்கி \"ஆ\"\nநூஇறக்கி \"இ\"\nநூஇறக்கி \"ஈ\"\n");
    write("ஆ.பொழில்", "ஃ பொழில் 2\nவிலை = 012\n");
    write("இ.பொழில்", "விலை = 012\n");
    write("ஈ.பொழில்", "ஃ பொழில் 3\n");
    const SecondProgram program = read("அ.பொழில்");
    EXPECT_EQ(treeText(program.files.at(0).tree), treeText(program.files.at(1).tree));
    EXPECT_THAT(faultTexts(program.faults), ElementsAre("501 1 'ஃ பொழில் 3'"));
}

TEST_F(Imports, OfFirstEditionProgramsAreNotOfTheSecond) {
    write("ஆ.பொழில்", "ஃ பொழில் 2\nவிடு\n");
    try {
        parseSource(makeSource("அ.பொழில்", "விடு\nநூஇறக்கி \"ஆ\"\n"), {});
        FAIL() << "nobody was told";
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.code, "பொழி-283");
        EXPECT_EQ(fault.line, 2);
    }
}

} // namespace
