#include "diagnostics/refusals/toolchain_errors.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Errors = std::vector<std::pair<std::size_t, std::string>>;

const std::string FILE_NAME = "/ஒரு இடம்/generated.cpp";

Errors read(const std::string& written) {
    Errors errors;
    for (const pozhil::ToolchainError& error : pozhil::readToolchainErrors(written, FILE_NAME)) {
        errors.emplace_back(error.line, error.message);
    }
    return errors;
}

TEST(ToolchainErrors, AreThoseOfTheCompiledText) {
    EXPECT_EQ(read(FILE_NAME + ": In function ‘int main()’:\n" + FILE_NAME +
                   ":1873:41: error: ‘x’ was not declared\n"
                   " 1873 |     x = 1; // " +
                   FILE_NAME + ":5:1: error: no\n      |     ^\n" + FILE_NAME +
                   ":7:2: warning: error: is only a word here\n" + FILE_NAME +
                   ":9:1: note: candidate\n"
                   "/other.cpp.generated.cpp:3:1: note: y\n" +
                   FILE_NAME + ":12: fatal error: no column"),
              (Errors{{1873, "‘x’ was not declared"}, {12, "no column"}}));
    EXPECT_EQ(read(""), Errors());
    EXPECT_EQ(read("\n\n"), Errors());
}

TEST(ToolchainErrors, OfHeadersCountForTheLineThatUsesThem) {
    EXPECT_EQ(read("/usr/include/c++/12/any: In instantiation of ‘f’:\n" + FILE_NAME +
                   ":1876:69:   required from here\n"
                   "/usr/include/c++/12/any:506:21: error: static assertion failed\n"
                   "/usr/include/c++/12/any:510:16: error: invalid ‘static_cast’\n"),
              (Errors{{1876, "static assertion failed"}, {1876, "invalid ‘static_cast’"}}))
        << "g++ names it before";
    EXPECT_EQ(read("/v1/any:629:5: error: static_assert failed\n    static_assert(x);\n" + FILE_NAME +
                   ":1873:37: note: in instantiation of function template specialization 'f' requested here\n" +
                   FILE_NAME + ":1880:1: note: in instantiation of 'g' requested here\n"),
              (Errors{{1873, "static_assert failed"}}))
        << "clang names it after, the nearest one first";
    EXPECT_EQ(read(FILE_NAME + ":5:6:   required from here\n" + FILE_NAME + ":7:1: error: a\n/any:1:1: error: b\n"),
              (Errors{{7, "a"}, {0, "b"}}))
        << "what an earlier error required says nothing of a later one";
}

TEST(ToolchainErrors, OfLinkersHaveNoLine) {
    EXPECT_EQ(read("/usr/bin/ld: /tmp/cc.o: in function `main':\ngenerated.cpp:(.text+0x10): undefined reference to "
                   "`நீளம்'\ncollect2: error: ld returned 1 exit status\n"),
              (Errors{{0, "generated.cpp:(.text+0x10): undefined reference to `நீளம்'"}}));
    EXPECT_EQ(read("wasm-ld: error: a.o: undefined symbol: f\nem++: error: '/usr/bin/clang++ a' failed (returned 1)\n"),
              (Errors{{0, "wasm-ld: error: a.o: undefined symbol: f"}}));
}

TEST(ToolchainErrors, HoldNothingThatTheToolDidNotWriteAsOne) {
    EXPECT_EQ(read(FILE_NAME), Errors());
    EXPECT_EQ(read(FILE_NAME + ":"), Errors());
    EXPECT_EQ(read(FILE_NAME + ":x:1: error: a"), (Errors{{0, "a"}}));
    EXPECT_EQ(read(FILE_NAME + ":99999999999999999999999:1: error: a"), (Errors{{0, "a"}}));
    EXPECT_EQ(read(std::string("\0: error: \xFF\xFE\n", 14)), (Errors{{0, "\xFF\xFE"}}));
    EXPECT_EQ(read("terminate called after throwing\n"), Errors());
}

} // namespace
