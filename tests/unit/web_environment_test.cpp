#include "driver/web/emscripten_environment.h"
#include "support/working_folder.h"

#include <cstdlib>
#include <map>
#include <string>

#include <gmock/gmock.h>

using namespace pozhil;

namespace {

namespace fs = std::filesystem;

/// Every test runs in a process of its own when ctest starts it; alone, each one sets what it reads.
class EmscriptenEnvironment : public test::WorkingFolder {
protected:
    void SetUp() override {
        WorkingFolder::SetUp();
        setenv("PATH", "/usr/bin:/bin", 1);
        for (const char* name : {"EMSDK", "EMSDK_PYTHON", "EMSDK_NODE", "EMCC_CFLAGS", "NODE_PATH"}) {
            unsetenv(name);
        }
    }

    std::string sdk() const { return (folder() / "emsdk").string(); }

    static std::string variable(const char* name) {
        const char* value = std::getenv(name);
        return value != nullptr ? value : "(unset)";
    }

    static std::string ofChild(const std::string& name, const PrecompiledHeaders& headers = {}) {
        const auto variables = emscriptenVariables(headers);
        return std::map<std::string, std::string>(variables.begin(), variables.end())[name];
    }
};

TEST_F(EmscriptenEnvironment, StaysAsItIsWithoutAnSdk) {
    injectEmscriptenEnvironment(folder());
    EXPECT_EQ(variable("PATH"), "/usr/bin:/bin");
    EXPECT_EQ(variable("EMSDK"), "(unset)");
    EXPECT_EQ(variable("EMSDK_PYTHON"), "(unset)");
    EXPECT_EQ(variable("EMSDK_NODE"), "(unset)");
    EXPECT_EQ(emscriptenCompiler(folder()), "em++");
}

TEST_F(EmscriptenEnvironment, NamesSdkAndTools) {
    write("emsdk/node/16.0_64bit/bin/node", "");
    write("emsdk/python/3.9/bin/python3", "");
    injectEmscriptenEnvironment(folder());
    EXPECT_EQ(variable("PATH"), sdk() + "/upstream/emscripten:" + sdk() + ":" + sdk() + "/python/3.9/bin:" + sdk() +
                                    "/node/16.0_64bit/bin:/usr/bin:/bin");
    EXPECT_EQ(variable("EMSDK"), sdk());
    EXPECT_EQ(variable("EMSDK_PYTHON"), sdk() + "/python/3.9/bin/python3");
    EXPECT_EQ(variable("EMSDK_NODE"), sdk() + "/node/16.0_64bit/bin/node");
}

TEST_F(EmscriptenEnvironment, ToolsOutsideTheSdkGoByTheirNames) {
    fs::create_directories("emsdk/node/node"); // a folder is no tool
    injectEmscriptenEnvironment(folder());
    EXPECT_EQ(variable("PATH"), sdk() + "/upstream/emscripten:" + sdk() + ":/usr/bin:/bin");
    EXPECT_EQ(variable("EMSDK_PYTHON"), "python3");
    EXPECT_EQ(variable("EMSDK_NODE"), "node");
}

TEST_F(EmscriptenEnvironment, EmptyPathGetsNoEmptyEntry) {
    fs::create_directory("emsdk");
    unsetenv("PATH");
    injectEmscriptenEnvironment(folder());
    EXPECT_EQ(variable("PATH"), sdk() + "/upstream/emscripten:" + sdk());
}

TEST_F(EmscriptenEnvironment, CompilerOfTheSdkIsCalledByItsPath) {
    write("emsdk/upstream/emscripten/em++", "");
    EXPECT_EQ(emscriptenCompiler(folder()), sdk() + "/upstream/emscripten/em++");
}

TEST_F(EmscriptenEnvironment, UsersOwnFlagsStandInFront) {
    const std::string own = ofChild("EMCC_CFLAGS");
    setenv("EMCC_CFLAGS", "-O1", 1);
    EXPECT_EQ(ofChild("EMCC_CFLAGS"), "-O1 " + own);
    EXPECT_THAT(own, testing::HasSubstr("exceptions"));
    EXPECT_THAT(own, testing::HasSubstr("-fbracket-depth="));
}

TEST_F(EmscriptenEnvironment, PrecompiledHeadersAreOneWordOfTheFlags) {
    const std::string own = ofChild("EMCC_CFLAGS");
    EXPECT_EQ(ofChild("EMCC_CFLAGS", {"/ஓர் 'இடம்'/a.pch", 0}), own + " -include-pch '/ஓர் '\"'\"'இடம்'\"'\"'/a.pch'");
}

TEST_F(EmscriptenEnvironment, PrecompiledHeadersTellWhatTheyReplace) {
    const std::string plain = ofChild("EMCC_CFLAGS", {"/a.pch", 0});
    EXPECT_EQ(ofChild("EMCC_CFLAGS", {"/a.pch", 70123}), plain + " -Xclang -preamble-bytes=70123,1");
}

TEST_F(EmscriptenEnvironment, PrecompiledHeadersAreForEmscriptensOwnCompiler) {
    write("bin/em++", "");
    fs::permissions("bin/em++", fs::perms::owner_all);
    setenv("PATH", (folder() / "bin").c_str(), 1);
    const fs::path headers = folder() / "உள்ளடக்கம்" / "web_headers.pch";
    write("bin/em++.py", "");
    EXPECT_EQ(precompiledHeaders(folder(), "em++").file, "");
    write(headers.string(), "");
    EXPECT_EQ(precompiledHeaders(folder(), "em++").file, headers);
    EXPECT_EQ(precompiledHeaders(folder(), "/sdk/em++").file, "");
    fs::remove("bin/em++.py");
    EXPECT_EQ(precompiledHeaders(folder(), "em++").file, "");
}

} // namespace
