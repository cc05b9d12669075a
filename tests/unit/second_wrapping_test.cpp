// What pages of the second edition emit for texts that wrap, and for texts that don't shrink with the window.

#include "driver/second_translation.h"

#include <gmock/gmock.h>

#include <string>

using namespace pozhil;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

/// What is emitted for the pages of an application.
std::string pagesOf(const std::string& body, const std::string& header = "") {
    const SecondTranslation translation =
        translateSecondEdition(makeSource("அ.பொழில்", "ஃ பொழில் 2\nவலைதளம் தளம்(\n    தலைமை(" + header + ")\n    குமரி(" +
                                                         body + ")\n    வரையறை(\n        அ = [1]\n    )\n)\n"),
                               {});
    EXPECT_THAT(translation.faults, IsEmpty());
    return translation.output.text.substr(translation.output.runtimeLength);
}

const std::string WRAPPED = "உரை(\"ஆ\", மடி: மெய்)";

TEST(WrappedTexts, AreAsLargeAsTheirLinesInTheRoomThatIsOffered) {
    const std::string pages = pagesOf("நெடுவரிசை(அகலம்: 200)(" + WRAPPED + ", உரை(\"இ\"))");
    EXPECT_THAT(pages, HasSubstr("const PozhilRoom room(responsiveW(200.0f, winWidth, 0.0f), -1.0f);"));
    EXPECT_THAT(pages, HasSubstr("pozhil_in_room(responsiveW(200.0f, winWidth, 0.0f), -1.0f, [&] { return "
                                 "(page::measured([&] { return page::wrapped(std::string("));
    EXPECT_THAT(
        pages,
        HasSubstr("pozhil_room_width, false, responsiveTextSize(16.0f, winWidth), \"normal\", \"\").height; })"));
}

TEST(WrappedTexts, HaveAWidthOfTheirOwnIfTheSourceGivesOne) {
    EXPECT_THAT(pagesOf("உரை(\"ஆ\", மடி: மெய், அகலம்: 80)"), HasSubstr(", 80.0f, true, responsiveTextSize("));
    EXPECT_THAT(pagesOf("உரை(\"ஆ\", மடி: மெய், அகலம்: 50%)"), HasSubstr(", (pozhil_room_width * 0.5"));
}

TEST(WrappedTexts, AreOfferedWhatIsLeftInARow) {
    const std::string box = "பெட்டி(அகலம்: 40, உயரம்: 40)";
    EXPECT_THAT(pagesOf("கிடைவரிசை(இடைவெளி: 5)(" + box + ", விரிவாக்கம்(" + WRAPPED + "), வெற்றிடம்())"),
                HasSubstr("pozhil_share_of_room(pozhil_room_width, 45.0f, 2.0f)"));
    EXPECT_THAT(pagesOf("கிடைவரிசை(இடைவெளி: 5)(" + box + ", " + WRAPPED + ", " + WRAPPED + ")"),
                HasSubstr("pozhil_share_of_room(pozhil_room_width, 50.0f, 2.0f)"));
}

TEST(WrappedTexts, ShareARowAlsoAsElements) {
    EXPECT_THAT(pagesOf("கிடைவரிசை(ஒவ்வொன்றும்(பட்டியல்: அ, உருப்படி: ஈ)(விரிவாக்கம்(உரை(ஈ, மடி: மெய்))), பெட்டி(அகலம்: 40))"),
                HasSubstr("pozhil_share_of_room(pozhil_room_width, 40.0f, ((page::measured([&] { return page::count("));
    EXPECT_THAT(pagesOf("கிடைவரிசை(ஒவ்வொன்றும்(பட்டியல்: அ, உருப்படி: ஈ)(உரை(ஈ, மடி: மெய்)), பெட்டி(அகலம்: 40))"),
                HasSubstr("pozhil_share_of_room(pozhil_room_width, 40.0f, 1.0f)"));
}

TEST(WrappedTexts, AloneMakeWidgetsTellTheirRoom) {
    EXPECT_THAT(
        pagesOf("நெடுவரிசை(பெட்டி(உரை(\"அ\", மடி: பொய்)), உரை(\"ஆ\"))"),
        AllOf(Not(HasSubstr("PozhilRoom")), Not(HasSubstr("pozhil_in_room")), Not(HasSubstr("page::wrapped("))));
}

TEST(WrappedTexts, InElementsAreMeasuredForEachOfThem) {
    const std::string pages =
        pagesOf("பட்டியல்_காட்சி(ஒவ்வொன்றும்(பட்டியல்: அ, உருப்படி: ஈ)(உள்_இவெ(அளவு: 10)(உரை(ஈ, மடி: மெய்))))");
    EXPECT_THAT(pages, HasSubstr("page::sum("));
    EXPECT_THAT(pages, Not(HasSubstr("page::eachInWindow(")));
    EXPECT_THAT(pages, HasSubstr("pozhil_in_room(pozhil_room_width - 20.0f, pozhil_imposed_width, [&] { return"));
}

TEST(TextScale, IsThatOfTheHeader) {
    EXPECT_THAT(pagesOf("உரை(\"அ\")", "எழுத்தளவு: \"நிலையான\""), HasSubstr("page::leastTextScale = 1.0f;"));
    EXPECT_THAT(pagesOf("உரை(\"அ\")", "எழுத்தளவு: \"மாறும்\""), Not(HasSubstr("page::leastTextScale = ")));
    EXPECT_THAT(pagesOf("உரை(\"அ\")"), Not(HasSubstr("page::leastTextScale = ")));
}

} // namespace
