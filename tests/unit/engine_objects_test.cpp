#include "engine/builtin_members.h"
#include "engine/object.h"
#include "engine/running_faults.h"
#include "engine/running_program.h"
#include "engine_support.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace pozhil::engine;
using testing::HasSubstr;
using testing::Not;

constexpr Place HERE = "1:0-1";

enum : Member { NAME, AGE, SECRET, SPEAK, WHISPER, START, NEXT, LIST, SIZE, YEAR, MISSING, WORK, DOUBLED, COUNT };
const char* const MEMBERS[] = {"பெயர்",   "வயது", "ரகசியம்", "பேசு",  "முணுமுணு", "துவக்கம்", "அடுத்தது",
                               "பட்டியல்", "நீளம்",  "ஆண்டு",   "பெயரு", "வேலை",     "இரட்டி"};

extern Structure animal;
extern Structure dog;

// கட்டமைப்பு விலங்கு: பெயர், வயது, ரகசிய ரகசியம், அடுத்தது, பட்டியல், வேலை
void startAnimal(Value& self) {
    field(self, NAME, HERE, &animal) = text("விலங்கு");
    field(self, SECRET, HERE, &animal) = 7;
    field(self, LIST, HERE, &animal) = list({});
}
Value speak(const Closure& /*own*/, Value* arguments, Place /*place*/) {
    return join(text("நான் "), member(arguments[0], NAME, HERE, &animal), HERE);
}
Value whisper(const Closure& /*own*/, Value* arguments, Place /*place*/) {
    return member(arguments[0], SECRET, HERE, &animal);
}
Value setName(const Closure& /*own*/, Value* arguments, Place /*place*/) {
    field(arguments[0], NAME, HERE, &animal) = arguments[1];
    return Value();
}
/// செயல் இரட்டி(தான், மாற்று அ)
Value doubleIt(const Closure& /*own*/, Value* arguments, Place place) {
    arguments[1] = multiply(arguments[1], 2, place);
    return arguments[1];
}
constexpr FunctionInfo SPEAK_CODE = {"பேசு", speak, 1, 0};
constexpr FunctionInfo WHISPER_CODE = {"முணுமுணு", whisper, 1, 0};
constexpr FunctionInfo START_CODE = {"துவக்கம்", setName, 2, 0};
constexpr FunctionInfo DOUBLE_CODE = {"இரட்டி", doubleIt, 2, 2};
constexpr FieldInfo ANIMAL_FIELDS[] = {{NAME, false}, {AGE, false},  {SECRET, true},
                                       {NEXT, false}, {LIST, false}, {WORK, false}};
constexpr MethodInfo ANIMAL_METHODS[] = {{SPEAK, &SPEAK_CODE, false},
                                         {WHISPER, &WHISPER_CODE, true},
                                         {START, &START_CODE, false},
                                         {DOUBLED, &DOUBLE_CODE, false}};
Structure animal = {"விலங்கு", nullptr, false, ANIMAL_FIELDS, 6, ANIMAL_METHODS, 4, startAnimal, nullptr};

// கட்டமைப்பு நாய்(விலங்கு): its own ரகசியம், its own பேசு
void startDog(Value& self) {
    field(self, NAME, HERE, &dog) = text("நாய்");
    field(self, SECRET, HERE, &dog) = text("எலும்பு");
}
Value bark(const Closure& own, Value* arguments, Place place) {
    return join(speak(own, arguments, place), text(", லொள்"), place);
}
constexpr FunctionInfo BARK_CODE = {"பேசு", bark, 1, 0};
constexpr FieldInfo DOG_FIELDS[] = {{NAME, false}, {SECRET, false}};
constexpr MethodInfo DOG_METHODS[] = {{SPEAK, &BARK_CODE, false}};
Structure dog = {"நாய்", &animal, false, DOG_FIELDS, 2, DOG_METHODS, 1, startDog, nullptr};

// கட்டமைப்பு பூனை(விலங்கு): ரகசிய பெயர்
constexpr FieldInfo CAT_FIELDS[] = {{NAME, true}};
Structure cat = {"பூனை", &animal, false, CAT_FIELDS, 1, nullptr, 0, nullptr, nullptr};

