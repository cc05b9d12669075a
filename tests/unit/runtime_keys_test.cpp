// What keys do to a field that is drawn on the canvas: text, caret and selection.

#include "generator/web/runtime/runtime.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

const char* const FIELD = "பெயர்";

/// A field's state, and what a key has done to it.
struct Field {
    std::string value;
    int caret;
    bool selected = false;

    bool operator==(const Field& other) const {
        return value == other.value && caret == other.caret && selected == other.selected;
    }
};

std::ostream& operator<<(std::ostream& out, const Field& field) {
    return out << '"' << field.value << "\" caret " << field.caret << (field.selected ? " selected" : "");
}

void focus(const Field& field) {
    g_focusedInput = FIELD;
    g_inputValues[FIELD] = field.value;
    g_inputCursorPos[FIELD] = field.caret;
    g_inputSelected[FIELD] = field.selected;
}

Field focused() {
    return {g_inputValues[FIELD], g_inputCursorPos[FIELD], g_inputSelected[FIELD]};
}

struct EditCase {
    const char* key;
    bool ctrl;
    Field before;
    Field after;
};

const EditCase EDITS[] = {
    {"Backspace", false, {"abc", 2}, {"ac", 1}},
    {"Backspace", false, {"abc", 3}, {"ab", 2}},
    {"Backspace", false, {"abc", 0}, {"abc", 0}},
    {"Backspace", false, {"", 0}, {"", 0}},
    {"Backspace", false, {"abc", 1, true}, {"", 0}},
    {"Backspace", false, {"அ", 3}, {"\xE0\xAE", 2}}, // byte by byte
    {"Delete", false, {"abc", 1}, {"ac", 1}},
    {"Delete", false, {"abc", 0}, {"bc", 0}},
    {"Delete", false, {"abc", 3}, {"abc", 3}},
    {"Delete", false, {"abc", 3, true}, {"", 0}},
    {"c", true, {"abc", 2}, {"abc", 2}},
    {"x", true, {"abc", 2}, {"", 0}},
    {"a", true, {"abc", 2}, {"abc", 2, true}},
    {"ArrowLeft", false, {"abc", 2}, {"abc", 1}},
    {"ArrowLeft", false, {"abc", 0}, {"abc", 0}},
    {"ArrowRight", false, {"abc", 2}, {"abc", 3}},
    {"ArrowRight", false, {"abc", 3}, {"abc", 3}},
};

TEST(EditKeys, ChangeTheFieldAndAreTaken) {
    for (const EditCase& one : EDITS) {
        focus(one.before);
        EXPECT_TRUE(pozhil_edit_key(one.key, one.ctrl)) << one.key;
        EXPECT_EQ(focused(), one.after) << one.key << " in " << one.before;
    }
}

TEST(EditKeys, AreNoOthers) {
    const std::pair<const char*, bool> others[] = {{"a", false}, {"c", false},     {"x", false},       {"v", true},
                                                   {"z", true},  {"Enter", false}, {"ArrowUp", false}, {"அ", false}};
    for (const auto& [key, ctrl] : others) {
        focus({"abc", 1});
        EXPECT_FALSE(pozhil_edit_key(key, ctrl)) << key;
        EXPECT_EQ(focused(), (Field{"abc", 1})) << key;
    }
}

struct TypeCase {
    const char* key;
    Field before;
    Field after;
};

TEST(TypedKeys, AreInsertedAtTheCaret) {
    const TypeCase cases[] = {
        {"x", {"abc", 1}, {"axbc", 2}},    {"x", {"", 0}, {"x", 1}},
        {"அ", {"ab", 2}, {"abஅ", 5}},      {"x", {"abc", 9}, {"abcx", 4}}, // a caret beyond the text
        {"x", {"abc", 2, true}, {"x", 1}},
    };
    for (const TypeCase& one : cases) {
        focus(one.before);
        pozhil_type_key(one.key);
        EXPECT_EQ(focused(), one.after) << one.key << " in " << one.before;
        EXPECT_EQ(g_focusedInput, FIELD);
    }
}

TEST(TypedKeys, ClearTheErrorOfTheirField) {
    focus({"abc", 1});
    g_inputErrors[FIELD] = "பெயர் தேவை";
    g_inputErrors["வேறு"] = "தேவை";
    pozhil_type_key("x");
    EXPECT_EQ(g_inputErrors[FIELD], "");
    EXPECT_EQ(g_inputErrors["வேறு"], "தேவை");
}

TEST(TypedEnter, LeavesTheField) {
    focus({"abc", 1, true});
    g_inputErrors[FIELD] = "பெயர் தேவை";
    pozhil_type_key("Enter");
    EXPECT_EQ(g_focusedInput, "");
    EXPECT_TRUE(g_inputSelected.empty());
    EXPECT_EQ(g_inputErrors[FIELD], "");
    EXPECT_EQ(g_inputValues[FIELD], "abc");
}

} // namespace
