// Which words are widgets, in which form each is parsed, and what becomes of widgets that a list doesn't know.

#include "support/parsing.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;

namespace {

/// A widget's word with the brackets that it can't do without, and how its tree begins.
struct Form {
    std::string source;
    std::string tree;
};

/// Every word that is a widget wherever a widget may stand.
const Form forms[] = {
    {"உரை()", "Widget உரை"},
    {"பொத்தான்()", "Widget பொத்தான்"},
    {"தேர்வுபெட்டி()", "Widget தேர்வுபெட்டி"},
    {"மாற்றி()", "Widget மாற்றி"},
    {"வட்டத்தேர்வு()", "Widget வட்டத்தேர்வு"},
    {"அளவி()", "Widget அளவி"},
    {"கீழ்வரி()", "Widget கீழ்வரி"},
    {"படம்()", "Widget படம்"},
    {"நெடுவரிசை()", "Column நெடுவரிசை"},
    {"கிடைவரிசை()", "Row கிடைவரிசை"},
    {"பெட்டி()", "Container பெட்டி"},
    {"அடிப்பகுதி()", "Widget அடிப்பகுதி"},
    {"அடி_உருப்படி()", "Widget அடி_உருப்படி"},
    {"எச்சரிக்கை()", "Widget எச்சரிக்கை align=4"},
    {"வட்டபடம்()", "Widget வட்டபடம்"},
    {"உரைபெட்டி()", "Widget உரைபெட்டி"},
    {"தேடுபொறி()", "Widget தேடுபொறி"},
    {"தத்தல்()", "Widget தத்தல்"},
    {"தத்தல்_உருப்படி()", "Widget தத்தல்_உருப்படி"},
    {"விரிவாக்கம்()", "Expanded விரிவாக்கம்"},
    {"நெகிழ்வு()", "Flexible நெகிழ்வு flex=1"},
    {"வெற்றிடம்()", "Widget வெற்றிடம்"},
    {"பட்டியல்_காட்சி()", "ListView பட்டியல்_காட்சி"},
    {"கட்டம்_காட்சி()()", "GridView கட்டம்_காட்சி"},
    {"அடுக்கி()", "Widget அடுக்கி"},
    {"மடிப்பு()", "Widget மடிப்பு"},
    {"உள்_இவெ()", "Padding உள்_இவெ"},
    {"உள்_இவே()", "Padding உள்_இவே"},
    {"இவெ()", "Widget இவெ"},
    {"உரைபொத்தான்()", "Widget உரைபொத்தான்"},
    {"பெட்டி_பாணி()", "Widget பெட்டி_பாணி"},
    {"அறிவிப்பு_பட்டை()", "SnackBar அறிவிப்பு_பட்டை"},
    {"அட்டை()", "Widget அட்டை"},
    {"பட்டியல்_உருப்படி()", "Widget பட்டியல்_உருப்படி"},
    {"தேடல்_பட்டை()", "Widget தேடல்_பட்டை"},
};

/// What has children beside properties.
const Form mixedLists[] = {
    {"பொத்தான்", "Widget பொத்தான்"},
    {"பெட்டி", "Container பெட்டி"},
    {"அட்டை", "Widget அட்டை"},
    {"எச்சரிக்கை", "Widget எச்சரிக்கை align=4"},
    {"விரிவாக்கம்", "Expanded விரிவாக்கம்"},
    {"நெகிழ்வு", "Flexible நெகிழ்வு flex=1"},
};

/// Widgets whose words are names to the scanner.
const std::string plainNames[] = {"பிரிப்பான்", "சுழல்_காட்டி", "முன்னேற்றவரி", "தகவல்பட்டை", "கடவுமறை"};

/// The tree of the interface that holds these tokens.
std::string interfaceTree(const std::vector<Token>& widget) {
    const Token open = {TokenType::LPAREN, "(", 1};
    const Token close = {TokenType::RPAREN, ")", 1};
    std::vector<Token> tokens = {{TokenType::WEBAPP, "", 1},  open, {TokenType::HEADER, "", 1}, open, close,
                                 {TokenType::UI_BODY, "", 1}, open};
    tokens.insert(tokens.end(), widget.begin(), widget.end());
    tokens.insert(tokens.end(), {close, {TokenType::DEFINITION, "", 1}, open, close, close});
    return treeOfTokens(tokens);
}

std::string interfaceWith(const std::string& widget) {
    return "(WebApp MyApp null (Header தலைமை) " + widget + " (LogicBlock (Block)))";
}

TEST(WidgetWords, BeginAWidgetInEveryList) {
    for (const Form& form : forms) {
        const std::string expected = "(" + form.tree + ")";
        EXPECT_EQ(widgetTree(form.source), expected);
        EXPECT_EQ(widgetTree("நெடுவரிசை(" + form.source + ")"), "(Column நெடுவரிசை " + expected + ")");
        for (const Form& list : mixedLists) {
            EXPECT_EQ(widgetTree(list.source + "(" + form.source + ", அ: 1)"),
                      "(" + list.tree + " (\"அ\" (Number 1)) " + expected + ")")
                << form.source;
        }
    }
}

TEST(WidgetWords, OfAStyleOfItsOwnAreNoChildrenBesideIt) {
    EXPECT_EQ(widgetTree("பெட்டி(அட்டை_பாணி(அ: 1))"), "(Container பெட்டி (Widget அட்டை_பாணி (\"அ\" (Number 1))))");
    EXPECT_EQ(widgetTree("அட்டை(அட்டை_பாணி(அ: 1))"), "(Widget அட்டை (\"style_அ\" (Number 1)))");
    EXPECT_EQ(widgetTree("அட்டை(பெட்டி_பாணி(அ: 1))"), "(Widget அட்டை (Widget பெட்டி_பாணி (\"அ\" (Number 1))))");
}

TEST(WidgetWords, ArriveAsNamesToo) {
    const Token open = {TokenType::LPAREN, "(", 1};
    const Token close = {TokenType::RPAREN, ")", 1};
    for (const Form& form : forms) {
        const std::string word = form.source.substr(0, form.source.find('('));
        std::vector<Token> tokens = {{TokenType::IDENTIFIER, word, 1}, open, close};
        if (form.source.size() > word.size() + 2) {
            tokens.insert(tokens.end(), {open, close});
        }
        EXPECT_EQ(interfaceTree(tokens), interfaceWith("(" + form.tree + ")"));
    }
    EXPECT_EQ(interfaceTree({{TokenType::WRAP, "மடிப்பு", 1}, open, close}), interfaceWith("(Widget மடிப்பு)"));
}

TEST(UnknownWidgets, HaveTheGeneralFormWhereOnlyAWidgetCanStand) {
    for (const std::string& name : plainNames) {
        const std::string expected = "(Widget " + name + " (\"அகலம்\" (Number 5)))";
        const std::string source = name + "(அகலம்: 5)";
        EXPECT_EQ(widgetTree(source), expected);
        EXPECT_EQ(widgetTree("நெடுவரிசை(" + source + ")"), "(Column நெடுவரிசை " + expected + ")");
        EXPECT_EQ(widgetTree("பட்டியல்_காட்சி(" + source + ")"), "(ListView பட்டியல்_காட்சி " + expected + ")");
        EXPECT_EQ(widgetTree("கட்டம்_காட்சி()(" + source + ")"), "(GridView கட்டம்_காட்சி " + expected + ")");
        EXPECT_EQ(widgetTree("உள்_இவெ()(" + source + ")"), "(Padding உள்_இவெ " + expected + ")");
    }
    EXPECT_EQ(widgetFault("\"அ\""), "பொழி-203 வரி 2");
    EXPECT_EQ(widgetFault("நெடுவரிசை(\nஇல்லாதது)"), "பொழி-203 வரி 3");
}

TEST(UnknownWidgets, AreCallsInAWidgetOfTheGeneralForm) {
    for (const std::string& name : plainNames) {
        EXPECT_EQ(widgetTree("பொத்தான்(" + name + "())"), "(Widget பொத்தான் (\"உரை\" (Call " + name + ")))");
        EXPECT_EQ(widgetFault("பொத்தான்(\n" + name + "(அகலம்: 5))"), "பொழி-204 வரி 3");
    }
}

/// Word and bracket are passed over one by one, so that the widget's closing bracket ends the list around it.
TEST(UnknownWidgets, EndAListThatPassesOverThem) {
    for (const std::string list : {"பெட்டி", "அட்டை", "எச்சரிக்கை", "விரிவாக்கம்", "நெகிழ்வு"}) {
        EXPECT_EQ(widgetFault(list + "(பிரிப்பான்(அகலம்))"), "பொழி-401 வரி 2") << list;
        EXPECT_EQ(widgetFault(list + "(பிரிப்பான்(அகலம்),\nஉரை(\"அ\"))"), "பொழி-204 வரி 2") << list;
    }
    for (const std::string list : {"அட்டை", "எச்சரிக்கை", "பட்டியல்_உருப்படி"}) {
        EXPECT_EQ(widgetFault(list + "(அசைவூட்டம்(காலம்))"), "பொழி-401 வரி 2") << list;
    }
}

} // namespace
