#include "engine/builtin_members.h"

#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace pozhil::engine;

struct Row {
    bool isPart;
    int arguments;

    bool operator==(const Row& other) const { return isPart == other.isPart && arguments == other.arguments; }
};
std::ostream& operator<<(std::ostream& out, const Row& row) {
    return out << (row.isPart ? "part" : "method") << " with " << row.arguments;
}

/// What the compiler says that values have after a dot, without the value among the arguments.
std::map<std::string, Row> rowsOfTheLanguage() {
    std::ifstream file(std::string(POZHIL_SOURCE_DIRECTORY) + "/src/language/second/builtins.cpp");
    const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    static const std::regex row("\\{\"([^\"]+)\", Form::(Method|Part), ([0-9]), ([0-9]),");
    std::map<std::string, Row> rows;
    for (std::sregex_iterator one(text.begin(), text.end(), row), end; one != end; ++one) {
        EXPECT_EQ((*one)[3], (*one)[4]) << (*one)[1];
        rows[(*one)[1]] = {(*one)[2] == "Part", std::stoi((*one)[3]) - 1};
    }
    return rows;
}

TEST(BuiltinMembers, AreThoseOfTheLanguage) {
    std::map<std::string, Row> rows;
    const BuiltinMembers members = builtinMembers();
    for (const BuiltinMember* member = members.begin; member != members.end; ++member) {
        EXPECT_EQ(rows.count(member->name), 0U) << member->name;
        rows[member->name] = {member->isPart, member->arguments};
    }
    EXPECT_GT(rows.size(), 15U);
    EXPECT_EQ(rows, rowsOfTheLanguage());
}

} // namespace
