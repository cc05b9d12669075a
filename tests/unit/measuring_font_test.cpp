#include "support/working_folder.h"
#include "tools/publish/font_tables.h"
#include "tools/publish/licences.h"
#include "tools/publish/measuring_font.h"
#include "tools/publish/packed_fonts.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <gmock/gmock.h>

using namespace pozhil::tools;
using namespace std::string_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
namespace fs = std::filesystem;

namespace {

using Tables = std::map<std::string, std::string>;

const std::string BOX = shortBytes(0xFFF6) + shortBytes(0) + shortBytes(300) + shortBytes(700);
const std::string OTHER_BOX = shortBytes(1) + shortBytes(2) + shortBytes(3) + shortBytes(4);
const std::string SIMPLE = shortBytes(1) + BOX + "points of it";
/// Made of other letters.
const std::string COMPOSITE = shortBytes(0xFFFF) + OTHER_BOX + "parts of it!";

/// What a font says of itself: a text under each of these numbers, in units of two bytes.
std::string namesOf(const std::vector<std::pair<std::size_t, std::string>>& names) {
    std::string rows;
    std::string texts;
    for (const auto& [number, letters] : names) {
        std::string text;
        for (const char letter : letters) {
            text += shortBytes(static_cast<unsigned char>(letter));
        }
        rows += shortBytes(3) + shortBytes(1) + shortBytes(0x409) + shortBytes(number) + shortBytes(text.size()) +
                shortBytes(texts.size());
        texts += text;
    }
    return shortBytes(0) + shortBytes(names.size()) + shortBytes(6 + rows.size()) + rows + texts;
}

std::string headTable(bool hasLongPlaces) {
    return longBytes(0x10000) + std::string(8, '\x11') + longBytes(0x5F0F3CF5) + std::string(34, '\x22') +
           shortBytes(hasLongPlaces ? 1 : 0) + shortBytes(0);
}

/// Four letters: a simple one, one without an outline, and one that is made of others, twice.
Tables letters(bool hasLongPlaces = false) {
    Tables tables;
    std::string places;
    std::string outlines;
    const auto note = [&] { places += hasLongPlaces ? longBytes(outlines.size()) : shortBytes(outlines.size() / 2); };
    for (const std::string& outline : {SIMPLE, ""s, COMPOSITE, COMPOSITE}) {
        note();
        outlines += outline;
    }
    note();
    tables["glyf"] = outlines;
    tables["loca"] = places;
    tables["maxp"] = longBytes(0x10000) + shortBytes(4);
    tables["head"] = headTable(hasLongPlaces);
    tables["hhea"] = std::string(34, '\x33') + shortBytes(1);
    tables["hmtx"] = "advances of all";
    tables["cmap"] = "which letter is which";
    tables["GPOS"] = "how near";
    tables["OS/2"] = "for systems";
    tables["post"] = "for printers";
    tables["GSUB"] = "shapes";
    tables["fpgm"] = "hints";
    tables["name"] = namesOf({{0, "(c)"}, {1, "Reserved"}, {4, "Reserved Regular"}, {13, "free"}, {14, "address"}});
    return tables;
}

std::string fontOf(const Tables& tables) {
    return writeFont(FontTables(tables.begin(), tables.end()));
}

Tables tablesOf(const std::string& font) {
    const auto tables = readTables(font);
    EXPECT_TRUE(tables);
    return tables ? Tables(tables->begin(), tables->end()) : Tables();
}

/// The letters with one of their tables changed.
std::string changed(const std::string& tag, const std::string& table) {
    Tables tables = letters();
    tables[tag] = table;
    return fontOf(tables);
}

std::uint32_t sumOf(const std::string& bytes) {
    std::uint32_t sum = 0;
    for (std::size_t i = 0; i < bytes.size(); i += 4) {
        sum += longAt(bytes, i);
    }
    return sum;
}

TEST(MeasuringFont, HasOfEachLetterItsBox) {
    std::string boxes = shortBytes(0) + BOX;
    for (int i = 0; i < 2; ++i) {
        boxes += shortBytes(0) + OTHER_BOX;
    }
    for (const bool hasLongPlaces : {false, true}) {
        const auto font = measuringFont(fontOf(letters(hasLongPlaces)));
        ASSERT_TRUE(font);
        const Tables tables = tablesOf(*font);
        EXPECT_EQ(tables.at("glyf"), boxes);
        EXPECT_EQ(tables.at("loca"),
                  hasLongPlaces ? longBytes(0) + longBytes(10) + longBytes(10) + longBytes(20) + longBytes(30)
                                : shortBytes(0) + shortBytes(5) + shortBytes(5) + shortBytes(10) + shortBytes(15));
    }
}

TEST(MeasuringFont, KeepsWhatMeasuringTakesAndNothingElse) {
    const Tables before = tablesOf(fontOf(letters()));
    Tables after = tablesOf(measuringFont(fontOf(letters())).value());
    for (const char* tag : {"GPOS", "cmap", "hhea", "hmtx", "maxp"}) {
        EXPECT_EQ(after[tag], before.at(tag)) << tag;
        after.erase(tag);
    }
    // The sum over the font is another.
    EXPECT_EQ(after["head"].replace(8, 4, ""), std::string(before.at("head")).replace(8, 4, ""));
    for (const char* tag : {"glyf", "loca", "head", "name"}) {
        EXPECT_EQ(after.erase(tag), 1U) << tag;
    }
    EXPECT_EQ(after, Tables());
}

TEST(MeasuringFont, HasNoNameButItsLicence) {
    const Tables tables = tablesOf(measuringFont(fontOf(letters())).value());
    EXPECT_EQ(tables.at("name"), namesOf({{0, "(c)"}, {13, "free"}, {14, "address"}}));
    EXPECT_THAT(*measuringFont(fontOf(letters())), Not(HasSubstr("R\0e\0s\0"s)));
    const Tables nameless = tablesOf(measuringFont(changed("name", namesOf({{1, "Name"}}))).value());
    EXPECT_EQ(nameless.at("name"), namesOf({}));
}

TEST(MeasuringFont, IsItsOwnMeasuringFont) {
    const auto font = measuringFont(fontOf(letters()));
    EXPECT_EQ(measuringFont(*font), font);
}

TEST(MeasuringFont, IsNoneOfOtherFiles) {
    for (const std::string& file : {""s, "wOF2 and so on"s, "\0\1\0\0"s, "OTTO"s + fontOf(letters()).substr(4, 8)}) {
        EXPECT_FALSE(measuringFont(file));
    }
}

TEST(MeasuringFont, IsNoneWhereATableIsMissing) {
    for (const char* tag : {"cmap", "glyf", "head", "hhea", "hmtx", "loca", "maxp", "name"}) {
        std::string font = fontOf(letters());
        EXPECT_FALSE(measuringFont(font.replace(font.find(tag), 4, "none"))) << tag;
    }
}

TEST(MeasuringFont, IsNoneOfOutlinesThatAreNotWhereTheyShouldBe) {
    const auto places = [](std::size_t second, std::size_t last) {
        return shortBytes(0) + shortBytes(second) + shortBytes(second) + shortBytes(second) + shortBytes(last);
    };
    const std::size_t end = (SIMPLE + COMPOSITE + COMPOSITE).size() / 2;
    EXPECT_TRUE(measuringFont(changed("loca", places(5, end))));
    EXPECT_FALSE(measuringFont(changed("loca", places(4, end)))) << "half a box";
    EXPECT_FALSE(measuringFont(changed("loca", places(5, end + 1)))) << "beyond the end";
    EXPECT_FALSE(measuringFont(changed("loca", places(12, 5)))) << "backwards";
    EXPECT_FALSE(measuringFont(changed("loca", places(5, end).substr(0, 8)))) << "too few places";
    EXPECT_FALSE(measuringFont(changed("maxp", longBytes(0x10000) + shortBytes(0)))) << "no letters";
}

TEST(MeasuringFont, IsNoneOfHeadsThatNobodyKnows) {
    EXPECT_FALSE(measuringFont(changed("head", headTable(false) + "\0\0"s)));
    EXPECT_FALSE(measuringFont(changed("head", headTable(false).replace(12, 4, "none"))));
    EXPECT_FALSE(measuringFont(changed("head", headTable(false).replace(50, 2, shortBytes(2)))));
    EXPECT_FALSE(measuringFont(changed("hhea", std::string(36, '\0')))) << "no advances";
    EXPECT_FALSE(measuringFont(changed("hmtx", "adv"))) << "advances of a part";
    EXPECT_FALSE(measuringFont(changed("name", namesOf({{13, "free"}}).substr(0, 20)))) << "half a text";
    EXPECT_FALSE(measuringFont(changed("name", shortBytes(1) + namesOf({}).substr(2)))) << "with languages of its own";
}

/// Texts may lie on top of each other, and then need more room one after the other than a font has.
TEST(MeasuringFont, IsNoneOfTextsThatAreTooLong) {
    const std::string text(0xFFFF, 'a');
    std::string names = namesOf({{13, ""}, {14, ""}}) + text;
    names.replace(14, 2, shortBytes(text.size()));
    EXPECT_TRUE(measuringFont(changed("name", names)));
    names.replace(26, 2, shortBytes(text.size()));
    EXPECT_FALSE(measuringFont(changed("name", names)));
}

TEST(MeasuringFont, FontMayBeCutOrSpoiltAnywhere) {
    const std::string whole = fontOf(letters());
    for (std::size_t length = 0; length < whole.size(); ++length) {
        measuringFont(whole.substr(0, length));
        for (const char byte : {'\0', '\1', '\x7f', '\x80', '\xff'}) {
            std::string spoilt = whole;
            spoilt[length] = byte;
            const auto font = measuringFont(spoilt);
            EXPECT_TRUE(!font || readTables(*font)) << length;
        }
    }
}

TEST(WrittenFont, TellsWhetherItIsWhole) {
    const std::string font = fontOf(letters());
    EXPECT_EQ(sumOf(font), 0xB1B0AFBAU);
    std::vector<std::string> tags;
    for (std::size_t row = 12; tags.size() < shortAt(font, 4); row += 16) {
        tags.push_back(font.substr(row, 4));
        const std::size_t place = longAt(font, row + 8);
        std::string table = font.substr(place, longAt(font, row + 12));
        if (tags.back() == "head") {
            table.replace(8, 4, longBytes(0));
        }
        EXPECT_EQ(longAt(font, row + 4), sumOf(table)) << tags.back();
        EXPECT_EQ(place % 4, 0U);
    }
    EXPECT_THAT(tags, ElementsAre("GPOS", "GSUB", "OS/2", "cmap", "fpgm", "glyf", "head", "hhea", "hmtx", "loca",
                                  "maxp", "name", "post"));
    // 13 tables: a search halves the first 8, and 5 are left over, of 16 bytes each.
    EXPECT_EQ(font.substr(0, 12), "\0\1\0\0"s + shortBytes(13) + shortBytes(128) + shortBytes(3) + shortBytes(80));
}

TEST(WrittenFont, IsReadAsItWasWritten) {
    Tables read = tablesOf(fontOf(letters()));
    Tables written = letters();
    read.at("head").replace(8, 4, "");
    written.at("head").replace(8, 4, "");
    EXPECT_EQ(read, written);
}

TEST(TablesOfAFont, AreNoneWhereTwoHaveOneTag) {
    std::string font = fontOf(letters());
    font.replace(12, 4, "GSUB");
    EXPECT_FALSE(readTables(font));
}

TEST(TablesOfAFont, AreNoneWhereOneIsCut) {
    const std::string font = fontOf(letters());
    EXPECT_TRUE(readTables(font));
    EXPECT_FALSE(readTables(font.substr(0, font.size() - 4)));
}

/// A working directory with the two fonts that pages load.
class PackedMeasuredFont : public pozhil::test::WorkingFolder {
protected:
    void SetUp() override {
        WorkingFolder::SetUp();
        write(MEASURED_FONT, fontOf(letters()));
        write(DRAWN_FONT, "any");
    }

