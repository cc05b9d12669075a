// Pages are the same in every edition: what stands in them of the program's values, the edition has written. A made-up
// edition writes marks, and nothing else in the text may tell how some edition holds its values.

#include "generator/web/page/runtime_text.h"
#include "generator/web/page/web_emitter.h"
#include "generator/web/write/press_handler.h"
#include "generator/web/write/widget_writer.h"
#include "language/widgets.h"
#include "support/generating.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

using namespace pozhil;
using namespace pozhil::test;
using testing::AllOf;
using testing::AnyOf;
using testing::HasSubstr;
using testing::Not;

namespace {

/// No text of the emitted program may have it as it stands in the source.
const std::string SOURCE_TEXT = "மூலவுரை";

/// The name of a variable; the mark of anything else.
std::string nameOf(const Expression* value) {
    const auto* variable = nodeCast<VariableAccess>(value);
    return variable == nullptr ? "?" : variable->name;
}

/// What lies over what, as marks.
class MarkLayering : public Layering {
public:
    std::string takesPress(const std::string&, const PressArea&) const override { return "TAKES_PRESS && "; }
    std::string takesHover(const std::string&, const PressArea&) const override { return "TAKES_HOVER && "; }
    std::string isHeld(const std::string&) const override { return "IS_HELD && "; }
    std::string isMenuOnTop() const override { return "IS_MENU_ON_TOP && "; }
    std::string hasField(const std::string&, const PressArea&, const std::string& id) const override {
        return "HAS_FIELD(" + id + ");\n";
    }
    std::string shields(const PressArea& area) const override { return std::string("SHIELDS(") + area.left + ");\n"; }
    std::string shieldsPage() const override { return "SHIELDS_PAGE;\n"; }
    std::string holds(const std::string&, bool takesPresses) const override {
        return takesPresses ? "HOLDS_PRESSES;\n" : "HOLDS;\n";
    }
    std::string declaredMenu(const std::string&) const override { return "MENU;\n"; }
    std::string begunMenu() const override { return "MENU_BEGINS;\n"; }
    std::string cutsTo(const CutArea& area, bool alsoTexts) const override {
        return std::string("CUTS") + (alsoTexts ? "_TEXTS" : "") + "(" + area.x + ");\n";
    }
    std::string scissor() const override { return "SCISSOR"; }
};

/// An edition whose values are marks.
class MarkEdition : public EditionWriter {
public:
    explicit MarkEdition(CodeWriter& out) : out_(out) {}

