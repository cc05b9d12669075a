#include "driver/web/web_assets.h"
#include "support/generating.h"
#include "support/working_folder.h"

#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>

using namespace pozhil;
using namespace pozhil::test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

class PackingArguments : public WorkingFolder {};

PropertyMap property(const std::string& key, ExpressionPtr value) {
    PropertyMap properties;
    properties.emplace(key, std::move(value));
    return properties;
}

std::unique_ptr<WidgetNode> widget(const std::string& kind, PropertyMap properties, StatementList children = {}) {
    return make<WidgetNode>(kind, std::move(properties), std::move(children), சீரமைப்பு_வகை::மையம்);
}

std::unique_ptr<WidgetNode> image(const std::string& path) {
    return widget("படம்", property("பாதை", text(path)));
}

StatementPtr header(PropertyMap properties) {
    return make<HeaderNode>("தலைமை", std::move(properties), StatementList(), ScreenConfig());
}

StatementPtr application(StatementPtr head, StatementPtr body = nullptr) {
    return make<WebAppNode>("செயலி", nullptr, std::move(head), std::move(body), nullptr);
}

template <class... Statements> Program programOf(Statements&&... statements) {
    Program program;
    (program.statements.push_back(std::forward<Statements>(statements)), ...);
    return program;
}

std::string titleOf(const Program& program) {
    return readApplication(program).title;
}

std::string headerValue(ExpressionPtr value) {
    return titleOf(programOf(application(header(property("இணைய_தலைப்பு", std::move(value))))));
}

template <class... Statements> std::set<std::string> pathsOf(Statements&&... statements) {
    return readApplication(programOf(std::forward<Statements>(statements)...)).files;
}

/// The arguments for an application that shows these images.
template <class... Paths> std::vector<std::string> packed(const Paths&... paths) {
    auto body = make<ColumnNode>(listOf(StatementPtr(image(paths))...), சீரமைப்பு_வகை::மையம்);
    return packingArguments(readApplication(programOf(application(header({}), std::move(body)))));
}

TEST(HeaderProperty, IsTheTextOfAStringOrAColour) {
    EXPECT_EQ(headerValue(text("மதிப்பு")), "மதிப்பு");
    EXPECT_EQ(headerValue(make<ColorExpression>("#12abEF", true)), "#12abEF");
    EXPECT_EQ(headerValue(make<ColorExpression>("சிவப்பு", false)), "சிவப்பு");
}

TEST(HeaderProperty, OfAnyOtherKindIsNone) {
    EXPECT_EQ(headerValue(number("5")), "");
    EXPECT_EQ(headerValue(variable("பெயர்")), "");
    EXPECT_EQ(headerValue(member(variable("நிறம்"), "சிவப்பு")), "");
}

TEST(HeaderProperty, IsThatOfTheFirstApplicationThatHasOne) {
    const auto with = [](const std::string& value) {
        return application(header(property("இணைய_தலைப்பு", text(value))));
    };
    const Program program =
        programOf(assignment("அ", number("1")), StatementPtr(), application(nullptr), application(header({})),
                  application(header(property("இணைய_தலைப்பு", number("5")))), with("முதல்"), with("இரண்டு"));
    EXPECT_EQ(titleOf(program), "முதல்");
    EXPECT_EQ(readApplication(program).icon, "");
    EXPECT_EQ(titleOf({}), "");
}

TEST(HeaderProperty, EmptyStringIsAValue) {
    const Program program = programOf(application(header(property("இணைய_தலைப்பு", text("")))),
                                      application(header(property("இணைய_தலைப்பு", text("இரண்டு")))));
    EXPECT_EQ(titleOf(program), "");
}

TEST(HeaderProperty, EachIsReadFromItsOwnWord) {
    PropertyMap all = property("இணைய_தலைப்பு", text("தலைப்பு"));
    all["சின்னம்"] = text("அ.svg");
    all["பின்னணி"] = make<ColorExpression>("#123456", true);
    all["பின்னணிகாணொளி"] = text("அ.mp4");
    const Program program = programOf(application(header(std::move(all))));
    const Application read = readApplication(program);
    EXPECT_EQ(read.title, "தலைப்பு");
    EXPECT_EQ(read.icon, "அ.svg");
    EXPECT_EQ(read.background, "#123456");
    EXPECT_EQ(read.video, "அ.mp4");
    EXPECT_EQ(read.windowName, "செயலி");
    EXPECT_EQ(read.pages.size(), 1U);
}

TEST(HeaderProperty, HeaderMustBeAWidget) {
    EXPECT_EQ(titleOf(programOf(application(make<PassStatement>()))), "");
}

TEST(ImagePaths, AreThoseOfImagesIconsAndFonts) {
    auto label = widget("உரை", property("சின்னம்", text("சின்னம்.svg")));
    label->style.font = "எழுத்து.ttf";
    auto column =
        make<ColumnNode>(listOf(StatementPtr(image("படம்.png")), StatementPtr(std::move(label))), சீரமைப்பு_வகை::மையம்);
    EXPECT_THAT(pathsOf(std::move(column)), ElementsAre("எழுத்து.ttf", "சின்னம்.svg", "படம்.png"));
}

TEST(ImagePaths, OnlyAnImageHasAPath) {
    EXPECT_THAT(pathsOf(widget("உரை", property("பாதை", text("படம்.png")))), IsEmpty());
    EXPECT_THAT(pathsOf(widget("படம்", property("பாதை", variable("பெயர்")))), IsEmpty());
    EXPECT_THAT(pathsOf(widget("உரை", property("சின்னம்", variable("பெயர்")))), IsEmpty());
}

