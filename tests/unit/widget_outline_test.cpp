#include "driver/web/outline_json.h"
#include "generator/web/page/widget_outline.h"
#include "support/parsing.h"

#include <string>

#include <gmock/gmock.h>

using namespace pozhil;
using namespace pozhil::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::map<std::string, std::vector<OutlinedWidget>> outlineOfPage(const std::string& body,
                                                                 const std::string& header = "") {
    const Program program = parseText("வலைதளம் (தலைமை(" + header + ") குமரி(\n" + body + ") வரையறை())");
    return outlineOf(readApplication(program));
}

/// Kind and use of each widget of a page without a name.
std::vector<std::string> uses(const std::string& body) {
    std::vector<std::string> list;
    const auto pages = outlineOfPage(body);
    for (const OutlinedWidget& widget : pages.at("home")) {
        const char* use = widget.use == WidgetUse::Link ? " link" : widget.use == WidgetUse::Press ? " press" : "";
        list.push_back(widget.kind + use);
    }
    return list;
}

TEST(WidgetOutline, ListsWhatShapesDontTellInTheOrderOfDrawing) {
    EXPECT_THAT(
        uses("நெடுவரிசை("
             "பெட்டி(உரை(\"அ\"), பெட்டி(அழுத்தினால்: () => கூட்டு_செய்())), "
             "பட்டியல்_உருப்படி(தலைப்பு: பெட்டி(), முன்னணி: பொத்தான்(உரை: \"ஆ\"), அழுத்தினால்: () => கூட்டு_செய்()), "
             "தேர்வுபெட்டி(உரை(\"இ\")), அளவி())"),
        ElementsAre("பெட்டி", "பெட்டி press", "பட்டியல்_உருப்படி press", "பொத்தான் press", "பெட்டி", "தேர்வுபெட்டி", "அளவி"));
}

TEST(WidgetOutline, WhatOnlyLeadsToAPageIsALink) {
    EXPECT_THAT(uses("நெடுவரிசை("
                     "பெட்டி(அழுத்தினால்: () => செல்க(\"அ\")), உரைபொத்தான்(உரை: \"ஆ\", அழுத்தினால்: செல்க(\"அ\")), "
                     "உரைபொத்தான்(உரை: \"இ\", அழுத்தினால்: () => கூட்டு_செய்()), உரைபொத்தான்(உரை: \"ஈ\"))"),
                ElementsAre("பெட்டி link", "உரைபொத்தான் link", "உரைபொத்தான் press", "உரைபொத்தான் press"));
}

TEST(WidgetOutline, DialogsComeLastAndHiddenWidgetsNameTheirVariables) {
    const auto widgets = outlineOfPage("நெடுவரிசை("
                                       "எச்சரிக்கை(காட்சி_பெயர்: \"உறுதி\")(நெடுவரிசை(பெட்டி())), "
                                       "பெட்டி(காட்சி_பெயர்: \"வெளி\", பெட்டி(காட்சி_பெயர்: \"உள்\")))")["home"];
    ASSERT_EQ(widgets.size(), 3U);
    EXPECT_THAT(widgets[0].variables.unlessHidden, ElementsAre("வெளி"));
    EXPECT_THAT(widgets[1].variables.unlessHidden, ElementsAre("வெளி", "உள்"));
    EXPECT_THAT(widgets[1].variables.onceShown, IsEmpty());
    EXPECT_THAT(widgets[2].variables.onceShown, ElementsAre("உறுதி"));
}

TEST(WidgetOutline, TheRangeOfASliderIsToldWhereItIsConstant) {
    const auto widgets = outlineOfPage("நெடுவரிசை(அளவி(), அளவி(குறைந்தபட்சம்: 5, அதிகபட்சம்: வரை_எண்))")["home"];
    ASSERT_EQ(widgets.size(), 2U);
    EXPECT_EQ(widgets[0].least, 0.0F);
    EXPECT_EQ(widgets[0].largest, 100.0F);
    EXPECT_EQ(widgets[1].least, 5.0F);
    EXPECT_EQ(widgets[1].largest, std::nullopt);
}