    Filling text(const Expression* value, const std::string& otherwise) override {
        return value == nullptr ? otherwise : "TEXT(" + nameOf(value) + ")";
    }
    Filling shownText(const Expression* value, const std::string& otherwise) override {
        return value == nullptr ? otherwise : "SHOWN(" + nameOf(value) + ")";
    }
    Filling number(const Expression& value) override { return "NUMBER(" + nameOf(&value) + ")"; }
    Filling truth(const Expression& value) override { return "TRUTH(" + nameOf(&value) + ")"; }
    Filling equality(const Expression& left, const Expression& right) override {
        return "EQUAL(" + nameOf(&left) + ", " + nameOf(&right) + ")";
    }
    std::string inComment(const std::string&) const override { return "COMMENT"; }
    std::string literal(const std::string& text) const override {
        return text == SOURCE_TEXT ? "LITERAL" : "\"" + text + "\"";
    }
    std::string valueType() const override { return "VALUE"; }
    std::string computedSize(const Expression& size, const std::string& base) override {
        return "SIZE(" + nameOf(&size) + ", " + base + ")";
    }
    std::string sizeCondition(const Expression& condition, const std::string&) override {
        return "CONDITION(" + nameOf(&condition) + ")";
    }
    std::optional<Visibility> visibility(const WidgetNode& widget) override {
        const Expression* shown = findProperty(widget, {"காட்சி_பெயர்"});
        return shown == nullptr ? std::nullopt : std::optional(Visibility{"name", "VISIBLE(" + nameOf(shown) + ")"});
    }
    bool isBound(const WidgetNode&) override { return false; }
    void writeStateRead(WidgetWriter&, const ControlState& state) override {
        out_.block("READ($state);\n", {{"state", state.variable}});
    }
    void writeChange(WidgetWriter& control, const ControlState& state) override {
        out_.block("CHANGE($state);\n", {{"state", state.variable}});
        const bool isBar = state.kind == ControlState::Kind::Index;
        if (const Expression* handler = findProperty(control.widget(), {isBar ? "அழுத்தினால்" : "மாறியதால்"})) {
            writeHandlerCall(control, handler, isBar ? HandlerSite::Bar : HandlerSite::Control);
        }
    }
    void writeChoices(WidgetWriter&, const Expression& choices) override {
        out_.block("CHOICES($name);\n", {{"name", nameOf(&choices)}});
    }
    void writeField(WidgetWriter&, const Filling& id) override { out_.block("FIELD($id);\n", {{"id", id}}); }
    void writeDisabling(WidgetWriter&) override { out_.block("DISABLING;\n"); }
    const Layering& layering() const override { return layering_; }
    void writeWindowSize(CodeWriter& out) override { out.block("WINDOW_SIZE;\n"); }
    void writeOpenAlerts(CodeWriter& out) override { out.block("OPEN_ALERTS;\n"); }
    void writeDrawing(CodeWriter& out) override { out.block("DRAWING;\n"); }
    std::string frameGuard() const override { return "FRAME_GUARD"; }
    void writeHandler(WidgetWriter& widget, const Expression& handler, HandlerSite site) override {
        const std::array<std::string, 3> sites = {"HANDLER", "BAR_HANDLER", "TEXT_HANDLER"};
        widget.block("$site($name);\n",
                     {{"site", sites.at(static_cast<std::size_t>(site))}, {"name", nameOf(&handler)}});
    }
    void writeHandlerStatements(WidgetWriter& widget, const StatementList& statements) override {
        widget.block("{\n    $lines\n}\n", {{"lines", widget.statements(statements)}});
    }
    void writeMessageFunction(WidgetWriter& bar, const Filling& message, const ByteColour&) override {
        bar.block("MESSAGE($message)\n", {{"message", message}});
    }
    MessageBar messageBar() const override {
        return {"IS_SHOWN", "SINCE", "TOP", "MOVED", "HIDDEN", "MESSAGE", "RED", "GREEN", "BLUE"};
    }
    void writeStatement(const Statement*) override { out_.block("STATEMENT;\n"); }
    void writeBody(const StatementList&) override { out_.block("BODY;\n"); }
    Fault faultWithoutPlace(const std::string& code, std::int32_t line, const std::string& details) const override {
        throw std::logic_error(code + " " + std::to_string(line) + " " + details);
    }

private:
    CodeWriter& out_;
    MarkLayering layering_;
};

std::unique_ptr<WidgetNode> widgetOf(std::string_view word, StatementList children = {}) {
    if (word == language::widget::CONTAINER) {
        return make<ContainerNode>(std::move(children), சீரமைப்பு_வகை::மேல்_இடது);
    }
    return make<WidgetNode>(word, PropertyMap{}, std::move(children), சீரமைப்பு_வகை::மேல்_இடது);
}

using MakeValue = ExpressionPtr (*)(const std::string& property);

ExpressionPtr variableOf(const std::string& property) {
    return variable(property);
}

ExpressionPtr textOfSource(const std::string&) {
    return text(SOURCE_TEXT);
}

/// The widget with each property that the language knows of it, as parsers hand them over.
std::unique_ptr<WidgetNode> withProperties(std::unique_ptr<WidgetNode> widget, MakeValue makeValue) {
    const language::Widget* row = language::findWidget(widget->kind);
    for (const language::WidgetProperty& property : row->properties) {
        for (const std::string& name : {std::string(property.name), "style_" + std::string(property.name)}) {
            if (property.kind == language::ValueKind::Widget) {
                auto inner = withProperties(widgetOf(language::widget::TEXT), makeValue);
                widget->properties[name] = make<WidgetExpression>(std::move(inner));
            } else {
                const bool isHandler = property.kind == language::ValueKind::Handler;
                widget->properties[name] = isHandler ? variable(name) : makeValue(name);
            }
        }
    }
    for (const language::WidgetProperty& property : language::commonProperties()) {
        widget->properties[std::string(property.name)] = makeValue(std::string(property.name));
    }
    widget->style.font = SOURCE_TEXT;
    widget->style.weight = SOURCE_TEXT;
    widget->style.align = SOURCE_TEXT;
    return widget;
}

/// A widget of this word with children of every kind that some widget looks for among them.
std::unique_ptr<WidgetNode> fullWidget(std::string_view word, MakeValue makeValue) {
    StatementList children;
    for (const std::string_view child : {language::widget::TEXT, language::widget::IMAGE,
                                         language::widget::BOTTOM_NAVIGATION_ITEM, language::widget::TAB_ITEM}) {
        children.push_back(withProperties(widgetOf(child), makeValue));
    }
    for (const StatementPtr& item : children) {
        auto& inner = dynamic_cast<WidgetNode&>(*item);
        if (inner.kind != language::widget::TEXT && inner.kind != language::widget::IMAGE) {
            inner.children.push_back(withProperties(widgetOf(language::widget::TEXT), makeValue));
            inner.children.push_back(withProperties(widgetOf(language::widget::IMAGE), makeValue));
        }
    }
    return withProperties(widgetOf(word, std::move(children)), makeValue);
}

/// A program of one page, with \p widget as all that it shows.
std::string pageOf(std::unique_ptr<WidgetNode> widget, PropertyMap header = {}) {
    Program program;
    auto head = make<HeaderNode>("தலைமை", std::move(header), StatementList{}, ScreenConfig{});
    program.statements.push_back(make<WebAppNode>(SOURCE_TEXT, nullptr, std::move(head), std::move(widget), nullptr));
    CodeWriter out;
    MarkEdition edition(out);
    WebEmitter(out, edition, readApplication(program)).writeProgram();
    return out.text();
}

void expectNoValues(const std::string& text) {
    for (const char* piece : {"std::any", "any_cast", "global_vars", "fn_", "_StructBase", "_PozhilChar"}) {
        EXPECT_THAT(text, Not(HasSubstr(piece)));
    }
}

class EveryWidget : public testing::TestWithParam<std::string_view> {};

TEST_P(EveryWidget, LeavesValuesToTheEdition) {
    const std::string page = pageOf(fullWidget(GetParam(), variableOf));
    expectNoValues(page);
    EXPECT_THAT(page, HasSubstr("VISIBLE(காட்சி_பெயர்)"));
}

TEST_P(EveryWidget, LeavesLiteralsToTheEdition) {
    const std::string page = pageOf(fullWidget(GetParam(), textOfSource));
    expectNoValues(page);
    EXPECT_THAT(page, Not(HasSubstr("\"" + SOURCE_TEXT)));
}

/// How often \p piece stands in \p text.
std::size_t countOf(const std::string& text, const std::string& piece) {
    std::size_t count = 0;
    for (std::size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at + 1)) {
        ++count;
    }
    return count;
}

