#include "driver/web/page_template.h"
#include "support/working_folder.h"

#include <numeric>
#include <string>
#include <vector>

#include <gmock/gmock.h>

using namespace pozhil;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

const std::string TAG = R"(<script async type="text/javascript" src="index.js"></script>)";

class PageTemplate : public test::WorkingFolder {};
class EmbeddedIcon : public test::WorkingFolder {};

PageValues someValues() {
    PageValues values;
    values.title = "என் தளம்";
    values.background = "#123456";
    values.version = 7;
    return values;
}

std::string filled(const std::string& page) {
    return fillTemplate(page, someValues());
}

TEST_F(PageTemplate, TitleIconAndScriptAreFilledInOnce) {
    EXPECT_EQ(filled("{{{ இணைய_தலைப்பு }}}|{{{ இணைய_தலைப்பு }}}"), "என் தளம்|{{{ இணைய_தலைப்பு }}}");
    EXPECT_EQ(filled("{{{ சின்னம் }}}|{{{ சின்னம் }}}"), "file-icon.png|{{{ சின்னம் }}}");
    EXPECT_EQ(filled("{{{ SCRIPT }}}|{{{ SCRIPT }}}"), TAG + "|{{{ SCRIPT }}}");
}

TEST_F(PageTemplate, BackgroundIsFilledInEverywhere) {
    EXPECT_EQ(filled("{{{ பின்னணி_நிறம் }}}{{{ பின்னணி_நிறம் }}} {{{ பின்னணி_நிறம் }}}"), "#123456#123456 #123456");
}

TEST_F(PageTemplate, BackgroundThatNamesItsOwnPlaceholderIsFilledInOnce) {
    PageValues values;
    values.background = "{{{ பின்னணி_நிறம் }}}";
    EXPECT_EQ(fillTemplate("a{{{ பின்னணி_நிறம் }}}b", values), "a{{{ பின்னணி_நிறம் }}}b");
}

TEST_F(PageTemplate, WhatIsToldOfWidgetsEndsNoScript) {
    PageValues values;
    values.widgets = R"({"</script>":[]})";
    EXPECT_EQ(fillTemplate("{{{ விட்ஜெட்டுகள் }}}", values), R"({"\u003c/script>":[]})");
    EXPECT_EQ(fillTemplate("{{{ விட்ஜெட்டுகள் }}}", {}), "{}");
}

TEST_F(PageTemplate, DescriptionIsTheTitleAsAnAttribute) {
    PageValues values;
    values.title = R"(அ & "ஆ" <இ>)";
    EXPECT_EQ(fillTemplate("{{{ விளக்கம் }}}|{{{ இணைய_தலைப்பு }}}", values),
              R"(அ &amp; &quot;ஆ&quot; &lt;இ>|அ & "ஆ" <இ>)");
    EXPECT_EQ(fillTemplate("{{{ விளக்கம் }}}", {}), "பொழில் தளம்");
}

TEST_F(PageTemplate, DataIsFetchedEarlyIfThereIsAny) {
    PageValues values;
    EXPECT_EQ(fillTemplate("{{{ தரவு_முன்னேற்றம் }}}", values), "");
    values.hasData = true;
    EXPECT_EQ(fillTemplate("{{{ தரவு_முன்னேற்றம் }}}", values),
              R"(<link rel="preload" href="index.data" as="fetch" crossorigin>)");
}

TEST_F(PageTemplate, PlaceholdersAreFoundByEveryLetter) {
    EXPECT_EQ(filled("{{{இணைய_தலைப்பு}}} {{ SCRIPT }}"), "{{{இணைய_தலைப்பு}}} {{ SCRIPT }}");
}

TEST_F(PageTemplate, WithoutValuesTheDefaultsStand) {
    EXPECT_EQ(fillTemplate("{{{ இணைய_தலைப்பு }}}|{{{ பின்னணி_நிறம் }}}|{{{ சின்னம் }}}", {}),
              "பொழில் தளம்|#ffffff|file-icon.png");
}

TEST_F(PageTemplate, WithoutPlaceholderTheScriptGoesBeforeTheEndOfTheBody) {
    const std::string page = filled("<body>a</body></body>");
    EXPECT_THAT(page, StartsWith("<body>a" + TAG + "\n"));
    EXPECT_THAT(page, EndsWith("</script>\n            </body></body>"));
}

TEST_F(PageTemplate, ReloadScriptHoldsTheVersion) {
    const std::string page = filled("{{{ SCRIPT }}}</body>");
    EXPECT_THAT(page, StartsWith(TAG + "\n        <script>\n            let currentVersion = 7;\n"
                                       "            setInterval(() => {"));
    EXPECT_THAT(page, HasSubstr("fetch('/version')"));
    EXPECT_THAT(page, HasSubstr("parseInt(text) > currentVersion"));
    EXPECT_THAT(page, HasSubstr("location.reload()"));
    EXPECT_THAT(page, HasSubstr("}, 500);"));
    EXPECT_THAT(page, EndsWith("        </script>\n            </body>"));
}

TEST_F(PageTemplate, WithoutPlaceholderAndEndOfTheBodyNothingIsAdded) {
    EXPECT_EQ(filled("<body>a"), "<body>a");
    EXPECT_EQ(filled("{{{ SCRIPT }}}"), TAG);
    EXPECT_EQ(filled(""), "");
}

