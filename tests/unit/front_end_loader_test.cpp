#include "front_end/front_end.h"
#include "support/tree_text.h"
#include "support/working_folder.h"

#include <string>

#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;

namespace {

class Loader : public WorkingFolder {};

TEST_F(Loader, OfFilesReadsThemFromTheWorkingDirectory) {
    write("அ.பொழில்", "\xEF\xBB\xBFவிடு\r\n");
    const FileLoader files;
    const SourcePtr source = files.load("அ.பொழில்");
    ASSERT_NE(source, nullptr);
    EXPECT_EQ(source->path, "அ.பொழில்");
    EXPECT_EQ(source->text, "விடு\n");
    EXPECT_EQ(files.load("ஆ.பொழில்"), nullptr);
    EXPECT_EQ(files.load("."), nullptr);
}

TEST_F(Loader, OfMemoryGoesBeforeTheNext) {
    write("அ.பொழில்", "விடு\n");
    write("ஆ.பொழில்", "தொடர்\n");
    const FileLoader files;
    MemoryLoader editor(&files);
    editor.set("அ.பொழில்", "நிறுத்து\n");
    EXPECT_EQ(editor.load("அ.பொழில்")->text, "நிறுத்து\n");
    EXPECT_EQ(editor.load("ஆ.பொழில்")->text, "தொடர்\n");
    EXPECT_EQ(editor.load("இ.பொழில்"), nullptr);
    EXPECT_EQ(MemoryLoader().load("ஆ.பொழில்"), nullptr);
}

TEST_F(Loader, ServesSourceAndImportsToTheFrontEnd) {
    write("இ.பொழில்", "அச்சிடு(\"கோப்பு\")\n");
    MemoryLoader editor;
    editor.set("அ.பொழில்", "நூஇறக்கி \"ஆ\"\nவிடு\n");
    editor.set("தொகுதி/ஆ.பொழில்", "அச்சிடு(\"நினைவு\")\n");
    FrontEndOptions options;
    options.loader = &editor;
    options.moduleDirectories = {"தொகுதி"};
    const ParsedSource parsed = parseSource(loadSource("அ.பொழில்", options), options);
    EXPECT_EQ(treeText(parsed.program), "(Print (String \"நினைவு\")) (Pass)");
    EXPECT_THROW(parseSource(makeSource("", "நூஇறக்கி \"இ\"\n"), options), Fault) << "there are no files in this memory";
    EXPECT_EQ(loadSource("இ.பொழில்", options), nullptr);
    EXPECT_NE(loadSource("இ.பொழில்", {}), nullptr);
}

TEST_F(Loader, LeavesOneTextToAllStages) {
    const SourcePtr source = makeSource("அ.பொழில்", "விடு\n");
    const ParsedSource parsed = parseSource(source, {});
    EXPECT_EQ(parsed.source, source);
    EXPECT_EQ(parsed.parser->scanned().source, source);
}

} // namespace