TEST_P(EveryWidget, AsksForThePressOnlyWhereItLiesOnTop) {
    const std::string press = "g_mouseClicked";
    const std::string page = pageOf(fullWidget(GetParam(), variableOf));
    const std::size_t ofFrame = countOf(pageOf(widgetOf(language::widget::GAP)), press);
    if (countOf(page, press) > ofFrame) {
        EXPECT_THAT(page, AnyOf(HasSubstr("TAKES_PRESS && mx"), HasSubstr("TAKES_PRESS && " + press)));
    }
}

std::vector<std::string_view> drawnWords() {
    std::vector<std::string_view> words;
    for (const language::Widget& widget : language::widgets()) {
        if (widget.role == language::WidgetRole::Widget) {
            words.push_back(widget.word);
        }
    }
    return words;
}

INSTANTIATE_TEST_SUITE_P(Words, EveryWidget, testing::ValuesIn(drawnWords()));

/// The page of a widget with one property given by a variable.
std::string pageWith(std::string_view word, const std::string& property) {
    auto widget = widgetOf(word);
    widget->properties[property] = variable("அ");
    return pageOf(std::move(widget));
}

TEST(Values, AreWrittenAsWhatTheWidgetTakes) {
    using namespace language::widget;
    EXPECT_THAT(pageWith(TEXT, "உரை"), HasSubstr("std::string textContent = SHOWN(அ);"));
    EXPECT_THAT(pageWith(TEXT, "ID"), HasSubstr("std::string _wid = TEXT(அ);"));
    EXPECT_THAT(pageWith(SLIDER, "மதிப்பு"), HasSubstr("currentVal_2 = (float)NUMBER(அ);"));
    EXPECT_THAT(pageWith(SWITCH, "ஆரம்ப_நிலை"), HasSubstr("static bool isOn_2 = TRUTH(அ);"));
    EXPECT_THAT(pageWith(BUTTON, "அகலம்"), HasSubstr("btnW = SIZE(அ, (forcedW > 0.0f ? forcedW : winWidth));"));
    auto radio = widgetOf(RADIO);
    radio->properties["மதிப்பு"] = variable("அ");
    radio->properties["குழு_மதிப்பு"] = variable("ஆ");
    EXPECT_THAT(pageOf(std::move(radio)), HasSubstr("if (EQUAL(அ, ஆ)) isSelected = true;"));
}

