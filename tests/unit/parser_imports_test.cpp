#include "scanner/lexer.h"
#include "support/diagnosis.h"
#include "support/parsing.h"
#include "support/tree_text.h"
#include "support/working_folder.h"

#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;
using testing::HasSubstr;
namespace fs = std::filesystem;

namespace {

/// Works in an empty folder, with the module folders முதல் and இரண்டு in it.
class Import : public WorkingFolder {
protected:
    /// A module that prints its own name is enough to see where its statements go.
    static void writeModule(const std::string& name) { write(name + ".பொழில்", prints(name)); }

    static std::string prints(const std::string& text) { return "அச்சிடு(\"" + text + "\")\n"; }

    static std::string printTree(const std::string& text) { return "(Print (String \"" + text + "\"))"; }

    static std::string importTree(const std::string& source) { return treeText(parseText(source, {"முதல்", "இரண்டு"})); }

    static std::string importFault(const std::string& source) {
        return diagnosisOf([&] { parseText(source, {"முதல்", "இரண்டு"}); });
    }
};

TEST_F(Import, PutsTheStatementsOfTheFileFirst) {
    writeModule("அ");
    EXPECT_EQ(importTree("விடு\nநூஇறக்கி \"அ\"\nதொடர்\n"), printTree("அ") + " (Pass) (Continue)");
    EXPECT_EQ(importTree("நூஇறக்கி \"அ\"\n"), printTree("அ"));
}

TEST_F(Import, KeepsTheOrderOfTheImports) {
    writeModule("அ");
    writeModule("ஆ");
    EXPECT_EQ(importTree("நூஇறக்கி \"ஆ\"\nநூஇறக்கி \"அ\"\n"), printTree("ஆ") + " " + printTree("அ"));
}

TEST_F(Import, GoesDepthFirst) {
    write("அ.பொழில்", prints("அ") + "நூஇறக்கி \"ஆ\"\n");
    write("ஆ.பொழில்", "நூஇறக்கி \"இ\"\n" + prints("ஆ"));
    writeModule("இ");
    writeModule("ஈ");
    EXPECT_EQ(importTree("நூஇறக்கி \"அ\"\nநூஇறக்கி \"ஈ\"\nவிடு\n"),
              printTree("இ") + " " + printTree("ஆ") + " " + printTree("அ") + " " + printTree("ஈ") + " (Pass)");
}

TEST_F(Import, MovesItsStatementsOutOfBlocks) {
    writeModule("அ");
    EXPECT_EQ(importTree("எனில் ஆ:\n    நூஇறக்கி \"அ\"\n    விடு\n"), printTree("அ") + " (If ஆ (Block (Pass)) null)");
    EXPECT_EQ(importTree("செயல் ஆ():\n    நூஇறக்கி \"அ\"\n"), printTree("அ") + " (FunctionDefinition ஆ () (Block))");
}

TEST_F(Import, LeavesTheNextStatementOnItsLineAlone) {
    writeModule("அ");
    EXPECT_EQ(importTree("நூஇறக்கி \"அ\" விடு\n"), printTree("அ") + " (Pass)");
    EXPECT_EQ(importTree("எனில் ஆ:\n    நூஇறக்கி \"அ\" விடு\n"), printTree("அ") + " (If ஆ (Block (Pass)) null)");
    EXPECT_EQ(importTree("நூஇறக்கி \"அ\""), printTree("அ"));
}

TEST_F(Import, AppendsTheEndingOfSourcesUnlessOneIsWritten) {
    write("அ.பொழில்", prints("பொழில்"));
    write("அ.pozhil", prints("pozhil"));
    write("அ.txt.பொழில்", prints("txt"));
    EXPECT_EQ(importTree("நூஇறக்கி \"அ\"\n"), printTree("பொழில்"));
    EXPECT_EQ(importTree("நூஇறக்கி \"அ.பொழில்\"\n"), printTree("பொழில்"));
    EXPECT_EQ(importTree("நூஇறக்கி \"அ.pozhil\"\n"), printTree("pozhil"));
    EXPECT_EQ(importTree("நூஇறக்கி \"அ.txt\"\n"), printTree("txt"));
}

TEST_F(Import, LooksInTheWorkingDirectoryThenInTheModuleDirectoriesInOrder) {
    write("இரண்டு/அ.பொழில்", prints("இரண்டு"));
    EXPECT_EQ(importTree("நூஇறக்கி \"அ\"\n"), printTree("இரண்டு"));
    write("முதல்/அ.பொழில்", prints("முதல்"));
    EXPECT_EQ(importTree("நூஇறக்கி \"அ\"\n"), printTree("முதல்"));
    write("அ.பொழில்", prints("இங்கே"));
    EXPECT_EQ(importTree("நூஇறக்கி \"அ\"\n"), printTree("இங்கே"));
}

TEST_F(Import, FollowsPathsOfAnyForm) {
    write("அடைவு/அ.பொழில்", prints("அடைவு"));
    write("இரண்டு/அடைவு/ஆ.பொழில்", prints("இரண்டு"));
    EXPECT_EQ(importTree("நூஇறக்கி \"அடைவு/அ\"\n"), printTree("அடைவு"));
    EXPECT_EQ(importTree("நூஇறக்கி \"./அடைவு/../அடைவு/அ\"\n"), printTree("அடைவு"));
    EXPECT_EQ(importTree("நூஇறக்கி \"" + folder().string() + "/அடைவு/அ\"\n"), printTree("அடைவு"));
    EXPECT_EQ(importTree("நூஇறக்கி \"அடைவு/ஆ\"\n"), printTree("இரண்டு"));
}

TEST_F(Import, PathsStartFromTheWorkingDirectoryInImportedFilesToo) {
    write("அடைவு/அ.பொழில்", "நூஇறக்கி \"ஆ\"\n");
    write("அடைவு/ஆ.பொழில்", prints("அடைவு"));
    writeModule("ஆ");
    EXPECT_EQ(importTree("நூஇறக்கி \"அடைவு/அ\"\n"), printTree("ஆ"));
}

TEST_F(Import, PassesOverFoldersOfTheSameName) {
    fs::create_directories(fs::u8path("அ.பொழில்"));
    write("முதல்/அ.பொழில்", prints("முதல்"));
    EXPECT_EQ(importTree("நூஇறக்கி \"அ\"\n"), printTree("முதல்"));
}

TEST_F(Import, TheWebModuleHasAShortName) {
    write("தொகுப்புகள்/வலைதளம்/வலைதளம்.பொழில்", prints("தொகுப்பு"));
    write("வலைதளம்.பொழில்", prints("இங்கே"));
    EXPECT_EQ(importTree("நூஇறக்கி \"வலைதளம்\"\n"), printTree("தொகுப்பு"));
    EXPECT_EQ(importTree("நூஇறக்கி \"வலைதளம்.பொழில்\"\n"), printTree("இங்கே"));
}

TEST_F(Import, OfAnEmptyFileAddsNothing) {
    write("அ.பொழில்", "");
    EXPECT_EQ(importTree("நூஇறக்கி \"அ\"\nவிடு\n"), "(Pass)");
}

TEST_F(Import, RunsAFileOnce) {
    writeModule("அ");
    EXPECT_EQ(importTree("நூஇறக்கி \"அ\"\nநூஇறக்கி \"அ\"\n"), printTree("அ"));
    EXPECT_EQ(importTree("நூஇறக்கி \"அ\"\nநூஇறக்கி \"அ.பொழில்\"\n"), printTree("அ"));
}

TEST_F(Import, TakesTwoSpellingsForTwoFiles) {
    writeModule("அ");
    EXPECT_EQ(importTree("நூஇறக்கி \"அ\"\nநூஇறக்கி \"./அ\"\n"), printTree("அ") + " " + printTree("அ"));
}

TEST_F(Import, RemembersWhatImportedFilesImport) {
    write("அ.பொழில்", "நூஇறக்கி \"இ\"\n" + prints("அ"));
    write("ஆ.பொழில்", "நூஇறக்கி \"இ\"\n" + prints("ஆ"));
    writeModule("இ");
    EXPECT_EQ(importTree("நூஇறக்கி \"அ\"\nநூஇறக்கி \"ஆ\"\n"),
              printTree("இ") + " " + printTree("அ") + " " + printTree("ஆ"));
}

TEST_F(Import, GoesRoundNoCircle) {
    write("அ.பொழில்", "நூஇறக்கி \"ஆ\"\n" + prints("அ"));
    write("ஆ.பொழில்", "நூஇறக்கி \"அ\"\n" + prints("ஆ"));
    EXPECT_EQ(importTree("நூஇறக்கி \"அ\"\n"), printTree("ஆ") + " " + printTree("அ"));
    write("இ.பொழில்", "நூஇறக்கி \"இ\"\n" + prints("இ"));
    EXPECT_EQ(importTree("நூஇறக்கி \"இ\"\n"), printTree("இ"));
}

TEST_F(Import, NeedsAStringBehindItsWord) {
    EXPECT_EQ(importFault("\nநூஇறக்கி அ\n"), "பொழி-281 வரி 2");
    EXPECT_EQ(importFault("நூஇறக்கி 5\n"), "பொழி-281 வரி 1");
    EXPECT_EQ(importFault("\nநூஇறக்கி\n\"அ\"\n"), "பொழி-281 வரி 2");
    EXPECT_EQ(importFault("நூஇறக்கி"), "பொழி-281 வரி 1");
    EXPECT_EQ(importFault("நூஇறக்கி (\"அ\")\n"), "பொழி-281 வரி 1");
}

TEST_F(Import, NeedsAFileThatCanBeRead) {
    fs::create_directories(fs::u8path("அடைவு.பொழில்"));
    EXPECT_EQ(importFault("\nநூஇறக்கி \"அ\"\n"), "பொழி-281 வரி 2");
    EXPECT_EQ(importFault("\nநூஇறக்கி \"\"\n"), "பொழி-281 வரி 2");
    EXPECT_EQ(importFault("\nநூஇறக்கி \"அடைவு\"\n"), "பொழி-281 வரி 2");
    EXPECT_EQ(importFault("\nநூஇறக்கி \"வலைதளம்\"\n"), "பொழி-281 வரி 2");
}

TEST_F(Import, FaultsOfTheGrammarInTheFileNameNoFile) {
    write("அ.பொழில்", "\n\nஅ 5\n");
    EXPECT_EQ(importFault("நூஇறக்கி \"அ\"\n"), "பொழி-208 வரி 3");
    const std::string report = reportOf([] { parseText("நூஇறக்கி \"அ\"\n"); });
    EXPECT_THAT(report, HasSubstr("கோப்பு  \x1b[0m: \n"));
    EXPECT_THAT(report, HasSubstr("03 |  (சோர்ஸ் கோடு கிடைக்கவில்லை)\n"));
}

TEST_F(Import, FaultsOfTheScannerInTheFileNameThePathThatWasFound) {
    write("முதல்/அ.பொழில்", "\nஅ = 'அ\n");
    const std::string report = reportOf([] { parseText("நூஇறக்கி \"அ\"\n", {"முதல்"}); });
    EXPECT_THAT(report, HasSubstr("பொழி-103"));
    EXPECT_THAT(report, HasSubstr("கோப்பு  \x1b[0m: முதல்/அ.பொழில்\n"));
    EXPECT_THAT(report, HasSubstr("02 |  அ = 'அ\n"));
}

TEST_F(Import, StartsOutsideAllFunctions) {
    write("அ.பொழில்", "திரும்பு 1\n");
    EXPECT_EQ(importFault("செயல் ஆ():\n    நூஇறக்கி \"அ\"\n"), "பொழி-233 வரி 1");
}

TEST_F(Import, BringsStructuresToInheritFrom) {
    write("அ.பொழில்", "கட்டமைப்பு பெரியது:\n    ஆ = 1\nவடிவமைப்பு வடிவம்:\n    செயல் இ(தான்)\n");
    const std::string import = "நூஇறக்கி \"அ\"\n";
    EXPECT_EQ(importFault(import + "கட்டமைப்பு சிறியது(பெரியது):\n    விடு\n"), "none");
    EXPECT_EQ(importFault(import + "கட்டமைப்பு சிறியது(வடிவம்):\n    விடு\n"), "பொழி-273 வரி 2");
    EXPECT_EQ(importFault("கட்டமைப்பு சிறியது(பெரியது):\n    விடு\n" + import), "பொழி-272 வரி 1");
}

TEST_F(Import, BringsStructuresThatStandInStructures) {
    write("அ.பொழில்", "கட்டமைப்பு பெரியது:\n    வடிவமைப்பு வடிவம்:\n        செயல் இ(தான்)\n");
    EXPECT_EQ(importFault("நூஇறக்கி \"அ\"\nகட்டமைப்பு சிறியது(வடிவம்):\n    விடு\n"), "பொழி-273 வரி 2");
}

TEST_F(Import, BringsEnumerationsFromThereOn) {
    write("அ.பொழில்", "வகை ஆ:\n    இ\n    ஈ\n");
    EXPECT_EQ(importTree("அச்சிடு(ஆ.ஈ)\nநூஇறக்கி \"அ\"\nஅச்சிடு(ஆ.ஈ)\n"), "(Print (Get ஆ ஈ)) (Print (Number 1))");
}

TEST_F(Import, TakesAnEnumerationWholeOrNotAtAll) {
    write("அ.பொழில்", "வகை ஆ:\n    இ\n    ஈ\n");
    EXPECT_EQ(importTree("வகை ஆ:\n    உ\nநூஇறக்கி \"அ\"\nஅச்சிடு(ஆ.ஈ, ஆ.உ)\n"), "(Print (Get ஆ ஈ) (Number 0))");
}

TEST_F(Import, KeepsTheFunctionsThatTheImportingFileHasAlready) {
    write("அ.பொழில்", "செயல் ஆ(இ):\n    விடு\nசெயல் உ(இ):\n    விடு\nசெயல் ஊ(இ):\n    விடு\n");
    const std::string source = "செயல் ஆ():\n    விடு\nநூஇறக்கி \"அ\"\nசெயல் ஊ():\n    விடு\n";
    Parser parser(Lexer(source, "").tokenize(), source, "");
    parser.parse();
    ASSERT_EQ(parser.functions().size(), 3U);
    EXPECT_EQ(parser.functions().at("ஆ").size(), 0U);
    EXPECT_EQ(parser.functions().at("உ").size(), 1U);
    EXPECT_EQ(parser.functions().at("ஊ").size(), 0U);
}

TEST_F(Import, KeepsTheStructuresOfTheImportingFile) {
    write("அ.பொழில்", "வடிவமைப்பு வடிவம்:\n    செயல் ஆ(தான்)\n    செயல் இ(தான்)\n");
    const std::string own = "வடிவமைப்பு வடிவம்:\n    செயல் ஆ(தான்)\n";
    const std::string child = "கட்டமைப்பு சிறியது(வடிவம்):\n    செயல் ஆ(தான்):\n        விடு\n";
    EXPECT_EQ(importFault(own + "நூஇறக்கி \"அ\"\n" + child), "none");
    EXPECT_EQ(importFault("நூஇறக்கி \"அ\"\n" + own + child), "none");
    EXPECT_EQ(importFault("நூஇறக்கி \"அ\"\n" + child), "பொழி-273 வரி 2");
}

TEST_F(Import, AFileKnowsOnlyWhatItImportsItselfAndFirst) {
    write("பெரியது.பொழில்", "கட்டமைப்பு பெரியது:\n    ஆ = 1\n");
    write("சிறியது.பொழில்", "நூஇறக்கி \"பெரியது\"\nகட்டமைப்பு சிறியது(பெரியது):\n    இ = 1\n");
    EXPECT_EQ(importFault("நூஇறக்கி \"சிறியது\"\nநூஇறக்கி \"பெரியது\"\n"), "none");
    EXPECT_EQ(importFault("நூஇறக்கி \"பெரியது\"\nநூஇறக்கி \"சிறியது\"\n"), "பொழி-272 வரி 2");
}

TEST_F(Import, EndsInADiagnosticWhenFilesImportEachOtherTooDeep) {
    for (int file = 0; file < 2000; ++file) {
        write("கோப்பு_" + std::to_string(file) + ".பொழில்", "நூஇறக்கி \"கோப்பு_" + std::to_string(file + 1) + "\"\n");
    }
    EXPECT_EQ(importFault("நூஇறக்கி \"கோப்பு_0\"\n"), "பொழி-291 வரி 1");
}

} // namespace