TEST_F(PageTemplate, IsReadFromTheInstallation) {
    EXPECT_EQ(readTemplate("நிறுவல்"), std::nullopt);
    write("நிறுவல்/உள்ளடக்கம்/template.html", "a\r\nb");
    EXPECT_EQ(readTemplate("நிறுவல்"), "a\r\nb");
}

TEST_F(PageTemplate, ScriptsComeInTheirPlaces) {
    write("நிறுவல்/உள்ளடக்கம்/template.html",
          R"(a<script src="page/ஒன்று.js"></script>b<script src="page/two.js"></script>c<script src="x.js"></script>)");
    write("நிறுவல்/உள்ளடக்கம்/page/ஒன்று.js", "f('<script src=\"page/ஒன்று.js\"></scr');\n");
    EXPECT_EQ(readTemplate("நிறுவல்"), std::nullopt);
    write("நிறுவல்/உள்ளடக்கம்/page/two.js", "g();\n");
    EXPECT_EQ(readTemplate("நிறுவல்"), "a<script>\nf('<script src=\"page/ஒன்று.js\"></scr');\n</script>b<script>\ng();\n"
                                      "</script>c<script src=\"x.js\"></script>");
}

TEST_F(PageTemplate, FolderInItsPlaceCannotBeRead) {
    std::filesystem::create_directories("நிறுவல்/உள்ளடக்கம்/template.html");
    EXPECT_EQ(readTemplate("நிறுவல்"), std::nullopt);
}

TEST_F(PageTemplate, OfTheInstallationHasEveryPlaceholder) {
    const auto page = readTemplate(POZHIL_SOURCE_DIRECTORY);
    ASSERT_TRUE(page.has_value());
    for (const char* placeholder :
         {"{{{ இணைய_தலைப்பு }}}", "{{{ சின்னம் }}}", "{{{ பின்னணி_நிறம் }}}", "{{{ SCRIPT }}}", "</body>"}) {
        EXPECT_THAT(*page, HasSubstr(placeholder));
    }
    EXPECT_THAT(*page, HasSubstr(R"(<canvas id="canvas")"));
    EXPECT_THAT(*page, HasSubstr(R"(<html lang="ta">)"));
    EXPECT_THAT(filled(*page), Not(HasSubstr("{{{")));
    EXPECT_THAT(*page, Not(HasSubstr("src=\"page/")));
}

TEST_F(EmbeddedIcon, TypeFollowsTheEnding) {
    const std::vector<std::pair<std::string, std::string>> types = {
        {"a.svg", "image/svg+xml"}, {"a.jpg", "image/jpeg"}, {"a.jpeg", "image/jpeg"}, {"a.png", "image/png"},
        {"a.SVG", "image/png"},     {"a.ico", "image/png"},  {"svg", "image/png"},     {"படம்.svg", "image/svg+xml"},
    };
    for (const auto& [name, type] : types) {
        write(name, "Man");
        EXPECT_EQ(embeddedIcon(name), "data:" + type + ";base64,TWFu") << name;
    }
}

TEST_F(EmbeddedIcon, EmptyFileIsEmbeddedToo) {
    write("a.png", "");
    EXPECT_EQ(embeddedIcon("a.png"), "data:image/png;base64,");
}

TEST_F(EmbeddedIcon, WithoutReadableFileTheDefaultStands) {
    std::filesystem::create_directory("a.png");
    EXPECT_EQ(embeddedIcon(""), "file-icon.png");
    EXPECT_EQ(embeddedIcon("b.png"), "file-icon.png");
    EXPECT_EQ(embeddedIcon("a.png"), "file-icon.png");
}

TEST(Base64, PadsWhatIsNoWholeGroup) {
    EXPECT_EQ(base64_encode_logo(""), "");
    EXPECT_EQ(base64_encode_logo("M"), "TQ==");
    EXPECT_EQ(base64_encode_logo("Ma"), "TWE=");
    EXPECT_EQ(base64_encode_logo("Man"), "TWFu");
    EXPECT_EQ(base64_encode_logo("Many"), "TWFueQ==");
}

TEST(Base64, TakesEveryByte) {
    std::string bytes(256, '\0');
    std::iota(bytes.begin(), bytes.end(), '\0');
    EXPECT_EQ(base64_encode_logo(bytes),
              "AAECAwQFBgcICQoLDA0ODxAREhMUFRYXGBkaGxwdHh8gISIjJCUmJygpKissLS4vMDEyMzQ1Njc4OTo7PD0+P0BBQkNERUZHSElK"
              "S0xNTk9QUVJTVFVWV1hZWltcXV5fYGFiY2RlZmdoaWprbG1ub3BxcnN0dXZ3eHl6e3x9fn+AgYKDhIWGh4iJiouMjY6PkJGSk5SV"
              "lpeYmZqbnJ2en6ChoqOkpaanqKmqq6ytrq+wsbKztLW2t7i5uru8vb6/wMHCw8TFxsfIycrLzM3Oz9DR0tPU1dbX2Nna29zd3t/g"
              "4eLj5OXm5+jp6uvs7e7v8PHy8/T19vf4+fr7/P3+/w==");
    EXPECT_EQ(base64_encode_logo("\xff\xfe\xfb"), "//77");
}

} // namespace