TEST(Sizes, AreChosenByConditionsOfTheEdition) {
    auto button = widgetOf(language::widget::BUTTON);
    button->properties["அகலம்"] = make<TernaryExpression>(variable("அ"), number("5"), make<PercentageLiteral>("50%"));
    EXPECT_THAT(pageOf(std::move(button)),
                HasSubstr("btnW = (CONDITION(அ) ? 5.0f : ((forcedW > 0.0f ? forcedW : winWidth) * 0.500000f));"));
}

TEST(Handlers, AreToldApartByWhereTheyStand) {
    using namespace language::widget;
    EXPECT_THAT(pageWith(BUTTON, "அழுத்தினால்"), HasSubstr(" HANDLER(அ);"));
    EXPECT_THAT(pageWith(SWITCH, "மாறியதால்"), HasSubstr(" HANDLER(அ);"));
    EXPECT_THAT(pageWith(TAB_BAR, "அழுத்தினால்"), HasSubstr(" BAR_HANDLER(அ);"));
    EXPECT_THAT(pageWith(BOTTOM_NAVIGATION, "அழுத்தினால்"), HasSubstr(" BAR_HANDLER(அ);"));
    EXPECT_THAT(pageWith(TEXT_BUTTON, "அழுத்தினால்"), HasSubstr(" TEXT_HANDLER(அ);"));
    auto button = widgetOf(BUTTON);
    button->eventStatements.push_back(make<PassStatement>());
    EXPECT_THAT(pageOf(std::move(button)), HasSubstr("STATEMENT;\n"));
}

TEST(Checkbox, TellsTheEditionOfItsState) {
    const std::string page = pageOf(widgetOf(language::widget::CHECKBOX));
    EXPECT_THAT(page, HasSubstr("checked_2 = !checked_2;\n"));
    EXPECT_THAT(page, HasSubstr("CHANGE(checked_2);\n"));
    EXPECT_THAT(page, HasSubstr("READ(checked_2);\n"));
}

TEST(Controls, TellTheEditionOfTheirState) {
    using namespace language::widget;
    EXPECT_THAT(pageOf(widgetOf(SWITCH)), AllOf(HasSubstr("READ(isOn_2);\n"), HasSubstr("CHANGE(isOn_2);\n")));
    EXPECT_THAT(pageOf(widgetOf(SLIDER)), AllOf(HasSubstr("READ(currentVal_2);"), HasSubstr("CHANGE(currentVal_2);")));
    EXPECT_THAT(pageOf(widgetOf(TAB_BAR)), AllOf(HasSubstr("READ(curTabIdx);"), HasSubstr("CHANGE(curTabIdx);")));
    EXPECT_THAT(pageOf(widgetOf(DROPDOWN)),
                AllOf(HasSubstr("READ(selectedIndex_2);"), HasSubstr("CHANGE(selectedIndex_2);")));
    EXPECT_THAT(pageOf(widgetOf(BOTTOM_NAVIGATION)),
                AllOf(HasSubstr("READ(currentIndex);"), HasSubstr("CHANGE(clickedIdx);")));
    EXPECT_THAT(pageWith(RADIO, "குழு_மதிப்பு"), HasSubstr("CHANGE();"));
}

TEST(Controls, LeaveChoicesThatAreNoTextsToTheEdition) {
    EXPECT_THAT(pageWith(language::widget::DROPDOWN, "பட்டியல்"), HasSubstr("CHOICES(அ);\n"));
}