    static bool isReplaced(const std::string& output = OUTPUT) { return packedMeasuredFont(output).has_value(); }

    static constexpr const char* DRAWN_FONT = "assets/font/Tamil-Regular.ttf";
    static constexpr const char* OUTPUT = R"(nvgCreateFont(vg, "tamil_font", "assets/font/Coiny-Regular.ttf"))";
};

TEST_F(PackedMeasuredFont, IsTheMeasuringFont) {
    EXPECT_EQ(packedMeasuredFont(OUTPUT), measuringFont(fontOf(letters())));
    EXPECT_TRUE(isReplaced());
}

TEST_F(PackedMeasuredFont, IsAsItIsWhereTheProgramNamesIt) {
    for (const char* path :
         {"assets/font/Coiny-Regular.ttf", "./assets//font/Coiny-Regular.ttf", "Coiny-Regular.ttf"}) {
        EXPECT_FALSE(isReplaced(OUTPUT + "drawFixedText(\""s + path + "\")")) << path;
    }
    EXPECT_TRUE(isReplaced(OUTPUT + "drawFixedText(\"assets/font/Coiny.ttf\")"s));
    EXPECT_FALSE(isReplaced("measures with nothing"));
}

TEST_F(PackedMeasuredFont, IsAsItIsWherePagesDrawWithIt) {
    fs::remove(DRAWN_FONT);
    EXPECT_FALSE(isReplaced());
    fs::create_directory(DRAWN_FONT);
    EXPECT_FALSE(isReplaced());
}

TEST_F(PackedMeasuredFont, IsAsItIsWhereItIsNoFont) {
    write(MEASURED_FONT, "wOF2");
    EXPECT_FALSE(isReplaced());
    fs::remove(MEASURED_FONT);
    EXPECT_FALSE(isReplaced());
}

TEST_F(PackedMeasuredFont, IsAsItIsWhereLinksLeadElsewhere) {
    for (const char* path : {MEASURED_FONT, DRAWN_FONT, "assets"}) {
        fs::rename(path, "elsewhere");
        fs::create_symlink(fs::absolute("elsewhere"), path);
        EXPECT_FALSE(isReplaced()) << path;
        fs::remove(path);
        fs::rename("elsewhere", path);
        EXPECT_TRUE(isReplaced()) << path;
    }
}

TEST_F(PackedMeasuredFont, IsToldOfAmongLicences) {
    const std::string note = "Changed: this site holds the sizes of its letters alone";
    const std::string text = licencesOf({"assets"}, MEASURED_FONT);
    EXPECT_THAT(text,
                HasSubstr("assets/font/Coiny-Regular.ttf\n    Reserved Regular\n    (c)\n    free\n    address\n"));
    const std::size_t place = text.find(note);
    EXPECT_LT(place, text.find(DRAWN_FONT));
    EXPECT_EQ(text.find(note, place + 1), std::string::npos);
    EXPECT_THAT(licencesOf({"assets"}), Not(HasSubstr(note)));
}

} // namespace
