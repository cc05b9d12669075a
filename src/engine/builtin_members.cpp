#include "engine/builtin_members.h"

#include "engine/library.h"
#include "engine/member_faults.h"
#include "engine/raise.h"
#include "engine/running_faults.h"
#include "report/catalogue.h"
#include "report/remedies.h"

#include <cstring>
#include <iterator>

namespace pozhil::engine {
namespace {

constexpr unsigned bit(Tag tag) {
    return 1U << static_cast<unsigned>(tag);
}

constexpr unsigned TEXT = bit(Tag::Text);
constexpr unsigned LIST = bit(Tag::List);
constexpr unsigned MAP = bit(Tag::Map);
constexpr unsigned TIME = bit(Tag::Time);

/// A function of the library that takes the value alone.
template <auto code> Value ofSelf(Value& self, Value* /*none*/, Place place) {
    return code(self, place);
}
/// A function of the library that takes the value and one argument.
template <auto code> Value ofSelfAndOne(Value& self, Value* arguments, Place place) {
    return code(self, arguments[0], place);
}

/// The one of several functions of this name that takes a time.
constexpr auto DATE = static_cast<Value (*)(const Value&, Place)>(dateText);
constexpr auto CLOCK = static_cast<Value (*)(const Value&, Place)>(clockText);
constexpr auto DATE_AND_CLOCK = static_cast<Value (*)(const Value&, Place)>(dateAndClockText);

constexpr BuiltinMember MEMBERS[] = {
    {"நீளம்", TEXT | LIST | MAP, false, 0, ofSelf<length>},
    {"சேர்", LIST, false, 1, ofSelfAndOne<append>},
    {"நீக்கு", LIST | MAP, false, 1, ofSelfAndOne<removeFrom>},
    {"கொண்டுள்ளது", TEXT | LIST | MAP, false, 1, ofSelfAndOne<contains>},
    {"பெரியஎழுத்து", TEXT, false, 0, ofSelf<upperCase>},
    {"சிறியஎழுத்து", TEXT, false, 0, ofSelf<lowerCase>},
    {"சுத்தம்", TEXT, false, 0, ofSelf<trim>},
    {"தொடக்கம்", TEXT, false, 1, ofSelfAndOne<startsWith>},
    {"முடிவு", TEXT, false, 1, ofSelfAndOne<endsWith>},
    {"தேதி", TIME, false, 0, ofSelf<DATE>},
    {"நேரம்", TIME, false, 0, ofSelf<CLOCK>},
    {"முழுவதும்", TIME, false, 0, ofSelf<DATE_AND_CLOCK>},
    {"ஆண்டு", TIME, true, 0, ofSelf<year>},
    {"மாதம்", TIME, true, 0, ofSelf<month>},
    {"நாள்", TIME, true, 0, ofSelf<day>},
    {"மணி", TIME, true, 0, ofSelf<hour>},
    {"நிமிடம்", TIME, true, 0, ofSelf<minute>},
    {"வினாடி", TIME, true, 0, ofSelf<second>},
    {"வாரநாள்", TIME, true, 0, ofSelf<weekday>},
};

/// By the number of the member; null for a name that only structures have.
std::vector<const BuiltinMember*>& membersByNumber() {
    static std::vector<const BuiltinMember*> members;
    return members;
}

const BuiltinMember* findByName(const char* name) {
    for (const BuiltinMember& member : MEMBERS) {
        if (std::strcmp(member.name, name) == 0) {
            return &member;
        }
    }
    return nullptr;
}

bool has(const Value& value, const BuiltinMember& member) {
    return (member.kinds & bit(value.tag())) != 0;
}

} // namespace

BuiltinMembers builtinMembers() {
    return {std::begin(MEMBERS), std::end(MEMBERS)};
}

const BuiltinMember* findBuiltinMember(const Value& value, Member name) {
    const BuiltinMember* const member = membersByNumber()[static_cast<std::size_t>(name)];
    return member != nullptr && has(value, *member) ? member : nullptr;
}

void numberBuiltinMembers(const ProgramInfo& program) {
    membersByNumber().clear();
    for (int i = 0; i < program.memberCount; ++i) {
        membersByNumber().push_back(findByName(program.members[i]));
    }
}

void raiseMissingBuiltin(const Value& value, Member name, Place place) {
    std::vector<std::string> members;
    for (const BuiltinMember& member : MEMBERS) {
        if (has(value, member)) {
            members.push_back(member.isPart ? member.name : std::string(member.name) + "()");
        }
    }
    // A map of other languages may give its values after a dot.
    const std::string remedy =
        value.is(Tag::Map) ? report::filled(report::remedy::KEY_AFTER_DOT, {memberName(name)}) : "";
    raiseMissingMember(kindWord(value), name, std::move(members), place, remedy);
}

} // namespace pozhil::engine