TEST(Controls, TellTheEditionOfTheirFields) {
    using namespace language::widget;
    EXPECT_THAT(pageOf(widgetOf(TEXT_FIELD)), HasSubstr("FIELD(\"text_2\");\n"));
    EXPECT_THAT(pageOf(widgetOf(SEARCH_BAR)), HasSubstr("FIELD(sbId);\n"));
    EXPECT_THAT(pageOf(widgetOf(PASSWORD_FIELD)), HasSubstr("FIELD(inputId);\n"));
}

TEST(Disabling, StandsAtTheHeadOfEachBlock) {
    EXPECT_THAT(pageOf(widgetOf(language::widget::BUTTON)), HasSubstr("// பொத்தான்\n        DISABLING;\n"));
}

TEST(Layers, AreToldToTheEdition) {
    using namespace language::widget;
    EXPECT_THAT(pageOf(widgetOf(CONTAINER)), AllOf(HasSubstr("SHIELDS(boxX);\n"), HasSubstr("CUTS(boxX);\n")));
    EXPECT_THAT(pageWith(CONTAINER, "அழுத்தினால்"),
                AllOf(HasSubstr("isBoxHover = TAKES_PRESS && mx"), HasSubstr("HOLDS_PRESSES;\n"),
                      Not(HasSubstr("SHIELDS(boxX)"))));
    EXPECT_THAT(pageOf(widgetOf(CARD)), AllOf(HasSubstr("SHIELDS(cardX);\n"), HasSubstr("CUTS(cardX);\n")));
    EXPECT_THAT(pageOf(widgetOf(LIST_TILE)), AllOf(HasSubstr("TAKES_HOVER && mx"), HasSubstr("HOLDS;\n")));
    EXPECT_THAT(pageWith(LIST_TILE, "அழுத்தினால்"), AllOf(HasSubstr("TAKES_PRESS && mx"), HasSubstr("HOLDS_PRESSES;\n")));
    EXPECT_THAT(pageOf(widgetOf(SLIDER)), HasSubstr("if (IS_HELD && isMouseDown) {"));
    EXPECT_THAT(pageOf(widgetOf(DROPDOWN)), AllOf(HasSubstr("MENU;\n"), HasSubstr("MENU_BEGINS;\n"),
                                                  HasSubstr("isItemHover = IS_MENU_ON_TOP && mx"),
                                                  HasSubstr("if (IS_MENU_ON_TOP && g_mouseClicked && !isClicked")));
    EXPECT_THAT(pageOf(widgetOf(DIALOG)),
                AllOf(HasSubstr("SHIELDS_PAGE;\n"), HasSubstr("SCISSOR(vg, alertX"), HasSubstr("CUTS(alertX);\n")));
    EXPECT_THAT(pageOf(widgetOf(TEXT_FIELD)), HasSubstr("HAS_FIELD(\"text_2\");\n"));
    EXPECT_THAT(pageOf(widgetOf(LIST_VIEW)),
                AllOf(HasSubstr("SCISSOR(vg, listStartX"), HasSubstr("CUTS_TEXTS(listStartX);")));
    EXPECT_THAT(pageOf(widgetOf(GAP)), HasSubstr("SHIELDS(barX);\n"));
    EXPECT_THAT(pageOf(widgetOf(IMAGE)), Not(HasSubstr("SHIELDS(img")));
}

TEST(Layers, AreMissingFromWhatNobodySees) {
    auto box = widgetOf(language::widget::CONTAINER);
    box->properties["பின்னணி"] = text("#00000000");
    EXPECT_THAT(pageOf(std::move(box)), Not(HasSubstr("SHIELDS(boxX)")));
}

TEST(Visibility, IsAConditionAroundTheWidget) {
    EXPECT_THAT(pageWith(language::widget::TEXT, "காட்சி_பெயர்"),
                HasSubstr("g_alert_names.insert(\"name\");\n        if (VISIBLE(அ)) {\n"));
}

