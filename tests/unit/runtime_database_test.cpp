// An answer of the database, entry by entry, as the browser hands it over.

#include "generator/first/runtime/runtime.h"

#include <gtest/gtest.h>

namespace {

std::string answer() {
    return fn_any_to_string(global_vars["_temp_rtdb"]);
}

TEST(Answer, HoldsEntriesOfEveryKind) {
    rtdb_clear_temp();
    rtdb_add_temp_str("பெயர்", "அருவி");
    rtdb_add_temp_num("வயது", 2.5);
    rtdb_add_temp_bool("உண்டா", 1);
    EXPECT_EQ(answer(), "{\"உண்டா\": மெய், \"பெயர்\": அருவி, \"வயது\": 2.500000}");
}

TEST(Answer, ForgetsTheOneBefore) {
    rtdb_clear_temp();
    rtdb_add_temp_str("அ", "1");
    rtdb_clear_temp();
    rtdb_add_temp_bool("ஆ", 0);
    EXPECT_EQ(answer(), "{\"ஆ\": பொய்}");
}

TEST(Answer, PassesOverEntriesThatNothingWaitsFor) {
    global_vars["_temp_rtdb"] = std::any(1LL);
    rtdb_add_temp_str("அ", "1");
    EXPECT_EQ(answer(), "1");
}

} // namespace