// வடிவமைப்பு வடிவம், கட்டமைப்பு வட்டம்(வடிவம்)
Structure shape = {"வடிவம்", nullptr, true, nullptr, 0, nullptr, 0, nullptr, nullptr};
Structure circle = {"வட்டம்", &shape, false, nullptr, 0, nullptr, 0, nullptr, nullptr};

extern Structure endless;
void startEndless(Value& /*self*/) {
    create(endless, HERE);
}
Structure endless = {"முடிவிலி", nullptr, false, nullptr, 0, nullptr, 0, startEndless, nullptr};

Structure* const STRUCTURES[] = {&animal, &dog, &cat, &shape, &circle, &endless};
const ProgramInfo PROGRAM = {nullptr, nullptr, 0, MEMBERS, COUNT, STRUCTURES, 6};

class Objects : public testing::Test {
protected:
    Objects() {
        setRunningProgram(PROGRAM);
        numberBuiltinMembers(PROGRAM);
        makeTables(PROGRAM);
    }
    ~Objects() override {
        for (Structure* const structure : STRUCTURES) {
            delete structure->table;
            structure->table = nullptr;
        }
    }
};

/// As the emitted text makes an object: its fields first, then துவக்கம்.
Value named(Structure& structure, const Value& name) {
    Value object = create(structure, HERE);
    callMethod(object, START, {name}, HERE);
    return object;
}

TEST_F(Objects, BeginWithTheirFields) {
    const Value object = named(animal, text("பசு"));
    EXPECT_EQ(form(member(object, NAME, HERE)), "பசு");
    EXPECT_EQ(form(member(object, LIST, HERE)), "[]");
    EXPECT_EQ(form(object), "[பொருள்]");
}

TEST_F(Objects, TakeFieldsAndConstructorFromTheirParents) {
    EXPECT_EQ(form(member(create(dog, HERE), NAME, HERE)), "நாய்");
    const Value object = named(dog, text("மணி"));
    EXPECT_EQ(form(member(object, NAME, HERE)), "மணி");
    EXPECT_EQ(form(member(object, LIST, HERE)), "[]");
}

TEST_F(Objects, AreShared) {
    const Value one = create(animal, HERE);
    const Value other = one;
    field(other, AGE, HERE) = 5;
    append(field(other, LIST, HERE), 1, HERE);
    EXPECT_EQ(form(member(one, AGE, HERE)), "5");
    EXPECT_EQ(form(member(one, LIST, HERE)), "[1]");
    EXPECT_TRUE(equal(one, other));
    EXPECT_FALSE(equal(one, create(animal, HERE)));
}

TEST_F(Objects, HaveFieldsOfTheirOwn) {
    const Value one = create(animal, HERE);
    const Value other = create(animal, HERE);
    append(field(one, LIST, HERE), 1, HERE);
    EXPECT_EQ(form(member(other, LIST, HERE)), "[]");
}

TEST_F(Objects, TellUnsetFields) {
    Value object = create(animal, HERE);
    EXPECT_EQ(faultOf([&] { member(object, AGE, HERE); }), UNSET_FIELD);
    EXPECT_EQ(faultOf([&] { callMethod(object, AGE, {}, HERE); }), UNSET_FIELD);
    EXPECT_THAT(messageOf([&] { member(object, AGE, HERE); }), HasSubstr("'விலங்கு' பொருளின் 'வயது'"));
}

TEST_F(Objects, TellTheMembersThereAreNearestFirst) {
    Value object = create(animal, HERE);
    EXPECT_EQ(faultOf([&] { field(object, MISSING, HERE) = 1; }), NO_SUCH_MEMBER);
    EXPECT_EQ(faultOf([&] { callMethod(object, MISSING, {}, HERE); }), NO_SUCH_MEMBER);
    const auto told = toldBy([&] { member(object, MISSING, HERE); });
    EXPECT_THAT(told.message, HasSubstr("விலங்கு என்பதில் 'பெயரு' இல்லை. இருப்பவை: 'பெயர்', "));
    EXPECT_THAT(told.message, HasSubstr("'வயது'"));
    EXPECT_THAT(told.message, Not(HasSubstr("ரகசியம்"))) << "what is private isn't there for others";
    EXPECT_THAT(told.suggestion, HasSubstr("'பெயர்'"));
    EXPECT_THAT(messageOf([&] { member(object, MISSING, HERE, &animal); }), HasSubstr("ரகசியம்"));
    EXPECT_EQ(toldBy([&] { member(object, YEAR, HERE); }).suggestion, "");
}

