// Declarations and writes for which the parser has nodes of their own. No source leads to them: an assignment takes
// every form over. The generator knows them all the same.

#include "support/generating.h"

#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;

namespace {

const std::string BIRD = "கட்டமைப்பு பறவை:\n    வயது = 1\n";
const std::string BUILT_BIRD = BIRD + "    செயல் துவக்கம்(தான், வயது):\n        தான்.வயது = வயது\n";
const std::string CHILD = BUILT_BIRD + "கட்டமைப்பு கிளி(பறவை):\n    நிறம்_பெயர் = 2\n";

StatementPtr declaration(const std::string& name, ExpressionPtr value, VarType type = VarType::Auto) {
    return make<VarDeclaration>(name, std::move(value), type);
}

ExpressionPtr list() {
    return make<ListLiteral>();
}

ExpressionPtr map() {
    return make<MapLiteral>();
}

/// name கழி 1, as a statement that prints it: its cast shows the type that the name is taken to have.
StatementPtr subtraction(const std::string& name) {
    auto difference = make<BinaryExpression>(variable(name), Token{TokenType::OPERATOR, "கழி", 3}, number("1"));
    difference->line = 3;
    return make<PrintStatement>(listOf<ExpressionList>(std::move(difference)));
}

ExpressionPtr aTime() {
    return call("இப்போதுநேரம்");
}

const std::string NOW = "std::any([]() { static std::time_t t; t = std::time(nullptr); return std::localtime(&t); }())";

TEST(DeclarationOutsideFunctions, WritesTheGlobalVariable) {
    EXPECT_EQ(mainBody("", listOf(declaration("அ", number("5")))), "    global_vars[\"அ\"] = std::any(5LL);\n");
    EXPECT_EQ(mainBody("", listOf(declaration("அ", variable("ஆ")))),
              "    global_vars[\"அ\"] = std::any(global_vars[\"ஆ\"]);\n");
    EXPECT_EQ(mainBody("", listOf(declaration("மாறிலி", number("1")), declaration("மாறிலி", number("2")))),
              "    global_vars[\"மாறிலி\"] = std::any(1LL);\n    global_vars[\"மாறிலி\"] = std::any(2LL);\n");
}

TEST(DeclarationOutsideFunctions, RemembersTheType) {
    EXPECT_EQ(
        mainBody("", listOf(declaration("அ", make<DoubleLiteral>("2.5")), subtraction("அ"))),
        "    global_vars[\"அ\"] = std::any(2.5L);\n"
        "    std::cout << fn_any_to_string(std::any_cast<long double>(global_vars[\"அ\"]) - 1LL) << std::endl;\n");
    EXPECT_EQ(generatorFault("", listOf(declaration("அ", text("")), subtraction("அ"))), "பொழி-303 வரி 3");
}

TEST(DeclarationInAFunction, BeginsANativeVariableTheFirstTime) {
    EXPECT_EQ(functionBody(listOf(declaration("அ", number("5")), declaration("அ", number("6")))),
              "    std::any அ = std::any(5LL);\n    அ = std::any(6LL);\n");
    EXPECT_EQ(functionBody(listOf(declaration("உ", number("5")))), "    உ = std::any(5LL);\n") << "a parameter";
    EXPECT_EQ(functionBody(listOf(declaration("அ", make<DoubleLiteral>("2.5")), subtraction("அ"))),
              "    std::any அ = std::any(2.5L);\n"
              "    std::cout << fn_any_to_string(std::any_cast<long long>(அ) - 1LL) << std::endl;\n")
        << "a native variable has no known type";
}

TEST(DeclarationInAFunction, WritesTheGlobalVariableOfANameThatWasAssignedBefore) {
    EXPECT_EQ(
        functionBody(listOf(assignment("அ", number("1")), declaration("அ", number("2")))),
        "    (global_vars[\"அ\"] = std::any(1LL), global_vars[\"அ\"]);\n    global_vars[\"அ\"] = std::any(2LL);\n");
    EXPECT_EQ(functionBody(listOf(declaration("பறவை", number("2"))), BIRD),
              "    global_vars[\"பறவை\"] = std::any(2LL);\n")
        << "a structure's name";
}

TEST(DeclarationInAFunction, OfAListOrMapIsBegunAsNativeButWritesTheGlobalVariable) {
    EXPECT_EQ(functionBody(listOf(declaration("அ", list(), VarType::List))),
              "    std::any global_vars[\"அ\"] = std::vector<std::any>({});\n");
    EXPECT_EQ(functionBody(listOf(declaration("அ", map()))),
              "    std::any global_vars[\"அ\"] = std::map<std::string, std::any>({});\n")
        << "the type is inferred where it isn't declared";
    EXPECT_EQ(functionBody(listOf(declaration("உ", list()))), "    global_vars[\"உ\"] = std::vector<std::any>({});\n");
}

TEST(DeclaredType, DecidesWhetherTheValueGoesBare) {
    EXPECT_EQ(mainBody("", listOf(declaration("அ", list()))), "    global_vars[\"அ\"] = std::vector<std::any>({});\n");
    EXPECT_EQ(mainBody("", listOf(declaration("அ", aTime(), VarType::Time))),
              "    global_vars[\"அ\"] = " + NOW + ";\n");
    EXPECT_EQ(mainBody("", listOf(declaration("அ", number("1"), VarType::Time))), "    global_vars[\"அ\"] = 1LL;\n");
    EXPECT_EQ(mainBody("", listOf(declaration("அ", number("1"), VarType::List))),
              "    global_vars[\"அ\"] = std::any(1LL);\n");
    EXPECT_EQ(mainBody("", listOf(declaration("அ", text("உ"), VarType::Integer))),
              "    global_vars[\"அ\"] = std::any(std::string(u8\"உ\"));\n");
}

TEST(ObjectDeclaration, MakesFillsAndStoresTheObject) {
    EXPECT_EQ(mainBody(BIRD, listOf(declaration("அ", call("பறவை"), VarType::Object))),
              "    global_vars[\"அ\"] = std::any();\n"
              "    auto obj_அ = std::make_shared<பறவை>();\n"
              "    obj_அ->properties[\"வயது\"] = std::any(1LL);\n"
              "    global_vars[\"அ\"] = std::any(std::static_pointer_cast<_StructBase>(obj_அ));\n");
    EXPECT_EQ(functionBody(listOf(declaration("அ", call("பறவை"))), BIRD),
              "    std::any அ = std::any();\n"
              "    auto obj_அ = std::make_shared<பறவை>();\n"
              "    obj_அ->properties[\"வயது\"] = std::any(1LL);\n"
              "    அ = std::any(std::static_pointer_cast<_StructBase>(obj_அ));\n");
}

TEST(ObjectDeclaration, CallsTheConstructorOfTheStructureItself) {
    const std::string body =
        mainBody(BUILT_BIRD, listOf(declaration("அ", call("பறவை", listOf<ExpressionList>(number("7"))))));
    EXPECT_NE(body.find("; }));\n"
                        "    fn_பறவை_துவக்கம்(std::static_pointer_cast<_StructBase>(obj_அ), std::any(7LL));\n"
                        "    global_vars[\"அ\"] = "),
              std::string::npos)
        << body;
}

TEST(ObjectDeclaration, LooksForNoConstructorInTheParents) {
    const std::string body = mainBody(CHILD, listOf(declaration("அ", call("கிளி"))));
    EXPECT_EQ(body.find("\n    fn_பறவை_துவக்கம்("), std::string::npos) << body;
    auto withArgument = [] { return declaration("அ", call("கிளி", listOf<ExpressionList>(number("7")))); };
    EXPECT_NE(generatorReport(CHILD, listOf(withArgument())).find("('கிளி' கட்டமைப்பில் 'துவக்கம்()' வரையறுக்கப்படவில்லை.)"),
              std::string::npos);
    EXPECT_EQ(generatorFault(CHILD, listOf(withArgument())), "பொழி-333 வரி 0");
}

TEST(ObjectDeclaration, MakesTheNameAnObject) {
    const std::string body = functionBody(listOf(assignment("அ", number("1")), declaration("அ", call("பறவை")),
                                                 make<ExpressionStatement>(member(variable("அ"), "வயது"))),
                                          BIRD);
    EXPECT_NE(body.find("fn_get_property("), std::string::npos) << body;
}

TEST(ObjectDeclaration, OfAnythingButAStructureLeavesALineWithoutTarget) {
    ExpressionPtr lambda = make<LambdaExpression>(std::vector<Token>{}, number("1"));
    EXPECT_EQ(mainBody("", listOf(declaration("அ", std::move(lambda)))),
              "    global_vars[\"அ\"] = std::any();\n"
              " = std::function<std::any()>([=]() { return std::any(1LL); });\n");
    EXPECT_EQ(mainBody("", listOf(declaration("அ", call("எண்", listOf<ExpressionList>(number("1"))), VarType::Object))),
              "    global_vars[\"அ\"] = std::any();\n = std::any(fn_cast_to_number(1LL, 3));\n");
}

TEST(SetStatement, WritesAnElement) {
    ExpressionPtr element = make<IndexExpression>(variable("அ"), number("0"));
    EXPECT_EQ(mainBody("", listOf(make<SetStatement>(std::move(element), text("உ")))),
              "    fn_index_ref(global_vars[\"அ\"], std::any(0LL)) = std::any(std::string(u8\"உ\"));\n");
}

TEST(SetStatement, WritesAPropertyOfAnObject) {
    EXPECT_EQ(mainBody("அ = () => 1\n", listOf(make<SetStatement>(member(variable("அ"), "ஆ"), number("1")))),
              mainBody("அ = () => 1\n") + "    std::any_cast<std::shared_ptr<_StructBase>>(global_vars[\"அ\"])"
                                          "->properties[\"ஆ\"] = std::any(1LL);\n");
}

TEST(SetStatement, RefusesWhatHasNoPropertiesToWrite) {
    const auto write = [](const std::string& name, const std::string& property) {
        return listOf(make<SetStatement>(member(variable(name), property), number("1")));
    };
    EXPECT_EQ(generatorFault("அ = இப்போதுநேரம்()\n", write("அ", "ஆண்டு")), "பொழி-322 வரி 3");
    EXPECT_EQ(generatorFault("", write("அ", "ஆ")), "பொழி-304 வரி 3");
    EXPECT_NE(generatorReport("", write("அ", "ஆ")).find("('.' operator-ஐ இந்தப் பொருளில் பயன்படுத்த முடியாது.)"),
              std::string::npos);
}

TEST(SetStatement, GuardsPrivateFields) {
    const std::string source = "கட்டமைப்பு பறவை:\n    ரகசிய வயது = 1\nஅ = பறவை()\n";
    StatementPtr write = make<SetStatement>(member(variable("அ"), "வயது"), number("1"));
    EXPECT_EQ(generatorFault(source, listOf(std::move(write))), "பொழி-321 வரி 3");
    write = make<SetStatement>(member(call("பறவை"), "வயது"), number("1"));
    EXPECT_EQ(generatorFault(source, listOf(std::move(write))), "none") << "not behind a name";
}

TEST(SetStatement, ToAnythingElseIsEmpty) {
    EXPECT_EQ(mainBody("", listOf(make<SetStatement>(variable("அ"), number("1")))), "    ;\n");
}

TEST(CompoundAssignmentStatement, WritesTheTargetTwice) {
    EXPECT_EQ(mainBody("", listOf(make<CompoundAssignmentStatement>(variable("அ"), word("கூட்டிசேர்"), variable("ஆ")))),
              "    global_vars[\"அ\"] = std::any(std::any_cast<long long>(global_vars[\"அ\"]) += "
              "std::any_cast<long long>(global_vars[\"ஆ\"]));\n");
    EXPECT_EQ(mainBody("", listOf(make<CompoundAssignmentStatement>(variable("அ"), word("கழிசேர்"), number("0")))),
              "    global_vars[\"அ\"] = std::any(std::any_cast<long long>(global_vars[\"அ\"]) -= "
              "std::any_cast<long long>(std::any(0LL)));\n");
}

TEST(IncrementStatement, StepsTheTarget) {
    EXPECT_EQ(mainBody("", listOf(make<IncrementStatement>(variable("அ"), word("ஒன்றுசேர்")))),
              "    global_vars[\"அ\"] = std::any(std::any_cast<long long>(global_vars[\"அ\"]) ++);\n");
    EXPECT_EQ(functionBody(listOf(make<IncrementStatement>(variable("உ"), word("ஒன்றுகழி")))),
              "    உ = std::any(std::any_cast<long long>(உ) --);\n");
}

TEST(OperatorWords, EachHasItsSymbol) {
    const std::pair<const char*, const char*> symbols[] = {
        {"கூட்டு", "+"},      {"கழி", "-"},        {"பெருக்கு", "*"},     {"வகு", "/"},        {"மீதி", "%"},
        {"சமம்", "=="},       {"சமமில்லை", "!="},   {"பெரிது", ">"},      {"சிறிது", "<"},     {"பெரிதுசமம்", ">="},
        {"சிறிதுசமம்", "<="}, {"மற்றும்", "&&"},     {"அல்லது", "||"},      {"இல்லை", "!"},       {"பெருக்குஇருமை", "&"},
        {"கூட்டுஇருமை", "|"}, {"வேறுஇருமை", "^"},  {"எதிர்இருமை", "~"},   {"இடதுஇருமை", "<<"}, {"வலதுஇருமை", ">>"},
        {"கூட்டிசேர்", "+="},  {"கழிசேர்", "-="},    {"பெருக்குசேர்", "*="}, {"வகுசேர்", "/="},    {"மீதிசேர்", "%="},
        {"பெஇசேர்", "&="},    {"கூட்டுஇசேர்", "|="}, {"வேஇசேர்", "^="},     {"இடதுஇசேர்", "<<="}, {"வலதுஇசேர்", ">>="},
        {"ஒன்றுசேர்", "++"},   {"ஒன்றுகழி", "--"},
    };
    EXPECT_EQ(std::size(symbols), 32U);
    for (const auto& [name, symbol] : symbols) {
        EXPECT_EQ(mainBody("", listOf(make<CompoundAssignmentStatement>(variable("அ"), word(name), number("1")))),
                  "    global_vars[\"அ\"] = std::any(std::any_cast<long long>(global_vars[\"அ\"]) " +
                      std::string(symbol) + " std::any_cast<long long>(1LL));\n");
    }
}

TEST(OperatorWords, AnyOtherIsRefusedWithoutALine) {
    const auto statement = [](const std::string& name) {
        return listOf(make<IncrementStatement>(variable("அ"), word(name)));
    };
    EXPECT_EQ(generatorFault("", statement("இணை")), "பொழி-304 வரி 0");
    EXPECT_NE(generatorReport("", statement("இணை")).find("(Operator: இணை)"), std::string::npos);
}

} // namespace
