// The scripts that the database's operations become, and the loader of its libraries.

#include "support/generating.h"

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;

namespace {

const std::string insertWord = "நிகழ்நேர.தரவுசேர்";
const std::string updateWord = "நிகழ்நேர.தரவுமாற்று";
const std::string deleteWord = "நிகழ்நேர.தரவுஅழி";
const std::string readWord = "நிகழ்நேர.தரவுபடி";

/// Where each of \p pieces stands in \p text behind the one before; the first that doesn't is named.
testing::AssertionResult inOrder(const std::string& text, const std::vector<std::string>& pieces) {
    std::size_t position = 0;
    for (const std::string& piece : pieces) {
        const std::size_t found = text.find(piece, position);
        if (found == std::string::npos) {
            return testing::AssertionFailure() << "no " << piece << " there in\n" << text;
        }
        position = found + piece.size();
    }
    return testing::AssertionSuccess();
}

bool holds(const std::string& text, const std::string& piece) {
    return text.find(piece) != std::string::npos;
}

/// The lines that put the JSON text together.
std::string jsonLines(const std::string& source) {
    const std::string body = mainBody(source);
    const std::size_t begin = body.find("    std::string json_data");
    const std::size_t end = body.find("    std::string script");
    return begin == std::string::npos || end == std::string::npos ? body : body.substr(begin, end - begin);
}

/// The lines of the emitted text that a native compiler sees, without their blanks in front.
std::string nativePart(const std::string& text) {
    std::istringstream lines(text);
    std::string kept;
    bool isNative = true;
    for (std::string line; std::getline(lines, line);) {
        line.erase(0, line.find_first_not_of(' '));
        if (line == "#ifdef __EMSCRIPTEN__") {
            isNative = false;
        } else if (line == "#endif") {
            isNative = true;
        } else if (isNative) {
            kept += line + "\n";
        }
    }
    return kept;
}

/// An application with these sections beside an empty page.
std::string application(const std::string& database, const std::string& logic = "", const std::string& widgets = "") {
    return "வலைதளம் தளம்(\n" + database + "\nதலைமை()\nகுமரி(" + widgets + ")\nவரையறை(" + logic + ")\n)\n";
}

/// The body of init_globals of an application.
std::string setUp(const std::string& source) {
    const std::string text = ownPart(generatedText(source));
    const std::size_t begin = text.find("void init_globals() {\n");
    return text.substr(begin, text.find("\n}\n", begin) - begin);
}

TEST(DatabaseInsert, SendsEveryValueAsText) {
    EXPECT_EQ(jsonLines("ம = 1\n" + insertWord + "(\"அ\") {உ: \"ஊ\", \"எ ஏ\": 5, ஒ: ம}\n"),
              "    std::string json_data = \"{\";\n"
              "    json_data += \"\\\"உ\\\": \\\"\" + fn_any_to_string(std::string(u8\"ஊ\")) + \"\\\"\";\n"
              "    json_data += \", \\\"எ ஏ\\\": \\\"\" + fn_any_to_string(5LL) + \"\\\"\";\n"
              "    json_data += \", \\\"ஒ\\\": \\\"\" + fn_any_to_string(global_vars[\"ம\"]) + \"\\\"\";\n"
              "    json_data += \"}\";\n");
    EXPECT_EQ(jsonLines(insertWord + "(\"அ\") {}\n"), "    std::string json_data = \"{\";\n    json_data += \"}\";\n");
}

TEST(DatabaseInsert, SendsEveryEntryOfAKey) {
    EXPECT_EQ(jsonLines(insertWord + "(\"அ\") {உ: 1, உ: 2}\n"),
              "    std::string json_data = \"{\";\n"
              "    json_data += \"\\\"உ\\\": \\\"\" + fn_any_to_string(1LL) + \"\\\"\";\n"
              "    json_data += \", \\\"உ\\\": \\\"\" + fn_any_to_string(2LL) + \"\\\"\";\n"
              "    json_data += \"}\";\n");
}

TEST(DatabaseInsert, LooksForTheConnectionFirst) {
    const std::string text = mainBody(insertWord + "(\"அ\" இணை 1) {}\n");
    EXPECT_TRUE(
        inOrder(text, {"#ifdef __EMSCRIPTEN__\n", "std::string path_str = fn_any_to_string(", "json_data", "try {",
                       "typeof window.db === 'undefined'", "throw Error('Firebase Database இணைக்கப்படவில்லை!')",
                       "JSON.parse('\" + json_data + \"')", "window.db.ref('\" + path_str + \"').set(data)",
                       "console.log('✅ தரவு வெற்றிகரமாக சேமிக்கப்பட்டது!')", "console.error('❌ ஃபயர்பேஸ் பிழை:', error)",
                       "catch (error)", "'🔥 பொழில் இயக்கநேரப் பிழை (WASM):', error.message", "pozhil_run_script(script);",
                       "#endif\n"}));
}

TEST(DatabaseInsert, OfAnythingButAMapHasNoEntries) {
    StatementList statements = listOf(make<ExpressionStatement>(make<RTDBInsertExpression>(text("அ"), variable("ம"))));
    const std::string body = mainBody("ம = 1\n", std::move(statements));
    EXPECT_TRUE(inOrder(body, {"json_data = \"{\";\n", "json_data += \"}\";\n"})) << body;
    EXPECT_FALSE(holds(body, "json_data += \"\\\"")) << body;
}

TEST(DatabaseUpdate, QuotesTextsOfTheSourceAlone) {
    EXPECT_EQ(jsonLines("ம = \"ஊ\"\n" + updateWord + "(\"அ\") {உ: \"ஊ\", எ: 5, ஒ: ம, ஓ: (\"ஊ\")}\n"),
              "    std::string json_data = \"{\";\n"
              "    json_data += \"\\\"உ\\\": \\\"\" + fn_any_to_string(std::string(u8\"ஊ\")) + \"\\\"\";\n"
              "    json_data += \", \\\"எ\\\": \" + fn_any_to_string(5LL) + \"\";\n"
              "    json_data += \", \\\"ஒ\\\": \" + fn_any_to_string(global_vars[\"ம\"]) + \"\";\n"
              "    json_data += \", \\\"ஓ\\\": \" + fn_any_to_string((std::string(u8\"ஊ\"))) + \"\";\n"
              "    json_data += \"}\";\n");
}

TEST(DatabaseUpdate, AColourIsNoText) {
    const auto entry = [](const std::string& word) { return jsonLines(word + "(\"அ\") {உ: \"#FF0000\"}\n"); };
    EXPECT_TRUE(inOrder(entry(updateWord), {"\"உ\\\": \" + fn_any_to_string(nvgRGBA(255, 0, 0, 255)) + \"\";\n"}));
    EXPECT_TRUE(
        inOrder(entry(insertWord), {"\"உ\\\": \\\"\" + fn_any_to_string(nvgRGBA(255, 0, 0, 255)) + \"\\\"\";\n"}));
}

TEST(DatabaseUpdate, DoesNotLookForTheConnection) {
    const std::string text = mainBody(updateWord + "(\"அ\") {}\n");
    EXPECT_TRUE(
        inOrder(text, {"try {", "JSON.parse(", "window.db.ref('\" + path_str + \"').update(data)",
                       "console.log('✅ தரவு வெற்றிகரமாக மாற்றப்பட்டது!')", "console.error('❌ ஃபயர்பேஸ் பிழை:', error)",
                       "catch (error)", "'🔥 பொழில் இயக்கநேரப் பிழை (WASM):', error.message"}));
    EXPECT_FALSE(holds(text, "undefined")) << text;
}

TEST(DatabaseDelete, RemovesThePath) {
    const std::string text = mainBody(deleteWord + "(\"அ\")\n");
    EXPECT_TRUE(
        inOrder(text, {"window.db.ref('\" + path_str + \"').remove()", "console.log('✅ தரவு வெற்றிகரமாக அழிக்கப்பட்டது!')",
                       "console.error('❌ ஃபயர்பேஸ் பிழை:', error)"}));
    EXPECT_FALSE(holds(text, "try")) << text;
    EXPECT_FALSE(holds(text, "json_data")) << text;
}

TEST(DatabaseRead, KeepsItsBodyForLater) {
    const std::string text = mainBody(readWord + "(\"அ\") {\n    அச்சிடு(1)\n}\nஅச்சிடு(2)\n");
    EXPECT_TRUE(inOrder(text, {"#ifdef __EMSCRIPTEN__\n", "std::string path_str = fn_any_to_string(",
                               "int cb_id = ++g_rtdb_cb_counter;\n", "g_rtdb_callbacks[cb_id] = [=]() mutable",
                               "std::cout << fn_any_to_string(1LL) << std::endl;\n", "};\n",
                               "window.db.ref('\" + path_str + \"').once('value').then((snapshot) =>",
                               "var data = snapshot.val();", "Module.ccall('rtdb_clear_temp'", "if (data)",
                               "for (var k in data)", "rtdb_add_temp_str", "rtdb_add_temp_num", "rtdb_add_temp_bool",
                               "v ? 1 : 0",
                               "Module.ccall('rtdb_execute_callback', null, ['number'], [\" + std::to_string(cb_id)",
                               "'🔥 பொழில் இயக்கநேரப் பிழை (WASM):', error.message", "#endif\n",
                               "std::cout << fn_any_to_string(2LL) << std::endl;\n"}));
}

TEST(DatabaseRead, EndsEveryWayThroughItsBodyWithAValue) {
    const std::string text = ownPart(
        generatedText("செயல் ஆ():\n    " + readWord + "(\"அ\") {\n        எனில் மெய்:\n            திரும்பு 1\n    }\n"));
    EXPECT_TRUE(inOrder(text, {"mutable -> std::any {\n", "return std::any(1LL);\n", "return std::any();\n", "};\n"}));
}

TEST(DatabaseRead, KeepsTheFunctionsOfItsBodyInside) {
    const std::string text = ownPart(generatedText(
        "செயல் ஆ():\n    " + readWord +
        "(\"அ\") {\n        செயல் உ():\n            விடு\n        அச்சிடு(உ)\n    }\n    உ = 2\n    திரும்பு உ\n"));
    EXPECT_TRUE(inOrder(text, {"std::any உ = ", "fn_any_to_string(உ)", "#endif\n", "global_vars[\"உ\"] = std::any(2LL)",
                               "return std::any(global_vars[\"உ\"]);"}));
}

TEST(Database, HasNoOperationsInANativeProgram) {
    for (const std::string& operation :
         {insertWord + "(\"அ\") {உ: 1}", updateWord + "(\"அ\") {உ: 1}", deleteWord + "(\"அ\")"}) {
        EXPECT_EQ(nativePart(mainBody(operation + "\n")), "[&]() -> std::any {\nreturn std::any();\n}();\n");
    }
    EXPECT_EQ(nativePart(mainBody(readWord + "(\"அ\") {\n    அச்சிடு(1)\n}\n")), "{\n}\n");
}

TEST(Database, HasOperationsInLambdas) {
    const std::string body = mainBody("அழிப்பு = () => " + deleteWord + "(\"அ\")\n");
    EXPECT_TRUE(
        inOrder(body, {"{ return std::any([&]() -> std::any {\n#ifdef __EMSCRIPTEN__\n", "#endif\n", "}()); })"}));
}

const std::string VALUES = "api_key: \"1\", auth_domain: \"2\", database_url: \"3\", project_id: \"4\", "
                           "storage_bucket: \"5\", messaging_sender_id: \"6\", app_id: \"7\"";

std::string configured(const std::string& properties) {
    return setUp(application("தரவுத்தளமேலாண்மை(பயர்பேசு_அமைப்பு(" + properties + "))"));
}

TEST(DatabaseLoader, LoadsOneLibraryBehindTheOther) {
    EXPECT_TRUE(inOrder(configured(VALUES), {"#ifdef __EMSCRIPTEN__\n",
                                             "if (!window.firebaseInitialized)",
                                             "window.firebaseInitialized = true;",
                                             "document.createElement('script')",
                                             "/firebasejs/10.0.0/firebase-app-compat.js'",
                                             ".onload = function() {",
                                             "document.createElement('script')",
                                             "/firebasejs/10.0.0/firebase-database-compat.js'",
                                             ".onload = function() {",
                                             "apiKey: '1'",
                                             "authDomain: '2'",
                                             "databaseURL: '3'",
                                             "projectId: '4'",
                                             "storageBucket: '5'",
                                             "messagingSenderId: '6'",
                                             "appId: '7'",
                                             "if (!firebase.apps.length)",
                                             "firebase.initializeApp(cfg);",
                                             "window.db = firebase.database();",
                                             "console.log('🔥 பொழில்: பயர்பேஸ் தரவுத்தளம் வெற்றிகரமாக இணைக்கப்பட்டது!');",
                                             "document.head.appendChild",
                                             "document.head.appendChild",
                                             "#endif"}));
}

TEST(DatabaseLoader, LeavesEmptyWhatIsMissingOrNoText) {
    EXPECT_TRUE(inOrder(configured("app_id: 7, project_id: பெயர், api_key: \"1\" இணை \"2\", வேறு: \"3\""),
                        {"apiKey: ''", "authDomain: ''", "databaseURL: ''", "projectId: ''", "storageBucket: ''",
                         "messagingSenderId: ''", "appId: ''"}));
    EXPECT_FALSE(holds(configured("வேறு: \"மறை\""), "மறை"));
}

TEST(DatabaseLoader, StandsBeforeTheDefinitions) {
    EXPECT_TRUE(inOrder(setUp(application("தரவுத்தளமேலாண்மை(பயர்பேசு_அமைப்பு())", "ம = 1")),
                        {"firebaseInitialized", "global_vars[\"ம\"] = "}));
}

TEST(DatabaseLoader, TheLastOfSeveralConfigurationsCounts) {
    const std::string text = setUp(application("தரவுத்தளமேலாண்மை(பயர்பேசு_அமைப்பு(api_key: \"முதல்\")\n"
                                               "பயர்பேசு_அமைப்பு(api_key: \"இடை\", api_key: \"கடை\"))"));
    EXPECT_TRUE(holds(text, "apiKey: 'கடை'")) << text;
    EXPECT_FALSE(holds(text, "முதல்") || holds(text, "இடை")) << text;
}

TEST(DatabaseLoader, NeedsAConfiguration) {
    EXPECT_FALSE(holds(setUp(application("தரவுத்தளமேலாண்மை()", "ம = 1")), "firebase"));
    EXPECT_FALSE(holds(setUp(application("", "ம = 1")), "firebase"));
}

TEST(DatabaseBridge, StandsInEveryProgramForTheBrowserAlone) {
    const std::string text = generatedText("");
    for (const char* name : {"rtdb_clear_temp", "rtdb_add_temp_str", "rtdb_add_temp_num", "rtdb_add_temp_bool",
                             "rtdb_execute_callback", "g_rtdb_callbacks", "g_rtdb_cb_counter"}) {
        EXPECT_TRUE(holds(text, name)) << name;
        EXPECT_FALSE(holds(nativePart(text), name)) << name;
    }
}

} // namespace