TEST_F(Objects, CallMethods) {
    Value object = named(animal, text("பசு"));
    EXPECT_EQ(form(callMethod(object, SPEAK, {}, HERE)), "நான் பசு");
    EXPECT_EQ(form(callMethodOf(named(dog, text("மணி")), SPEAK, {}, HERE)), "நான் மணி, லொள்");
    EXPECT_THAT(messageOf([&] { callMethod(object, SPEAK, {1}, HERE); }),
                HasSubstr("'பேசு' செயலுக்கு வேண்டிய உள்ளீடுகளின் எண்ணிக்கை 0"));
    EXPECT_EQ(faultOf([&] { callMethod(object, START, {}, HERE); }), WRONG_COUNT);
    EXPECT_EQ(faultOf([&] { callMethod(object, START, {1, 2}, HERE); }), WRONG_COUNT);
}

TEST_F(Objects, MethodsAreValues) {
    Value object = named(animal, text("பசு"));
    const Value method = member(object, SPEAK, HERE);
    field(object, NAME, HERE) = text("எருமை");
    EXPECT_EQ(holders(object), 2);
    EXPECT_EQ(form(call(method, {}, HERE)), "நான் எருமை");
}

TEST_F(Objects, FieldsCanHoldFunctions) {
    Value object = create(animal, HERE);
    field(object, WORK, HERE) = member(named(dog, text("மணி")), SPEAK, HERE);
    EXPECT_EQ(form(callMethod(object, WORK, {}, HERE)), "நான் மணி, லொள்");
    field(object, WORK, HERE) = 5;
    EXPECT_EQ(faultOf([&] { callMethod(object, WORK, {}, HERE); }), NOT_A_FUNCTION);
}

TEST_F(Objects, GiveBackMutableArguments) {
    Value object = create(animal, HERE);
    Value arguments[] = {21};
    callMethod(object, DOUBLED, arguments, 1, HERE);
    EXPECT_EQ(form(arguments[0]), "42");
    EXPECT_EQ(mutableParameters(object, DOUBLED), 1U);
    EXPECT_EQ(mutableParameters(object, SPEAK), 0U);
    EXPECT_EQ(mutableParameters(object, MISSING), 0U);
    EXPECT_EQ(mutableParameters(list({}), SIZE), 0U);
}

TEST_F(Objects, KeepWhatIsPrivate) {
    Value object = create(animal, HERE);
    EXPECT_EQ(faultOf([&] { member(object, SECRET, HERE); }), PRIVATE_MEMBER);
    EXPECT_EQ(faultOf([&] { field(object, SECRET, HERE) = 1; }), PRIVATE_MEMBER);
    EXPECT_EQ(faultOf([&] { callMethod(object, WHISPER, {}, HERE); }), PRIVATE_MEMBER);
    EXPECT_EQ(faultOf([&] { member(object, WHISPER, HERE); }), PRIVATE_MEMBER);
    EXPECT_EQ(form(callMethod(object, WHISPER, {}, HERE, &animal)), "7");

    Value child = create(dog, HERE);
    EXPECT_EQ(form(callMethod(child, WHISPER, {}, HERE, &dog)), "எலும்பு") << "children may";
    EXPECT_EQ(form(callMethod(object, WHISPER, {}, HERE, &dog)), "7");
    EXPECT_EQ(faultOf([&] { callMethod(child, WHISPER, {}, HERE); }), PRIVATE_MEMBER);
    EXPECT_EQ(faultOf([&] { callMethod(child, WHISPER, {}, HERE, &circle); }), PRIVATE_MEMBER);
}

TEST_F(Objects, AFieldThatAChildDeclaresAnewIsTheParents) {
    Value child = create(dog, HERE);
    EXPECT_EQ(form(member(child, SECRET, HERE)), "எலும்பு") << "the child doesn't keep it private";
    EXPECT_EQ(form(member(child, SECRET, HERE, &animal)), "எலும்பு");
    field(child, SECRET, HERE, &animal) = 8;
    EXPECT_EQ(form(member(child, SECRET, HERE)), "8");
}