TEST(Frame, HasItsHolesFilledByTheEdition) {
    const std::string page = pageOf(widgetOf(language::widget::GAP));
    EXPECT_THAT(page, HasSubstr("\nOPEN_ALERTS;\n\nDRAWING;\n\nvoid render_frame() {\n"));
    EXPECT_THAT(page, HasSubstr("\n    WINDOW_SIZE;\n"));
    EXPECT_THAT(page, HasSubstr("\n    FRAME_GUARD([&] {\n"));
    EXPECT_THAT(page, HasSubstr("        FRAME_GUARD(draw_overlay);\n"));
    for (const char* line : {"    if (IS_SHOWN) {\n        double elapsed = emscripten_get_now() - SINCE;\n",
                             "        float currentY = TOP;\n", "        MOVED;\n", "            HIDDEN;\n",
                             "            std::string msgTxt = MESSAGE;\n", "            int sb_r = RED;\n",
                             "            int sb_g = GREEN;\n", "            int sb_b = BLUE;\n"}) {
        EXPECT_THAT(page, HasSubstr(line));
    }
}

TEST(Header, LeavesValuesToTheEdition) {
    PropertyMap header;
    header["பின்னணிபடம்"] = variable("அ");
    header["இணைய_தலைப்பு"] = variable("ஆ");
    const std::string page = pageOf(widgetOf(language::widget::GAP), std::move(header));
    EXPECT_THAT(page, HasSubstr("nvgCreateImage(vg, TEXT(அ).c_str(), 0);"));
    EXPECT_THAT(page, HasSubstr("emscripten::val(TEXT(ஆ))"));
    EXPECT_THAT(page, HasSubstr("glfwCreateWindow((int)1280.0f, (int)720.0f, LITERAL, NULL, NULL);"));
}

/// What \p write writes into a web program that has nothing else.
template <class Write> std::string writtenBy(Write write) {
    const Program program;
    CodeWriter out;
    MarkEdition edition(out);
    WebEmitter web(out, edition, readApplication(program));
    write(web);
    return out.text();
}

TEST(SnackBar, IsAFunctionOfTheEdition) {
    auto bar = make<SnackBarNode>(StatementList{});
    bar->properties["செய்தி"] = variable("அ");
    const ExpressionPtr value = make<WidgetExpression>(std::move(bar));
    EXPECT_EQ(writtenBy([&](WebEmitter& web) { web.writeExpression(value.get()); }), "MESSAGE(TEXT(அ))\n");
}

TEST(Database, LeavesValuesToTheEdition) {
    auto data = make<MapLiteral>();
    data->entries.emplace_back("ச", variable("ஆ"));
    const ExpressionPtr insert = make<RTDBInsertExpression>(variable("அ"), std::move(data));
    const std::string inserted = writtenBy([&](WebEmitter& web) { web.writeExpression(insert.get()); });
    expectNoValues(inserted);
    EXPECT_THAT(inserted, HasSubstr("[&]() -> VALUE {\n"));
    EXPECT_THAT(inserted, HasSubstr("    std::string path_str = TEXT(அ);\n"));
    EXPECT_THAT(inserted, HasSubstr("\" + TEXT(ஆ) + \""));
    EXPECT_THAT(inserted, HasSubstr("    return VALUE();\n}()"));
    const StatementPtr read = make<RTDBReadStatement>(variable("அ"), StatementList{});
    const std::string reading = writtenBy([&](WebEmitter& web) { web.writeStatement(read.get()); });
    expectNoValues(reading);
    EXPECT_THAT(reading, HasSubstr("[=]() mutable -> VALUE {\n        BODY;\n        return VALUE();\n"));
}

TEST(Runtime, OfPagesKnowsNoValues) {
    namespace runtime = page_runtime;
    for (const std::string_view section :
         {runtime::page_headers, runtime::web_text_layer, runtime::page_state, runtime::overlays, runtime::navigation,
          runtime::input_state, runtime::canvas_keys, runtime::web_bridge, runtime::animation_engine,
          runtime::scrolling, runtime::web_boilerplate, runtime::input_fields, runtime::media_elements,
          runtime::frame_helpers}) {
        expectNoValues(std::string(section));
        EXPECT_THAT(std::string(section), Not(HasSubstr("#include <any>")));
    }
}

TEST(Runtime, OfPagesIsFilledByTheEdition) {
    EXPECT_THAT(page_runtime::navigationFrom("LITERAL"), HasSubstr("std::string g_currentPage = LITERAL; //"));
    const std::string bridge = page_runtime::bridgeWith("ENTRIES;\n", "ANSWER;\n");
    EXPECT_THAT(bridge, HasSubstr("\n}\n\nENTRIES;\n}\n"));
    EXPECT_THAT(bridge, HasSubstr("{\nANSWER;\n        found->second();\n"));
}

} // namespace
