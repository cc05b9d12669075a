// Sizes of widgets before the page runs: every kind, and every rule that a kind's size follows.

#include "generator/web/measure/metrics.h"
#include "generator/web/page/widget_table.h"
#include "parser/parser.h"
#include "scanner/lexer.h"
#include "support/generating.h"

#include <gtest/gtest.h>
#include <initializer_list>

using namespace pozhil;
using test::make;
using test::number;
using test::text;

namespace {

using Size = std::pair<float, float>;
using Children = StatementList;

float constantOf(const Extent& extent) {
    EXPECT_TRUE(extent.isConstant()) << extent.text();
    return std::stof(extent.text());
}

Size sizeOf(const WidgetNode& widget) {
    Presence always;
    WidgetMetrics metrics(findWidgetKind, always);
    return {constantOf(metrics.calculateWidgetWidth(&widget)), constantOf(metrics.calculateWidgetHeight(&widget))};
}

struct Property {
    const char* name;
    ExpressionPtr value;
};

template <class... Properties> PropertyMap properties(Properties&&... entries) {
    PropertyMap map;
    (map.emplace(entries.name, std::move(entries.value)), ...);
    return map;
}

std::unique_ptr<WidgetNode> widget(const std::string& kind, PropertyMap entries = {}, Children children = {}) {
    return std::make_unique<WidgetNode>(kind, std::move(entries), std::move(children), சீரமைப்பு_வகை::மேல்_இடது);
}

ExpressionPtr percent(const std::string& value) {
    return make<PercentageLiteral>(value);
}

/// A picture of the given size, as a child whose size is known.
std::unique_ptr<WidgetNode> block(const std::string& width, const std::string& height) {
    return widget("படம்", properties(Property{"அகலம்", number(width)}, Property{"உயரம்", number(height)}));
}

/// Which properties say the size of a kind along an axis.
enum class Given { InStyleOrBeside, Beside, Nowhere };

struct Row {
    const char* kind;
    float width;
    Given widthGiven;
    float height;
    Given heightGiven;
};

constexpr Row ROWS[] = {
    {"உரைபொத்தான்", 80, Given::Nowhere, 40, Given::Nowhere},
    {"பொத்தான்", 80, Given::InStyleOrBeside, 40, Given::InStyleOrBeside},
    {"இவெ", 0, Given::Beside, 0, Given::Beside},
    {"வெற்றிடம்", 0, Given::Nowhere, 0, Given::Beside},
    {"உள்_இவெ", 20, Given::Nowhere, 20, Given::Nowhere},
    {"உள்_இவே", 20, Given::Nowhere, 20, Given::Nowhere},
    {"உரை", 10 * 0.65F * 16, Given::Nowhere, 16, Given::Nowhere},
    {"அளவி", 200, Given::InStyleOrBeside, 28, Given::InStyleOrBeside},
    {"கீழ்வரி", 200, Given::Beside, 40, Given::Nowhere},
    {"படம்", 100, Given::InStyleOrBeside, 100, Given::InStyleOrBeside},
    {"தேர்வுபெட்டி", 24, Given::InStyleOrBeside, 24, Given::InStyleOrBeside},
    {"வட்டத்தேர்வு", 250, Given::Nowhere, 30, Given::Nowhere},
    {"மாற்றி", 48, Given::Nowhere, 28, Given::Nowhere},
    {"நெகிழ்வு", 0, Given::Nowhere, 0, Given::Nowhere},
    {"விரிவாக்கம்", 0, Given::Nowhere, 0, Given::Nowhere},
    {"அடுக்கி", 0, Given::Nowhere, 0, Given::Nowhere},
    {"பெட்டி", 100, Given::InStyleOrBeside, 100, Given::InStyleOrBeside},
    {"தேடுபொறி", 350, Given::Beside, 50, Given::InStyleOrBeside},
    {"தேடல்_பட்டை", 350, Given::InStyleOrBeside, 50, Given::InStyleOrBeside},
    {"நெடுவரிசை", 0, Given::Nowhere, 0, Given::Nowhere},
    {"கிடைவரிசை", 0, Given::Nowhere, 0, Given::Nowhere},
    {"மடிப்பு", 0, Given::Nowhere, 2 * 10, Given::Nowhere},
    {"கட்டம்_காட்சி", 3 * 150 + 2 * 10, Given::InStyleOrBeside, 0, Given::Nowhere},
    {"பிரிப்பான்", 300, Given::InStyleOrBeside, 20, Given::InStyleOrBeside},
    {"அட்டை", 350, Given::InStyleOrBeside, 200, Given::InStyleOrBeside},
    {"எச்சரிக்கை", 400, Given::InStyleOrBeside, 280, Given::InStyleOrBeside},
    {"சுழல்_காட்டி", 40, Given::Nowhere, 40, Given::Nowhere},
    {"முன்னேற்றவரி", 200, Given::InStyleOrBeside, 6, Given::InStyleOrBeside},
    {"தகவல்பட்டை", 300, Given::InStyleOrBeside, 40, Given::InStyleOrBeside},
    {"உரைபெட்டி", 320, Given::InStyleOrBeside, 60, Given::InStyleOrBeside},
    {"பட்டியல்_உருப்படி", 200, Given::Beside, 56, Given::Beside},
    {"வட்டபடம்", 48, Given::InStyleOrBeside, 48, Given::InStyleOrBeside},
    {"தத்தல்", 0, Given::Nowhere, 50, Given::Nowhere},
    {"கடவுமறை", 0, Given::Nowhere, 0, Given::Nowhere},
    {"அடிப்பகுதி", 0, Given::Nowhere, 0, Given::Nowhere},
    {"பட்டியல்_காட்சி", 0, Given::Nowhere, 0, Given::Nowhere},
    {"அறியாதது", 0, Given::Nowhere, 0, Given::Nowhere},
};

/// The size along an axis by what is given in the style and beside it; the usual one where the kind doesn't look.
float expected(Given given, float usual, std::optional<float> style, std::optional<float> beside) {
    switch (given) {
    case Given::InStyleOrBeside: return style ? *style : beside.value_or(usual);
    case Given::Beside: return beside.value_or(usual);
    default: return usual;
    }
}

Size expectedSize(const Row& row, std::optional<float> style, std::optional<float> beside) {
    return {expected(row.widthGiven, row.width, style, beside), expected(row.heightGiven, row.height, style, beside)};
}

Size givenBy(const char* kind, ExpressionPtr styleWidth, ExpressionPtr styleHeight, ExpressionPtr width,
             ExpressionPtr height) {
    PropertyMap map;
    for (auto& [name, value] : {std::pair{"style_அகலம்", &styleWidth}, std::pair{"style_உயரம்", &styleHeight},
                                std::pair{"அகலம்", &width}, std::pair{"உயரம்", &height}}) {
        if (*value) {
            map.emplace(name, std::move(*value));
        }
    }
    return sizeOf(*widget(kind, std::move(map)));
}

class KindMetrics : public testing::TestWithParam<Row> {};

TEST_P(KindMetrics, AreUsualWithoutSizes) {
    EXPECT_EQ(sizeOf(*widget(GetParam().kind)), Size(GetParam().width, GetParam().height));
}

TEST_P(KindMetrics, TakeNumbersFromTheirPlaces) {
    const Row& row = GetParam();
    EXPECT_EQ(givenBy(row.kind, nullptr, nullptr, number("70"), number("70")), expectedSize(row, {}, 70.0F));
    EXPECT_EQ(givenBy(row.kind, number("90"), number("90"), nullptr, nullptr), expectedSize(row, 90.0F, {}));
    EXPECT_EQ(givenBy(row.kind, number("90"), number("90"), number("70"), number("70")),
              expectedSize(row, 90.0F, 70.0F));
}

TEST_P(KindMetrics, CountPercentagesAsNothing) {
    const Row& row = GetParam();
    EXPECT_EQ(givenBy(row.kind, nullptr, nullptr, percent("50%"), percent("50%")), expectedSize(row, {}, 0.0F));
    EXPECT_EQ(givenBy(row.kind, percent("50%"), percent("50%"), number("70"), number("70")),
              expectedSize(row, 0.0F, 70.0F));
}

TEST_P(KindMetrics, PassOverWhatIsNoNumber) {
    const Row& row = GetParam();
    EXPECT_EQ(givenBy(row.kind, nullptr, nullptr, test::variable("அ"), test::variable("அ")),
              Size(row.width, row.height));
}

INSTANTIATE_TEST_SUITE_P(EveryKind, KindMetrics, testing::ValuesIn(ROWS));

// --- texts ---

TEST(TextMetrics, GoByCodePointsAndSize) {
    const auto sized = [](const std::string& content, float size) {
        auto label = widget("உரை", properties(Property{"உரை", text(content)}));
        label->style.size = size;
        return sizeOf(*label);
    };
    EXPECT_EQ(sized("அஆஇ", 20), Size(39, 20));
    EXPECT_EQ(sized("தமிழ்", 16), Size(5 * 0.65F * 16, 16)) << "a vowel sign and a dot count as well";
    EXPECT_EQ(sized("", 16), Size(0, 16));
    EXPECT_EQ(sized("a₹😀", 10), Size(3 * 0.65F * 10, 10)) << "one to four bytes each";
}

TEST(TextMetrics, TakeTheFirstTextInTheOrderOfTheNames) {
    EXPECT_FLOAT_EQ(
        sizeOf(*widget("உரை", properties(Property{"உரை", test::variable("மாறி")}, Property{"அடையாளம்", text("அஆ")})))
            .first,
        2 * 0.65F * 16);
    EXPECT_FLOAT_EQ(sizeOf(*widget("உரை", properties(Property{"arg1", text("அஆஇ")}, Property{"உரை", text("அ")}))).first,
                    3 * 0.65F * 16);
}

TEST(TextMetrics, WithoutAStyleSizeGoByTheProperty) {
    const auto unstyled = [](PropertyMap entries) {
        auto label = widget("உரை", std::move(entries));
        label->style.size = 0;
        return sizeOf(*label);
    };
    EXPECT_EQ(unstyled({}), Size(10 * 0.65F * 16, 20));
    EXPECT_EQ(unstyled(properties(Property{"style_அளவு", number("30")})), Size(10 * 0.65F * 30, 20));
}

TEST(ButtonMetrics, GrowWithTheirLabel) {
    const auto labelled = [](const char* kind, const std::string& label, PropertyMap more = {}) {
        more.emplace("உரை", text(label));
        return sizeOf(*widget(kind, std::move(more)));
    };
    const std::string ten = "அஆஇஈஉஊஎஏஐஒ";
    EXPECT_EQ(labelled("பொத்தான்", "அ"), Size(80, 40));
    EXPECT_EQ(labelled("பொத்தான்", ten), Size(32 + 10 * 0.45F * 16, 40));
    EXPECT_EQ(labelled("பொத்தான்", ten, properties(Property{"style_அளவு", number("40")})), Size(32 + 10 * 0.45F * 16, 40))
        << "only a text button looks at its size";
    EXPECT_EQ(labelled("உரைபொத்தான்", ten), Size(32 + 10 * 0.45F * 16, 40));
    EXPECT_EQ(labelled("உரைபொத்தான்", ten, properties(Property{"style_அளவு", number("40")})),
              Size(32 + 10 * 0.45F * 40, 40));
    EXPECT_EQ(labelled("உரைபொத்தான்", ten, properties(Property{"அகலம்", number("300")})), Size(32 + 10 * 0.45F * 16, 40));
}

// --- widgets with children ---

struct Family {
    const char* kind;
    Size size;
};

TEST(ChildMetrics, OfEachLayout) {
    const Family families[] = {
        {"நெகிழ்வு", {30, 20}},        {"விரிவாக்கம்", {30, 20}},
        {"உள்_இவெ", {50, 40}},         {"உள்_இவே", {50, 40}},
        {"அடுக்கி", {50, 20}},         {"நெடுவரிசை", {50, 20 + 10}},
        {"கிடைவரிசை", {30 + 50, 20}}, {"மடிப்பு", {0, 3 * 20 + 2 * 10}},
        {"அட்டை", {30 + 20, 20 + 20}}, {"தேர்வுபெட்டி", {24 + 12 + 30, 24}},
        {"பெட்டி", {100, 100}},        {"கட்டம்_காட்சி", {3 * 50 + 2 * 10, 20}},
    };
    for (const Family& family : families) {
        EXPECT_EQ(sizeOf(*widget(family.kind, {}, test::listOf(block("30", "20"), block("50", "10")))), family.size)
            << family.kind;
    }
}

TEST(ChildMetrics, AddTheGapsBetweenThem) {
    const auto spaced = [](const char* kind, Children children) {
        return sizeOf(*widget(kind, properties(Property{"இடைவெளி", number("8")}), std::move(children)));
    };
    EXPECT_EQ(spaced("நெடுவரிசை", test::listOf(block("30", "20"), block("50", "10"), block("9", "9"))),
              Size(50, 39 + 2 * 8));
    EXPECT_EQ(spaced("கிடைவரிசை", test::listOf(block("30", "20"), block("50", "10"), block("9", "9"))),
              Size(89 + 2 * 8, 20));
    EXPECT_EQ(spaced("மடிப்பு", test::listOf(block("30", "20"), block("50", "10"))), Size(0, 3 * 20 + 2 * 8));
    EXPECT_EQ(spaced("நெடுவரிசை", test::listOf(block("30", "20"))), Size(30, 20)) << "no gap around a single child";
    EXPECT_EQ(spaced("நெடுவரிசை", {}), Size(0, 0));
}

TEST(ChildMetrics, CountAPercentageAsNothing) {
    const auto half = widget(
        "கிடைவரிசை", {}, test::listOf(widget("படம்", properties(Property{"அகலம்", percent("50%")})), block("50", "10")));
    EXPECT_EQ(sizeOf(*half), Size(50, 100));
}

TEST(ChildMetrics, PassOverWhatIsNoWidget) {
    const auto column =
        widget("நெடுவரிசை", properties(Property{"இடைவெளி", number("8")}),
               test::listOf(StatementPtr(make<PrintStatement>(ExpressionList())), StatementPtr(block("30", "20"))));
    EXPECT_EQ(sizeOf(*column), Size(30, 20));
}

TEST(PaddingMetrics, GoByTheInsetOfTheNode) {
    for (const char* kind : {"உள்_இவெ", "உள்_இவே"}) {
        PaddingNode padding;
        padding.kind = kind;
        padding.padding = 25;
        padding.children.push_back(block("30", "20"));
        EXPECT_EQ(sizeOf(padding), Size(30 + 50, 20 + 50)) << kind;
    }
}

TEST(CheckBoxMetrics, AreAsHighAsALargeChild) {
    EXPECT_EQ(sizeOf(*widget("தேர்வுபெட்டி", {}, test::listOf(block("30", "60")))), Size(24 + 12 + 30, 60));
    EXPECT_EQ(sizeOf(*widget("தேர்வுபெட்டி", properties(Property{"அகலம்", number("5")}, Property{"உயரம்", number("6")}),
                             test::listOf(block("30", "60")))),
              Size(5, 6));
}

TEST(BoxMetrics, GoByTheStyleRecordFirst) {
    const auto box = [](PropertyMap record, PropertyMap own) {
        return sizeOf(*widget("பெட்டி", std::move(own), test::listOf(widget("பெட்டி_பாணி", std::move(record)))));
    };
    const auto sizes = [](ExpressionPtr width, ExpressionPtr height) {
        return properties(Property{"அகலம்", std::move(width)}, Property{"உயரம்", std::move(height)});
    };
    EXPECT_EQ(box(sizes(number("7"), number("8")), sizes(number("70"), number("80"))), Size(7, 8));
    EXPECT_EQ(box(sizes(percent("50%"), number("8")), sizes(number("70"), number("80"))), Size(0, 8));
    EXPECT_EQ(box(sizes(test::variable("அ"), number("8")), sizes(number("70"), number("80"))), Size(70, 8));
    EXPECT_EQ(box({}, sizes(number("70"), number("80"))), Size(70, 80));
    EXPECT_EQ(box({}, {}), Size(100, 100));
}

TEST(CardMetrics, TakeSizesBeforeTheirChild) {
    EXPECT_EQ(sizeOf(*widget("அட்டை", properties(Property{"style_அகலம்", number("7")}), test::listOf(block("30", "20")))),
              Size(7, 40));
}

TEST(SpinnerMetrics, GoByTheSizeOfTheStyle) {
    EXPECT_EQ(sizeOf(*widget("சுழல்_காட்டி", properties(Property{"style_அளவு", number("64")}))), Size(64, 64));
}

TEST(TileMetrics, AreHigherWithASecondLine) {
    EXPECT_EQ(sizeOf(*widget("பட்டியல்_உருப்படி", properties(Property{"துணைத்_தலைப்பு", text("அ")}))), Size(200, 72));
    EXPECT_EQ(sizeOf(*widget("பட்டியல்_உருப்படி",
                             properties(Property{"துணைத்_தலைப்பு", text("அ")}, Property{"உயரம்", number("90")}))),
              Size(200, 90));
}

// --- grids ---

/// A grid of five children, 30 by 20 each.
Size grid(PropertyMap entries) {
    Children children;
    for (int child = 0; child < 5; ++child) {
        children.push_back(block("30", "20"));
    }
    return sizeOf(*widget("கட்டம்_காட்சி", std::move(entries), std::move(children)));
}

TEST(GridMetrics, FillRowsByTheirColumns) {
    EXPECT_EQ(grid({}), Size(3 * 30 + 2 * 10, 2 * 20 + 10)) << "three columns, unlike the widget's two";
    EXPECT_EQ(grid(properties(Property{"cols", number("2")})), Size(2 * 30 + 10, 3 * 20 + 2 * 10));
    EXPECT_EQ(grid(properties(Property{"குறுக்கு_எண்ணிக்கை", number("5")}, Property{"cols", number("2")})),
              Size(5 * 30 + 4 * 10, 20));
    EXPECT_EQ(grid(properties(Property{"குறுக்கு_எண்ணிக்கை", test::variable("அ")}, Property{"cols", number("1")})),
              Size(30, 5 * 20 + 4 * 10));
}

TEST(GridMetrics, TakeTheirGapsFromASpacerOrByName) {
    const auto spacer = [](PropertyMap sizes) { return make<WidgetExpression>(widget("இவெ", std::move(sizes))); };
    EXPECT_EQ(grid(properties(
                  Property{"இவெ", spacer(properties(Property{"அகலம்", number("4")}, Property{"உயரம்", number("6")}))})),
              Size(3 * 30 + 2 * 4, 2 * 20 + 6));
    EXPECT_EQ(grid(properties(Property{"h_gap", number("4")}, Property{"v_gap", number("6")})),
              Size(3 * 30 + 2 * 10, 2 * 20 + 6))
        << "the width knows no h_gap";
}

TEST(GridMetrics, TakeTheWidthThatIsGiven) {
    EXPECT_EQ(grid(properties(Property{"width", number("600")})).first, 600);
    EXPECT_EQ(grid(properties(Property{"width", percent("50%")})).first, 0);
    EXPECT_EQ(grid(properties(Property{"அகலம்", number("500")}, Property{"width", number("600")})).first, 500);
}

TEST(GridMetrics, AssumeACellForChildrenWithoutASize) {
    const auto empty = [](const char* kind) {
        return sizeOf(*widget("கட்டம்_காட்சி", {}, test::listOf(widget(kind), widget(kind))));
    };
    EXPECT_EQ(empty("கடவுமறை"), Size(3 * 150 + 2 * 10, 40));
}

// --- what the parser makes of a source ---

Size sourceSize(const std::string& written) {
    const std::string source = "வலைதளம் (\n தலைமை () குமரி (" + written + ") வரையறை ()\n)\n";
    Parser parser(Lexer(source, "நிரல்.பொழில்").tokenize(), source, "நிரல்.பொழில்");
    const Program program = parser.parse();
    const auto* app = dynamic_cast<const WebAppNode*>(program.statements.at(0).get());
    return sizeOf(*dynamic_cast<const WidgetNode*>(app->uiBody.get()));
}

TEST(SourceMetrics, SeeWhatIsWritten) {
    EXPECT_EQ(sourceSize("உரை(\"அஆஇ\", உரைபாணி(அளவு: 20))"), Size(39, 20));
    EXPECT_EQ(sourceSize("பொத்தான்(உரை: \"அ\", பொ_பாணி(அகலம்: 120, உயரம்: 30))"), Size(120, 30));
    EXPECT_EQ(sourceSize("பொத்தான்(அகலம்: 50%)"), Size(0, 40));
    EXPECT_EQ(sourceSize("உள்_இவெ(அளவு: 8)(படம்(அகலம்: 30, உயரம்: 20))"), Size(46, 36));
    EXPECT_EQ(sourceSize("நெடுவரிசை(இடைவெளி: ௮)(படம்(அகலம்: 30, உயரம்: 20) இவெ(உயரம்: 12))"), Size(30, 40));
    EXPECT_EQ(sourceSize("கட்டம்_காட்சி(குறுக்கு_எண்ணிக்கை: 2, இவெ(உயரம்: 6))(படம்() படம்() படம்())"),
              Size(2 * 100 + 10, 2 * 100 + 6));
}

TEST(Metrics, AreZeroForWhatIsNoWidget) {
    Presence always;
    WidgetMetrics metrics(findWidgetKind, always);
    EXPECT_TRUE(metrics.calculateWidgetWidth(nullptr).isNothing());
    const PrintStatement statement({});
    EXPECT_TRUE(metrics.calculateWidgetWidth(&statement).isNothing());
    EXPECT_TRUE(metrics.calculateWidgetHeight(&statement).isNothing());
}

} // namespace
