// Functions, structures and the objects made of them, to the blank: what stands behind the runtime.

#include "support/generating.h"

#include <string>

#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;

namespace {

const std::string EMPTY_FRAME = "void init_globals() {\n}\n\nint main() {\nreturn 0;\n}\n";
const std::string GUARD = "    CallTracker _tracker(\"நிரல்.பொழில்\");\n";
const std::string DEFAULT_RETURN = "\n    return std::any(); // Default return\n}\n\n";

/// The emitted structures and functions of \p source, whose main stays empty.
std::string definitions(const std::string& source) {
    const std::string own = ownPart(generatedText(source));
    const std::size_t end = own.size() < EMPTY_FRAME.size() ? 0 : own.size() - EMPTY_FRAME.size();
    EXPECT_EQ(own.substr(end), EMPTY_FRAME);
    return own.substr(0, end);
}

/// A structure that the parser's table doesn't have.
StatementPtr structure(const std::string& name, const std::string& parent) {
    return make<StructDefinitionStatement>(word(name), word(parent), name != parent);
}

TEST(Function, IsAGuardTheBodyAndADefaultReturn) {
    EXPECT_EQ(definitions("செயல் f():\n    விடு\n"), "std::any fn_f() {\n" + GUARD + "    (void)0;\n" + DEFAULT_RETURN);
    EXPECT_EQ(definitions("செயல் f(அ, மாற்று ஆ, இ):\n    எனில் மெய்:\n        திரும்பு அ\n    திரும்பு\n"),
              "std::any fn_f(std::any அ, std::any& ஆ, std::any இ) {\n" + GUARD +
                  "    if (std::any_cast<bool>(true)) {\n        return std::any(அ);\n    }\n    return std::any();\n" +
                  DEFAULT_RETURN);
}

TEST(Function, InAFunctionIsANativeClosure) {
    EXPECT_EQ(definitions("செயல் f():\n    செயல் g(அ, மாற்று ஆ):\n        செயல் h():\n            விடு\n"),
              "std::any fn_f() {\n" + GUARD +
                  "    std::any g = std::any(std::function<std::any(std::any, std::any)>([=](std::any அ, std::any ஆ) "
                  "mutable -> std::any {\n    " +
                  GUARD +
                  "        std::any h = std::any(std::function<std::any()>([=]() mutable -> std::any {\n        " +
                  GUARD +
                  "            (void)0;\n\n            return std::any();\n        }));\n"
                  "\n        return std::any();\n    }));\n" +
                  DEFAULT_RETURN);
}

TEST(Structure, IsAClassThatNamesItsMembersAndAFunctionEachMethod) {
    EXPECT_EQ(definitions("கட்டமைப்பு ப:\n    அ = 1\n    ரகசிய ஆ = 2\n    செயல் இ(தான், ஈ):\n        விடு\n"
                          "    ரகசிய செயல் உ(self):\n        விடு\n"),
              "struct ப : public _StructBase {\nprivate:\n// ஆ\n// உ()\npublic:\n// அ\n// இ()\n};\n"
              "using T_ப = std::shared_ptr<ப>;\n"
              "std::any fn_ப_இ(std::shared_ptr<_StructBase> தான், std::any ஈ) {\n" +
                  GUARD + "    (void)0;\n" + DEFAULT_RETURN + "std::any fn_ப_உ(std::shared_ptr<_StructBase> self) {\n" +
                  GUARD + "    (void)0;\n" + DEFAULT_RETURN);
}

TEST(Structure, WithoutMembersIsAnEmptyClass) {
    EXPECT_EQ(definitions("கட்டமைப்பு ப:\n    விடு\n"),
              "struct ப : public _StructBase {\n};\nusing T_ப = std::shared_ptr<ப>;\n");
}

TEST(Structure, DerivesFromItsParentUnlessThatIsAbstract) {
    EXPECT_EQ(definitions("வடிவமைப்பு வ:\n    செயல் ம(தான்)\nகட்டமைப்பு ப(வ):\n    செயல் ம(தான்):\n        விடு\n"
                          "கட்டமைப்பு க(ப):\n    விடு\n"),
              "struct ப : public _StructBase {\npublic:\n// ம()\n};\nusing T_ப = std::shared_ptr<ப>;\n"
              "std::any fn_ப_ம(std::shared_ptr<_StructBase> தான்) {\n" +
                  GUARD + "    (void)0;\n" + DEFAULT_RETURN +
                  "struct க : public ப {\n};\nusing T_க = std::shared_ptr<க>;\n");
}

TEST(Structure, NeedsAParentThatExists) {
    EXPECT_EQ(generatorFault("", listOf(structure("க", "ப"))), "பொழி-323 வரி 3");
    EXPECT_NE(generatorReport("", listOf(structure("க", "ப"))).find("('ப')"), std::string::npos);
}

TEST(Object, OfAnUnknownStructureIsRefusedWithoutALine) {
    const auto program = [] { return listOf(structure("க", "க"), make<ExpressionStatement>(call("க"))); };
    EXPECT_EQ(generatorFault("", program()), "பொழி-323 வரி 0");
    EXPECT_NE(generatorReport("", program()).find("('க')"), std::string::npos);
}

TEST(Object, OfStructuresThatAreEachOthersParentsIsRefused) {
    const std::string circle = "கட்டமைப்பு ப:\n    விடு\nகட்டமைப்பு க(ப):\n    விடு\nகட்டமைப்பு ப(க):\n    விடு\n";
    EXPECT_EQ(generatorFault(circle + "க()\n"), "பொழி-323 வரி 0");
}

TEST(Object, IsBoundFromTheFarthestParentOnAndConstructedByTheNearest) {
    EXPECT_EQ(mainBody("கட்டமைப்பு ப:\n    அ = 1\n    செயல் துவக்கம்(தான், ஆ):\n        விடு\n"
                       "கட்டமைப்பு க(ப):\n    அ = []\nபொ = க(ஈ)\n"),
              "    (global_vars[\"பொ\"] = [&]() -> std::any {\n"
              "        auto temp_obj = std::make_shared<க>();\n"
              "        temp_obj->properties[\"அ\"] = std::any(1LL);\n"
              "        temp_obj->properties[\"துவக்கம்\"] = std::any(std::function<std::any(std::any)>([=](std::any ஆ) "
              "{ return fn_ப_துவக்கம்(std::static_pointer_cast<_StructBase>(temp_obj), ஆ); }));\n"
              "        temp_obj->properties[\"அ\"] = std::any(std::vector<std::any>({}));\n"
              "        fn_ப_துவக்கம்(std::static_pointer_cast<_StructBase>(temp_obj), std::any(global_vars[\"ஈ\"]));\n"
              "        return std::any(std::static_pointer_cast<_StructBase>(temp_obj));\n"
              "    }(), global_vars[\"பொ\"]);\n");
}

} // namespace
