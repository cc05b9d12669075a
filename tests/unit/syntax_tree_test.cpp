#include "parser/syntax_tree.h"
#include "support/tree_text.h"

#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;

namespace {

ExpressionPtr name(const std::string& text) {
    return std::make_unique<VariableAccess>(text);
}

ExpressionList names(const std::string& first, const std::string& second) {
    ExpressionList list;
    list.push_back(name(first));
    list.push_back(name(second));
    return list;
}

Token token(const std::string& text) {
    return {TokenType::IDENTIFIER, text, 7};
}

std::unique_ptr<BlockStatement> block() {
    return std::make_unique<BlockStatement>();
}

std::unique_ptr<BlockStatement> blockOf(StatementPtr statement) {
    auto node = block();
    node->statements.push_back(std::move(statement));
    return node;
}

PropertyMap property(const std::string& key, const std::string& value) {
    PropertyMap map;
    map.emplace(key, name(value));
    return map;
}

StatementList pass() {
    StatementList list;
    list.push_back(std::make_unique<PassStatement>());
    return list;
}

/// The written form of a node that is made of these arguments, in the order of its fields.
template <class Node, class... Arguments> std::string made(Arguments&&... arguments) {
    const Node node(std::forward<Arguments>(arguments)...);
    return treeText(&node, Lines::Shown);
}

template <class Node, class Root>
constexpr bool derivesOnlyFrom =
    std::is_base_of_v<Root, Node> &&
    !std::is_base_of_v<std::conditional_t<std::is_same_v<Root, Expression>, Statement, Expression>, Node>;

template <class Root, class... Nodes> constexpr bool allDeriveOnlyFrom = (derivesOnlyFrom<Nodes, Root> && ...);

static_assert(
    allDeriveOnlyFrom<Expression, NumberLiteral, DoubleLiteral, StringLiteral, CharLiteral, BooleanLiteral,
                      PercentageLiteral, VariableAccess, ColorExpression, GroupingExpression, ListLiteral, MapLiteral,
                      UnaryExpression, BinaryExpression, LogicalExpression, TernaryExpression, CallExpression,
                      GetExpression, SetMemberExpression, IndexExpression, AssignmentExpression, LambdaExpression,
                      RTDBInsertExpression, RTDBUpdateExpression, RTDBDeleteExpression, WidgetExpression>);
static_assert(
    allDeriveOnlyFrom<Statement, BlockStatement, ExpressionStatement, PrintStatement, WaitStatement, ReturnStatement,
                      PassStatement, BreakStatement, ContinueStatement, SetStateStatement, IfStatement, WhileStatement,
                      ForStatement, SwitchStatement, TryCatchStatement, SetStatement, CompoundAssignmentStatement,
                      IncrementStatement, VarDeclaration, FunctionDefinitionStatement, StructDefinitionStatement,
                      AbstractStructDefinitionStatement, RTDBReadStatement, WebAppNode, DatabaseManagerNode,
                      FirebaseConfigNode, LogicBlockNode, WidgetNode>);
static_assert((std::is_base_of_v<WidgetNode, ColumnNode> && std::is_base_of_v<WidgetNode, RowNode> &&
               std::is_base_of_v<WidgetNode, ExpandedNode> && std::is_base_of_v<WidgetNode, FlexibleNode> &&
               std::is_base_of_v<WidgetNode, GridViewNode> && std::is_base_of_v<WidgetNode, ListViewNode> &&
               std::is_base_of_v<WidgetNode, PaddingNode> && std::is_base_of_v<WidgetNode, ContainerNode> &&
               std::is_base_of_v<WidgetNode, SnackBarNode> && std::is_base_of_v<WidgetNode, HeaderNode>));
static_assert(std::has_virtual_destructor_v<Expression> && std::has_virtual_destructor_v<Statement>);
static_assert(std::is_move_assignable_v<Program>);
static_assert(std::is_copy_assignable_v<TextStyle>);
static_assert(!std::is_polymorphic_v<AnimationNode> && !std::is_polymorphic_v<AnimationTargetNode>);

TEST(SyntaxTree, RootsStartWithoutLine) {
    EXPECT_EQ(Expression().line, 0);
    EXPECT_EQ(Statement().line, 0);
    EXPECT_EQ(BinaryExpression(name("அ"), token("கூட்டு"), name("ஆ")).line, 0);
    EXPECT_EQ(FunctionDefinitionStatement(token("அ"), {}, block()).line, 0);
}

TEST(SyntaxTree, ExpressionsTakeTheirFieldsInOrder) {
    EXPECT_EQ(made<NumberLiteral>("1"), "(Number 1)");
    EXPECT_EQ(made<DoubleLiteral>("1.5"), "(Double 1.5)");
    EXPECT_EQ(made<StringLiteral>("அ"), "(String \"அ\")");
    EXPECT_EQ(made<CharLiteral>("அ"), "(Char அ)");
    EXPECT_EQ(made<BooleanLiteral>("மெய்"), "(Boolean மெய்)");
    EXPECT_EQ(made<PercentageLiteral>("5%"), "(Percentage 5%)");
    EXPECT_EQ(made<VariableAccess>("அ"), "அ");
    EXPECT_EQ(made<GroupingExpression>(name("அ")), "(Grouping அ)");
    EXPECT_EQ(made<UnaryExpression>(token("கழி"), name("அ")), "(Unary கழி அ)");
    EXPECT_EQ(made<BinaryExpression>(name("அ"), token("கழி"), name("ஆ")), "(Binary அ கழி ஆ)");
    EXPECT_EQ(made<LogicalExpression>(name("அ"), token("மற்றும்"), name("ஆ")), "(Logical அ மற்றும் ஆ)");
    EXPECT_EQ(made<TernaryExpression>(name("அ"), name("ஆ"), name("இ")), "(Ternary அ ஆ இ)");
    EXPECT_EQ(made<CallExpression>(name("அ"), names("ஆ", "இ")), "(Call அ ஆ இ)");
    EXPECT_EQ(made<GetExpression>(name("அ"), token("ஆ")), "(Get அ ஆ)");
    EXPECT_EQ(made<SetMemberExpression>(name("அ"), token("ஆ"), name("இ")), "(SetMember அ ஆ இ)");
    EXPECT_EQ(made<IndexExpression>(name("அ"), name("ஆ")), "(Index அ ஆ)");
    EXPECT_EQ(made<AssignmentExpression>("அ", token("="), name("ஆ")), "(Assignment அ = ஆ)");
    EXPECT_EQ(made<LambdaExpression>(std::vector<Token>{token("அ"), token("ஆ")}, name("இ")), "(Lambda (அ ஆ) இ)");
}

TEST(SyntaxTree, ListsAndMapsStartEmpty) {
    EXPECT_EQ(made<ListLiteral>(), "(List)");
    EXPECT_EQ(made<MapLiteral>(), "(Map)");
    EXPECT_EQ(made<BlockStatement>(), "(Block)");
    EXPECT_TRUE(Program().statements.empty());
}

TEST(SyntaxTree, AColourHoldsItsTextInOneOfTwoFields) {
    const ColorExpression hex("#fff", true);
    EXPECT_TRUE(hex.isHex);
    EXPECT_EQ(hex.hexValue, "#fff");
    EXPECT_EQ(hex.colorName, "");
    const ColorExpression named("சிவப்பு", false);
    EXPECT_FALSE(named.isHex);
    EXPECT_EQ(named.hexValue, "");
    EXPECT_EQ(named.colorName, "சிவப்பு");
}

TEST(SyntaxTree, NodesKeepWholeTokens) {
    const GetExpression get(name("அ"), {TokenType::KEYWORD, "ஆ", 7});
    EXPECT_EQ(get.member.type, TokenType::KEYWORD);
    EXPECT_EQ(get.member.value, "ஆ");
    EXPECT_EQ(get.member.line, 7);
}

TEST(SyntaxTree, StatementsTakeTheirFieldsInOrder) {
    EXPECT_EQ(made<ExpressionStatement>(name("அ")), "(Expression அ)");
    EXPECT_EQ(made<PrintStatement>(names("அ", "ஆ")), "(Print அ ஆ)");
    EXPECT_EQ(made<WaitStatement>(name("அ")), "(Wait அ)");
    EXPECT_EQ(made<ReturnStatement>(name("அ")), "(Return அ)");
    EXPECT_EQ(made<ReturnStatement>(nullptr), "(Return null)");
    EXPECT_EQ(made<IfStatement>(name("அ"), block(), std::make_unique<PassStatement>()), "(If அ (Block) (Pass))");
    EXPECT_EQ(made<WhileStatement>(name("அ"), block()), "(While அ (Block))");
    EXPECT_EQ(made<ForStatement>(token("அ"), name("ஆ"), block()), "(For அ ஆ (Block))");
    EXPECT_EQ(made<TryCatchStatement>(blockOf(std::make_unique<PassStatement>()), block(), "அ"),
              "(TryCatch (Block (Pass)) (Block) அ)");
    EXPECT_EQ(made<SetStatement>(name("அ"), name("ஆ")), "(Set அ ஆ)");
    EXPECT_EQ(made<CompoundAssignmentStatement>(name("அ"), token("கூட்டிசேர்"), name("ஆ")),
              "(CompoundAssignment அ கூட்டிசேர் ஆ)");
    EXPECT_EQ(made<IncrementStatement>(name("அ"), token("ஒன்றுசேர்")), "(Increment அ ஒன்றுசேர்)");
    std::vector<CaseBlock> cases;
    cases.push_back({name("ஆ"), block()});
    EXPECT_EQ(made<SwitchStatement>(name("அ"), std::move(cases), nullptr), "(Switch அ (ஆ (Block)) null)");
}

TEST(SyntaxTree, DefinitionsTakeTheirFieldsInOrderAndStartPublic) {
    EXPECT_EQ(made<VarDeclaration>("அ", name("ஆ"), VarType::List), "(VarDeclaration அ ஆ 7)");
    EXPECT_EQ(made<FunctionDefinitionStatement>(token("அ"), std::vector<Param>{{token("ஆ"), true}}, block()),
              "(FunctionDefinition அ (&ஆ) (Block))");
    EXPECT_EQ(made<AbstractStructDefinitionStatement>(token("அ"),
                                                      std::vector<AbstractMethod>{{token("ஆ"), {{token("இ"), false}}}}),
              "(AbstractStructDefinition அ (ஆ இ))");
    EXPECT_EQ(made<StructDefinitionStatement>(token("அ"), token("ஆ"), true), "(StructDefinition அ < ஆ)");
    EXPECT_FALSE(Param().isMutable);
}

TEST(SyntaxTree, DeclaredTypesHaveFixedNumbers) {
    EXPECT_EQ(static_cast<int>(VarType::Auto), 0);
    EXPECT_EQ(static_cast<int>(VarType::Time), 6);
    EXPECT_EQ(static_cast<int>(VarType::List), 7);
    EXPECT_EQ(static_cast<int>(VarType::Object), 8);
    EXPECT_EQ(static_cast<int>(VarType::Map), 9);
}

TEST(SyntaxTree, DatabaseNodesTakeTheirFieldsInOrder) {
    const RTDBInsertExpression insert(name("அ"), name("ஆ"));
    EXPECT_EQ(treeText(insert.path.get()) + treeText(insert.data.get()), "அஆ");
    const RTDBUpdateExpression update(name("அ"), std::make_unique<MapLiteral>());
    EXPECT_EQ(treeText(update.path.get()) + treeText(update.data.get()), "அ(Map)");
    const RTDBDeleteExpression removal(name("அ"));
    EXPECT_EQ(treeText(removal.path.get()), "அ");
    const RTDBReadStatement read(name("அ"), pass());
    EXPECT_EQ(treeText(read.path.get()) + treeText(read.body.at(0).get()), "அ(Pass)");
}

TEST(SyntaxTree, AnApplicationStartsWithoutProperties) {
    const WebAppNode app("அ", std::make_unique<PassStatement>(), std::make_unique<BreakStatement>(),
                         std::make_unique<ContinueStatement>(), std::make_unique<SetStateStatement>());
    EXPECT_EQ(app.name, "அ");
    EXPECT_EQ(treeText(app.databaseManager.get()) + treeText(app.header.get()), "(Pass)(Break)");
    EXPECT_EQ(treeText(app.uiBody.get()) + treeText(app.definition.get()), "(Continue)(SetState)");
    EXPECT_TRUE(app.properties.empty());
    EXPECT_FALSE(app.flag);
    EXPECT_EQ(treeText(DatabaseManagerNode(std::make_unique<PassStatement>()).firebaseConfig.get()), "(Pass)");
    EXPECT_EQ(treeText(FirebaseConfigNode(property("அ", "ஆ")).properties.at("அ").get()), "ஆ");
    EXPECT_EQ(treeText(LogicBlockNode(block()).block.get()), "(Block)");
}

TEST(SyntaxTree, AlignmentsAreNumberedInReadingOrder) {
    EXPECT_EQ(static_cast<int>(சீரமைப்பு_வகை::மேல்_இடது), 0);
    EXPECT_EQ(static_cast<int>(சீரமைப்பு_வகை::மேல்_மையம்), 1);
    EXPECT_EQ(static_cast<int>(சீரமைப்பு_வகை::மேல்_வலது), 2);
    EXPECT_EQ(static_cast<int>(சீரமைப்பு_வகை::மைய_இடது), 3);
    EXPECT_EQ(static_cast<int>(சீரமைப்பு_வகை::மையம்), 4);
    EXPECT_EQ(static_cast<int>(சீரமைப்பு_வகை::மைய_வலது), 5);
    EXPECT_EQ(static_cast<int>(சீரமைப்பு_வகை::கீழ்_இடது), 6);
    EXPECT_EQ(static_cast<int>(சீரமைப்பு_வகை::கீழ்_மையம்), 7);
    EXPECT_EQ(static_cast<int>(சீரமைப்பு_வகை::கீழ்_வலது), 8);
}

TEST(SyntaxTree, AWidgetStartsWithoutEventStyleAndAnimation) {
    const WidgetNode widget("உரை", property("அ", "ஆ"), pass(), சீரமைப்பு_வகை::மையம்);
    EXPECT_EQ(widget.kind, "உரை");
    EXPECT_EQ(treeText(widget.properties.at("அ").get()), "ஆ");
    EXPECT_EQ(treeText(widget.children.at(0).get()), "(Pass)");
    EXPECT_EQ(widget.alignment, சீரமைப்பு_வகை::மையம்);
    EXPECT_EQ(widget.eventName, "");
    EXPECT_TRUE(widget.eventStatements.empty());
    EXPECT_FALSE(widget.flag);
    EXPECT_EQ(widget.animation, nullptr);
    EXPECT_TRUE(WidgetNode("உரை", {}, {}, சீரமைப்பு_வகை::மையம், true).flag);
}

TEST(SyntaxTree, TextIsBlackAndPlainUnlessStyled) {
    const TextStyle style;
    EXPECT_EQ(style.color, "#000000");
    EXPECT_EQ(style.size, 16.0F);
    EXPECT_EQ(style.weight, "normal");
    EXPECT_EQ(style.align, "left");
    EXPECT_EQ(style.font, "");
    EXPECT_FALSE(style.underline);
    EXPECT_EQ(WidgetNode("உரை", {}, {}, சீரமைப்பு_வகை::மையம்).style.color, "#000000");
}

TEST(SyntaxTree, WidgetClassesFixTheirKind) {
    EXPECT_EQ(ColumnNode({}, சீரமைப்பு_வகை::மையம்).kind, "நெடுவரிசை");
    EXPECT_EQ(RowNode({}, சீரமைப்பு_வகை::மையம்).kind, "கிடைவரிசை");
    EXPECT_EQ(ExpandedNode({}).kind, "விரிவாக்கம்");
    EXPECT_EQ(FlexibleNode(2, {}).kind, "நெகிழ்வு");
    EXPECT_EQ(GridViewNode({}).kind, "கட்டம்_காட்சி");
    EXPECT_EQ(ListViewNode({}).kind, "பட்டியல்_காட்சி");
    EXPECT_EQ(PaddingNode().kind, "உள்_இவே");
    EXPECT_EQ(ContainerNode({}, சீரமைப்பு_வகை::மையம்).kind, "பெட்டி");
    EXPECT_EQ(SnackBarNode({}).kind, "அறிவிப்பு_பட்டை");
    EXPECT_EQ(HeaderNode("தலைமை", {}, {}, {}).kind, "தலைமை");
}

TEST(SyntaxTree, WidgetClassesPassOnWhatTheyAreGiven) {
    EXPECT_EQ(ColumnNode({}, சீரமைப்பு_வகை::கீழ்_வலது).alignment, சீரமைப்பு_வகை::கீழ்_வலது);
    EXPECT_EQ(RowNode(pass(), சீரமைப்பு_வகை::மையம்).children.size(), 1U);
    EXPECT_EQ(FlexibleNode(2, pass()).flex, 2);
    EXPECT_EQ(FlexibleNode(2, pass()).children.size(), 1U);
    EXPECT_TRUE(ContainerNode({}, சீரமைப்பு_வகை::மையம், true).flag);
    EXPECT_FALSE(ContainerNode({}, சீரமைப்பு_வகை::மையம்).flag);
    EXPECT_TRUE(SnackBarNode({}, true).flag);
    EXPECT_EQ(HeaderNode("தலைமை", property("அ", "ஆ"), {}, {}).properties.size(), 1U);
}

TEST(SyntaxTree, ABoxStartsBlackWithoutSize) {
    const ContainerNode box({}, சீரமைப்பு_வகை::மையம்);
    EXPECT_EQ(box.width, 0.0F);
    EXPECT_EQ(box.height, 0.0F);
    EXPECT_EQ(box.radius, 0.0F);
    EXPECT_EQ(box.background, "#000000");
    EXPECT_EQ(box.backgroundImage, "");
    EXPECT_EQ(PaddingNode().padding, 0.0F);
}

TEST(SyntaxTree, ASnackBarStartsHiddenForThreeSeconds) {
    const SnackBarNode bar({});
    EXPECT_EQ(bar.content, nullptr);
    EXPECT_EQ(bar.background, "#333333");
    EXPECT_EQ(bar.durationMs, 3000);
    EXPECT_EQ(bar.direction, "கீழ்_இருந்து_மேல்");
    EXPECT_EQ(bar.progress, 0.0F);
    EXPECT_EQ(bar.elapsed, 0.0F);
    EXPECT_TRUE(bar.startHidden);
}

TEST(SyntaxTree, AScreenHasItsDefaultSizeUnlessGiven) {
    const ScreenConfig screen;
    EXPECT_TRUE(screen.useDefault);
    EXPECT_EQ(screen.width, 0.0F);
    EXPECT_EQ(screen.height, 0.0F);
    EXPECT_FALSE(HeaderNode("தலைமை", {}, {}, {false, 3, 4}).screen.useDefault);
}

TEST(SyntaxTree, AnAnimationStartsLinearWithoutTargets) {
    const AnimationNode animation;
    EXPECT_EQ(animation.duration, 0.0F);
    EXPECT_EQ(animation.curve, "linear");
    EXPECT_TRUE(animation.numericTargets.empty());
    EXPECT_EQ(animation.condition, "");
    EXPECT_TRUE(animation.stringTargets.empty());
    const AnimationTargetNode& target = animation.target;
    for (const auto* amount :
         {&target.fadeIn, &target.fadeOut, &target.scaleUp, &target.scaleDown, &target.slideLeft, &target.slideRight,
          &target.slideUp, &target.slideDown, &target.rotateCw, &target.rotateCcw, &target.moveX, &target.moveY,
          &target.width, &target.height, &target.radius}) {
        EXPECT_FALSE(amount->has_value());
    }
    EXPECT_FALSE(target.color.has_value());
    EXPECT_FALSE(target.bounce);
    EXPECT_FALSE(target.elastic);
}

TEST(SyntaxTree, AnExpressionSlotCarriesAWidgetThatATestTellsApart) {
    const ExpressionPtr slot = std::make_unique<WidgetExpression>(
        std::make_unique<WidgetNode>("உரை", PropertyMap(), StatementList(), சீரமைப்பு_வகை::மையம்));
    const auto* widget = dynamic_cast<const WidgetExpression*>(slot.get());
    ASSERT_NE(widget, nullptr);
    EXPECT_EQ(widget->widget->kind, "உரை");
    EXPECT_EQ(dynamic_cast<const WidgetExpression*>(name("உரை").get()), nullptr);
    EXPECT_EQ(dynamic_cast<const VariableAccess*>(slot.get()), nullptr);
}

} // namespace
