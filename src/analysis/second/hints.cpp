#include "analysis/second/hints.h"

#include "analysis/second/nearest_name.h"
#include "analysis/second/structures.h"
#include "analysis/second/walk.h"
#include "base/letters.h"
#include "front_end/second_edition.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_set>
#include <utility>
#include <vector>

namespace pozhil::second {
namespace {

using Form = resolved::TargetPlace::Form;

/// What a program reads: its variables, and the names of members; and what it writes where arguments stand.
class Reads : public Walk<Reads> {
public:
    using Walk::visit;
    using Walk::walk;

    void walk(resolved::Argument& argument) {
        noteNamedArgument(argument.value.get());
        Walk::walk(argument);
    }
    void visit(resolved::Print& node) {
        for (const auto& value : node.values) {
            noteNamedArgument(value.get());
        }
        Walk::visit(node);
    }
    void visit(resolved::VariableRead& node) { variables.insert(node.variable); }
    void visit(resolved::TargetPlace& node) {
        // Of a place that is written, only what holds it is read.
        if (node.container != nullptr && node.container->form == Form::Variable) {
            variables.insert(node.container->variable);
        }
        if (node.container != nullptr && node.container->form == Form::Member) {
            members.insert(node.container->member);
        }
        Walk::visit(node);
    }
    void visit(resolved::MemberRead& node) {
        members.insert(node.member);
        Walk::visit(node);
    }
    void visit(resolved::MethodCall& node) {
        members.insert(node.member);
        Walk::visit(node);
    }

    std::unordered_set<const resolved::Variable*> variables;
    std::unordered_set<std::string_view> members;
    /// Assignments to variables that stand as arguments, as other languages name them.
    std::vector<const resolved::AssignmentValue*> namedArguments;

private:
    void noteNamedArgument(const resolved::Expression* value) {
        const auto* const assignment = nodeCast<resolved::AssignmentValue>(value);
        if (assignment != nullptr && !assignment->isCompound && assignment->target->form == Form::Variable) {
            namedArguments.push_back(assignment);
        }
    }
};

/// The word without its digits, by which names are told apart on purpose.
std::string withoutDigits(std::string_view word) {
    std::string letters(word);
    letters.erase(std::remove_if(letters.begin(), letters.end(), [](char c) { return c >= '0' && c <= '9'; }),
                  letters.end());
    return letters;
}

/// The one of \p known that \p name is a slip of; empty if none is.
std::string_view meantBySlip(std::string_view name, const std::vector<std::string_view>& known) {
    constexpr std::size_t FEWEST_LETTERS = 3;
    if (splitLetters(name).size() < FEWEST_LETTERS) {
        return {};
    }
    const std::string_view nearest = nearestName(name, known);
    return withoutDigits(nearest) == withoutDigits(name) ? std::string_view() : nearest;
}

class Hints {
public:
    explicit Hints(Model& model) : model_(model) { walkProgram(reads_, model.program); }

    SecondHints find() {
        for (const auto& variable : model_.program.variables) {
            checkVariable(*variable);
        }
        for (const auto& structure : model_.program.structures) {
            checkFields(*structure);
        }
        for (const resolved::AssignmentValue* argument : reads_.namedArguments) {
            found_.push_back(
                {argument->place, "'" + argument->target->variable->name +
                                      " = …' இங்கே உள்ளீட்டின் பெயரைச் சொல்வதில்லை, அந்த மாறிக்கு மதிப்பு வைக்கிறது; பெயர் இல்லாமல் "
                                      "மதிப்பை மட்டும் எழுதவும்."});
        }
        const auto order = [](const Found& found) { return std::tie(found.place.file, found.place.range.begin); };
        std::sort(found_.begin(), found_.end(), [&](const Found& a, const Found& b) { return order(a) < order(b); });
        SecondHints hints;
        for (auto& [place, text, mend] : found_) {
            hints.push_back({{model_.source.files[place.file].source, place.range}, std::move(text), std::move(mend)});
        }
        return hints;
    }

private:
    struct Found {
        resolved::Place place;
        std::string text;
        Mend mend{};
    };

    bool isRead(const resolved::Variable& variable) const { return reads_.variables.count(&variable) != 0; }

    /// Whether assignments alone give the variable its values.
    bool isAssigned(const resolved::Variable& variable) const {
        const auto facts = model_.variables.find(&variable);
        return facts != model_.variables.end() && !facts->second.values.empty() && !facts->second.isFilledFromOutside;
    }

    void checkVariable(const resolved::Variable& variable) {
        if (isRead(variable) || !isAssigned(variable)) {
            return;
        }
        const resolved::Structure* const inside = variable.owner == nullptr ? nullptr : variable.owner->structure;
        if (inside != nullptr && findField(*inside, variable.name).field != nullptr) {
            tell(variable.place, variable.name, "மாறி", std::string(SELF_NAME) + "." + variable.name);
            return;
        }
        std::vector<std::string_view> known;
        for (const auto& other : model_.program.variables) {
            const bool isNear =
                other->file == variable.file && (other->owner == variable.owner || other->owner == nullptr);
            if (isNear && isRead(*other)) {
                known.push_back(other->name);
            }
        }
        tell(variable.place, variable.name, "மாறி", meantBySlip(variable.name, known));
    }

    /// A field that only methods write is most likely a slip of one that is there.
    void checkFields(const resolved::Structure& structure) {
        for (const resolved::Field& field : structure.fields) {
            if (field.initializer == nullptr && reads_.members.count(field.name) == 0) {
                auto known = membersOf(structure);
                known.erase(std::remove(known.begin(), known.end(), field.name), known.end());
                tell(field.place, field.name, "பண்பு", meantBySlip(field.name, known));
            }
        }
    }

    void tell(resolved::Place place, const std::string& name, const char* what, std::string_view meant) {
        if (!meant.empty()) {
            found_.push_back({place,
                              "'" + name + "' என்ற " + what + " மதிப்பு பெறுகிறது, ஆனால் எங்கும் படிக்கப்படவில்லை; '" +
                                  std::string(meant) + "' என்று எழுத நினைத்தீர்களா என்று பார்க்கவும்.",
                              {name, std::string(meant)}});
        }
    }

    Model& model_;
    Reads reads_;
    std::vector<Found> found_;
};

} // namespace

SecondHints findHints(Model& model) {
    return Hints(model).find();
}

} // namespace pozhil::second