TEST_F(Objects, AChildHidesNothingFromItsParent) {
    Value child = create(cat, HERE);
    EXPECT_EQ(faultOf([&] { member(child, NAME, HERE); }), PRIVATE_MEMBER);
    EXPECT_EQ(form(member(child, NAME, HERE, &cat)), "விலங்கு");
    EXPECT_EQ(form(callMethod(child, SPEAK, {}, HERE)), "நான் விலங்கு");
}

TEST_F(Objects, MethodsAreNotAssigned) {
    Value object = create(animal, HERE);
    EXPECT_EQ(faultOf([&] { field(object, SPEAK, HERE) = 1; }), METHOD_ASSIGNED);
}

TEST_F(Objects, AreNotMadeOfAbstractStructures) {
    EXPECT_EQ(faultOf([] { create(shape, HERE); }), ABSTRACT_STRUCTURE);
    EXPECT_EQ(faultOf([] { create(circle, HERE); }), 0);
}

TEST_F(Objects, OtherValuesHaveTheMembersOfTheLibrary) {
    Value values = list({1, 2});
    EXPECT_EQ(form(callMethod(values, SIZE, {}, HERE)), "2");
    EXPECT_EQ(form(callMethodOf(text("அம்மா"), SIZE, {}, HERE)), "3");
    EXPECT_EQ(faultOf([&] { callMethod(values, SIZE, {1}, HERE); }), WRONG_COUNT);
    EXPECT_GE(member(now(HERE), YEAR, HERE).whole(), 2024);
    EXPECT_EQ(faultOf([] { callMethodOf(now(HERE), YEAR, {}, HERE); }), PART_CALLED);
    EXPECT_EQ(faultOf([&] { member(values, SIZE, HERE); }), METHOD_NOT_CALLED);
    EXPECT_THAT(messageOf([&] { callMethod(values, SPEAK, {}, HERE); }), HasSubstr("'நீளம்()'"));
    EXPECT_EQ(faultOf([] { callMethodOf(5, SPEAK, {}, HERE); }), HAS_NO_MEMBERS);
    EXPECT_EQ(faultOf([] { member(Value(), NAME, HERE); }), HAS_NO_MEMBERS);
}

TEST_F(Objects, NothingElseHasFields) {
    EXPECT_EQ(faultOf([] { field(now(HERE), YEAR, HERE) = 1; }), TIME_FIXED);
    EXPECT_EQ(faultOf([] { field(list({}), NAME, HERE) = 1; }), MEMBER_FIXED);
    EXPECT_EQ(faultOf([] { field(Value(), NAME, HERE) = 1; }), MEMBER_FIXED);
}

TEST_F(Objects, AreFreedWithTheirLastHolder) {
    const Value held = list({1});
    {
        const Value object = create(animal, HERE);
        field(object, LIST, HERE) = held;
        const Value method = member(object, SPEAK, HERE);
        EXPECT_EQ(holders(held), 2);
    }
    EXPECT_EQ(holders(held), 1);
}

TEST_F(Objects, AChainOfAMillionIsFreed) {
    const Value held = list({1});
    Value first = create(animal, HERE);
    field(first, LIST, HERE) = held;
    for (int i = 0; i < 1'000'000; ++i) {
        const Value object = create(animal, HERE);
        field(object, NEXT, HERE) = first;
        first = object;
    }
    // As a list is walked: the variable holds each in turn.
    for (int i = 0; i < 10; ++i) {
        first = member(first, NEXT, HERE);
    }
    first = Value();
    EXPECT_EQ(holders(held), 1);
}

TEST_F(Objects, ConstructionWithoutEndIsTold) {
    Frame::stackLimit = static_cast<const char*>(__builtin_frame_address(0)) - (std::ptrdiff_t{1} << 20);
    EXPECT_EQ(faultOf([] { create(endless, HERE); }), TOO_DEEP);
    EXPECT_THAT(messageOf([] { create(endless, HERE); }), HasSubstr("முடிவிலி"));
    Frame::stackLimit = nullptr;
}

} // namespace
