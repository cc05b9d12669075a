#include "analysis/second/member_faults.h"

#include "analysis/second/fault_numbers.h"
#include "analysis/second/operator_kinds.h"
#include "analysis/second/structures.h"
#include "analysis/second/suggestions.h"
#include "language/second/foreign_words.h"
#include "language/second/module_functions.h"
#include "report/catalogue.h"
#include "report/remedies.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil::second {
namespace {

using language::second::Builtin;
using language::second::BuiltinForm;
using resolved::Kind;

/// The members of all children and their children.
void addMembersOfChildren(const Model& model, const resolved::Structure& structure,
                          std::vector<std::string_view>& members) {
    const auto facts = model.structures.find(&structure);
    if (facts == model.structures.end()) {
        return;
    }
    for (const resolved::Structure* child : facts->second.children) {
        for (const std::string_view member : membersOf(*child)) {
            members.push_back(member);
        }
        addMembersOfChildren(model, *child, members);
    }
}

bool isOneOf(const std::vector<std::string_view>& members, std::string_view name) {
    return std::find(members.begin(), members.end(), name) != members.end();
}

bool checkMemberOfObject(Model& model, const Certainty& object, const Member& member) {
    const resolved::Structure& structure = *object.structure;
    std::vector<std::string_view> members = membersOf(structure);
    if (isOneOf(members, member.name)) {
        const FoundField field = findField(structure, member.name);
        const resolved::Function* const method = findMethod(structure, member.name);
        const bool isPrivate = field.field != nullptr ? field.field->isPrivate : method->isPrivate;
        const resolved::Structure* const declaring = field.field != nullptr ? field.structure : method->structure;
        if (isPrivate && !maySeePrivate(member.inside, declaring)) {
            model.faults.add(fault::PRIVATE_MEMBER, member.place, {declaring->name, member.name});
            return false;
        }
        return true;
    }
    if (object.mayBeChild) {
        std::vector<std::string_view> ofChildren;
        addMembersOfChildren(model, structure, ofChildren);
        if (isOneOf(ofChildren, member.name)) {
            return false;
        }
    }
    tellUnknownMember(model, structure.name, member.name, members, member.place);
    return false;
}

/// What values of a kind have: for a call its methods, else its parts.
std::vector<std::string_view> membersOfKind(Kind kind) {
    std::vector<std::string_view> members;
    for (const Builtin& row : language::second::builtins()) {
        if (memberOf(kind, row.form, row.name) == &row) {
            members.push_back(row.name);
        }
    }
    return members;
}

/// What to do about a member that values of a kind don't have; empty if nothing special is known of it.
std::string remedyForMember(Kind kind, const std::string& name) {
    using namespace language::second;
    if (const ForeignWord* const foreign = findForeignWord(name, ForeignPlace::Member)) {
        return remedyOf(*foreign);
    }
    if (findBuiltin(BuiltinForm::Call, name) != nullptr) {
        return "'" + name + "' '.' குறிக்கு அப்புறம் வராது; '" + name + "(அ, …)' என்று மதிப்பை அடைப்புக்குறிக்குள்ள கொடு மச்சி!";
    }
    // Modules are called like the kinds that they are for.
    const std::string function = std::string(wordOf(kind)) + "_" + name;
    if (const ModuleFunction* const found = findModuleFunction(function)) {
        return "'" + function + "(…)' என்று அழை. " + importRemedyOf(*found);
    }
    return kind == Kind::Map ? report::filled(report::remedy::KEY_AFTER_DOT, {name}) : "";
}

bool checkMemberOfKind(Model& model, Kind kind, const Member& member) {
    const auto members = membersOfKind(kind);
    if (isOneOf(members, member.name)) {
        return true;
    }
    tellUnknownMember(model, wordOf(kind), member.name, members, member.place, remedyForMember(kind, member.name));
    return false;
}

void checkCount(Model& model, const Member& member, std::size_t fewest, std::size_t most,
                const resolved::MethodCall& call) {
    const std::size_t given = call.arguments.size();
    if (given < fewest || given > most) {
        tellWrongCount(model, member.name, fewest, most, given, call.place);
    }
}

} // namespace

bool checkMember(Model& model, const Certainty& object, const Member& member) {
    if (object.state != Certainty::State::Sure) {
        return true;
    }
    if (object.kind == Kind::Object) {
        return object.structure == nullptr || checkMemberOfObject(model, object, member);
    }
    return checkMemberOfKind(model, object.kind, member);
}

void checkMethodCall(Model& model, const Certainty& object, const Member& member, const resolved::MethodCall& call) {
    if (object.state != Certainty::State::Sure || !checkMember(model, object, member)) {
        return;
    }
    if (const Builtin* const builtin = memberOf(object.kind, BuiltinForm::Method, member.name)) {
        checkCount(model, member, static_cast<std::size_t>(builtin->fewestArguments - 1),
                   static_cast<std::size_t>(builtin->mostArguments - 1), call);
    } else if (const resolved::Function* const method = certainMethod(model, object, member.name)) {
        const std::size_t count = method->parameters.empty() ? 0 : method->parameters.size() - 1;
        checkCount(model, member, count, count, call);
    }
}

} // namespace pozhil::second