TEST(WidgetOutline, EachPageHasItsOwn) {
    const auto pages = outlineOfPage("பெட்டி()", "பக்கம்: \"அ\"");
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_EQ(pages.begin()->first, "அ");
}

TEST(WidgetOutline, APageWithinAPageIsThereIfItHasItsName) {
    EXPECT_THAT(uses("நெடுவரிசை(அளவி(), பக்கம்(பக்கம்: \"வேறு\", பொத்தான்(உரை: \"அ\")), பக்கம்(பெட்டி()))"),
                ElementsAre("அளவி", "பெட்டி"));
    const auto pages = outlineOfPage("பக்கம்(பக்கம்: \"ஆ\", நெடுவரிசை(பெட்டி(), பெட்டி()))", "பக்கம்: \"ஆ\"");
    EXPECT_EQ(pages.at("ஆ").size(), 2U);
}

TEST(WidgetOutline, APictureIsCalledWhatItShowsElseWhatItsFileIsCalled) {
    const auto widgets = outlineOfPage("நெடுவரிசை("
                                       "படம்(பாதை: \"assets/நம்_ஊர்.jpg\"), "
                                       "படம்(பாதை: \"அ.png\", விளக்கம்: \"தஞ்சைக் கோயில்\"), "
                                       "படம்(பாதை: \"அ.b/இ\", விளக்கம்: விளக்கிய_உரை), படம்(பாதை: \"ஈ.svg\", விளக்கம்: \"\"), "
                                       "வட்டபடம்(படம்(பாதை: \"கயல்.png\")), வட்டபடம்(உரை(\"க\")), படம்())")["home"];
    std::vector<std::string> names;
    for (const OutlinedWidget& widget : widgets) {
        EXPECT_EQ(widget.kind, "படம்");
        names.push_back(widget.file + ": " + widget.name);
    }
    EXPECT_THAT(names, ElementsAre("assets/நம்_ஊர்.jpg: நம் ஊர்", "அ.png: தஞ்சைக் கோயில்", "அ.b/இ: இ",
                                   "ஈ.svg: ", "கயல்.png: கயல்", "logo.png: logo"));
}

TEST(WidgetOutline, PicturesOfABarBelongToItsLabels) {
    EXPECT_THAT(uses("அடிப்பகுதி(அடி_உருப்படி(படம்(பாதை: \"அ.png\"), உரை(\"அ\")))"), IsEmpty());
}

TEST(WidgetOutline, ThePictureBehindAPageComesFirstAndOnlyAdorns) {
    const auto widgets = outlineOfPage("படம்(பாதை: \"அ.png\")", "பின்னணிபடம்: \"அ.png\"")["home"];
    ASSERT_EQ(widgets.size(), 2U);
    EXPECT_EQ(widgets[0].file + ": " + widgets[0].name, "அ.png: ");
    EXPECT_EQ(widgets[1].name, "அ");
}

TEST(OutlineJson, TellsOnlyWhatThereIsToTell) {
    EXPECT_EQ(outlineJson({}), "{}");
    OutlinedWidget slider = {"அளவி", WidgetUse::None, 0.5F, 100.0F};
    OutlinedWidget box = {"பெட்டி", WidgetUse::Link};
    box.variables = {{"அ", "\"ஆ\""}, {"இ"}};
    OutlinedWidget picture = {"படம்"};
    picture.file = "அ.png";
    EXPECT_EQ(outlineJson({{"home", {slider, box, picture}}}),
              "{\"home\":[\n"
              "{\"kind\":\"அளவி\",\"least\":0.5,\"largest\":100},\n"
              "{\"kind\":\"பெட்டி\",\"use\":\"link\",\"unlessHidden\":[\"அ\",\"\\\"ஆ\\\"\"],\"onceShown\":[\"இ\"]},\n"
              "{\"kind\":\"படம்\",\"file\":\"அ.png\",\"name\":\"\"}]}");
}

} // namespace