TEST(ImagePaths, AreFoundInHeaderAndBodyAtAnyDepth) {
    auto inner = make<RowNode>(listOf(StatementPtr(image("உள்.png"))), சீரமைப்பு_வகை::மையம்);
    auto outer = make<ColumnNode>(listOf(StatementPtr(), StatementPtr(std::move(inner))), சீரமைப்பு_வகை::மையம்);
    auto node = application(header(property("சின்னம்", text("தலை.svg"))), std::move(outer));
    EXPECT_THAT(pathsOf(std::move(node)), UnorderedElementsAre("தலை.svg", "உள்.png"));
}

TEST(ImagePaths, RepeatedOnesCountOnce) {
    auto row = make<RowNode>(listOf(StatementPtr(image("a.png")), StatementPtr(image("a.png"))), சீரமைப்பு_வகை::மையம்);
    EXPECT_THAT(pathsOf(std::move(row)), ElementsAre("a.png"));
}

TEST(ImagePaths, LogicIsNotSearched) {
    auto block = make<BlockStatement>();
    block->statements.push_back(image("a.png"));
    EXPECT_THAT(pathsOf(StatementPtr()), IsEmpty());
    EXPECT_THAT(pathsOf(std::move(block)), IsEmpty());
    auto logic = make<BlockStatement>();
    logic->statements.push_back(image("a.png"));
    EXPECT_THAT(pathsOf(make<WebAppNode>("செயலி", nullptr, nullptr, nullptr, std::move(logic))), IsEmpty());
}

TEST_F(PackingArguments, AreNoneWithoutFiles) {
    EXPECT_THAT(packingArguments(Application()), IsEmpty());
    EXPECT_THAT(packed("இல்லை.png"), IsEmpty());
}

TEST_F(PackingArguments, AreThereExactlyIfThereIsDataToFetch) {
    Application application;
    EXPECT_FALSE(hasFilesToPack(application));
    application.files = {"இல்லை.png", "assets/a.png", "a.txt"};
    application.video = "இல்லை.mp4";
    write("a.txt", "");
    EXPECT_FALSE(hasFilesToPack(application));
    write("காணொளி.mp4", "");
    application.video = "காணொளி.mp4";
    EXPECT_TRUE(hasFilesToPack(application));
    application.video = "";
    write("b.png", "");
    application.files.insert("b.png");
    EXPECT_TRUE(hasFilesToPack(application));
    application.files.clear();
    EXPECT_FALSE(hasFilesToPack(application));
    write("assets/a.txt", "");
    EXPECT_TRUE(hasFilesToPack(application));
}

TEST_F(PackingArguments, AssetDirectoryComesFirstThenFilesInOrder) {
    for (const char* file : {"assets/a.png", "b.png", "a.ttf", "ஆ.gif"}) {
        write(file, "");
    }
    EXPECT_THAT(packed("b.png", "ஆ.gif", "assets/a.png", "a.ttf", "b.png"),
                ElementsAre("--preload-file", "assets", "--preload-file", "a.ttf", "--preload-file", "b.png",
                            "--preload-file", "ஆ.gif"));
}

TEST_F(PackingArguments, FilesBelowAssetsHaveNoneOfTheirOwn) {
    EXPECT_THAT(packed("assets/a.png"), IsEmpty());
    write("assetsb/a.png", "");
    EXPECT_THAT(packed("assets/a.png", "assetsb/a.png"), ElementsAre("--preload-file", "assetsb/a.png"));
}

TEST_F(PackingArguments, OnlyCertainKindsOfFilesArePacked) {
    for (const char* ending : {".png", ".jpg", ".jpeg", ".mp4", ".gif", ".ttf", ".otf", ".woff", ".woff2"}) {
        const std::string file = std::string("a") + ending;
        write(file, "");
        EXPECT_THAT(packed(file), ElementsAre("--preload-file", file));
    }
    for (const char* file : {"a.svg", "a.PNG", "a.webp", "a.woff3", "png", "a.png.txt"}) {
        write(file, "");
        EXPECT_THAT(packed(file), IsEmpty()) << file;
    }
}

TEST_F(PackingArguments, PathsAreCutAtBlanksAndNowhereElse) {
    write("a  b.png", "");
    write("'$(c)\";d.png", "");
    EXPECT_THAT(packed("a  b.png"), ElementsAre("--preload-file", "a", "b.png"));
    EXPECT_THAT(packed("'$(c)\";d.png"), ElementsAre("--preload-file", "'$(c)\";d.png"));
}

TEST_F(PackingArguments, VideoComesLastWhateverItsNameAndPlace) {
    write("assets/காணொளி.webm", "");
    write("z.png", "");
    const Program program =
        programOf(application(header(property("பின்னணிகாணொளி", text("assets/காணொளி.webm"))), image("z.png")));
    EXPECT_THAT(
        packingArguments(readApplication(program)),
        ElementsAre("--preload-file", "assets", "--preload-file", "z.png", "--preload-file", "assets/காணொளி.webm"));
}

TEST_F(PackingArguments, MissingVideoIsTold) {
    const Program program = programOf(application(header(property("பின்னணிகாணொளி", text("இல்லை.mp4")))));
    testing::internal::CaptureStderr();
    EXPECT_THAT(packingArguments(readApplication(program)), IsEmpty());
    EXPECT_EQ(
        testing::internal::GetCapturedStderr(),
        "\n⚠️ எச்சரிக்கை: இல்லை.mp4 என்ற கோப்பு காணப்படவில்லை! \n");
}

} // namespace
