#include "generator/first/generator.h"
#include "language/builtins.h"

namespace pozhil {
namespace {

constexpr std::size_t ELEMENT_WRITE_ARGUMENTS = 3;

template <class Node> bool isA(const Expression* expression) {
    return nodeCast<Node>(expression) != nullptr;
}

bool endsWith(std::string_view text, std::string_view ending) {
    return text.size() >= ending.size() && text.substr(text.size() - ending.size()) == ending;
}

} // namespace

/// Writes the call of a built-in function. False if there is none of that name.
bool Generator::emitBuiltinCall(const CallExpression* node, const std::string& name) {
    if (name == "_set_index_internal") {
        emitIndexAssignment(node);
        return true;
    }
    const language::Builtin* anyForm = nullptr;
    const language::Builtin* form = language::findBuiltin(name, static_cast<int>(node->arguments.size()), anyForm);
    if (anyForm == nullptr) {
        return false;
    }
    if (form == nullptr) {
        if (anyForm->wrongCount == language::WrongCount::Report) {
            பிழை("பொழி-331", node->line, std::string(anyForm->wrongCountDetail));
        }
        placelessFault("பொழி-331", node->line, std::string(anyForm->wrongCountDetail));
    }
    if (form->form == language::BuiltinForm::ElementWrite) {
        checkWrittenPlace(node);
    }
    emitPattern(form->text, node, "");
    return true;
}

/// Writes \p pattern with the arguments, the source path, the line, and \p id in place of its holes.
void Generator::emitPattern(std::string_view pattern, const CallExpression* node, const std::string& id) {
    struct ArgumentHole {
        std::string_view name;
        std::size_t argument;
    };
    constexpr ArgumentHole ARGUMENT_HOLES[] = {{"$A", 0}, {"$B", 1}, {"$D", 2}};
    while (!pattern.empty()) {
        const std::string_view text = pattern.substr(0, pattern.find('$'));
        out_ << text;
        pattern.remove_prefix(text.size());
        const auto isHole = [&](std::string_view name) { return pattern.substr(0, name.size()) == name; };
        if (isHole("$file")) {
            out_ << fileName_;
            pattern.remove_prefix(5);
        } else if (isHole("$line")) {
            out_ << node->line;
            pattern.remove_prefix(5);
        } else if (isHole("$id")) {
            out_ << id;
            pattern.remove_prefix(3);
        }
        for (const ArgumentHole& hole : ARGUMENT_HOLES) {
            if (isHole(hole.name)) {
                const Expression* argument = node->arguments[hole.argument].get();
                endsWith(text, ">(") ? emitCastOperand(argument) : visitExpression(argument);
                pattern.remove_prefix(hole.name.size());
            }
        }
    }
}

/// வை(a, i, v) writes into what stands as a: a place in a variable, no value on its way.
void Generator::checkWrittenPlace(const CallExpression* node) const {
    const Expression* target = node->arguments.front().get();
    if (!isA<VariableAccess>(target) && !isA<IndexExpression>(target) && !isA<GetExpression>(target)) {
        பிழை("பொழி-313", node->line,
             "('வை' செயலின் முதல் மதிப்பு ஒரு மாறி, பட்டியல் உறுப்பு அல்லது பொருள் பண்பாக இருக்க வேண்டும்.)");
    }
}

/// a[i][j] = v  ->  references all the way down, so that the write reaches the element in place
void Generator::emitIndexAssignment(const CallExpression* node) {
    if (node->arguments.size() != ELEMENT_WRITE_ARGUMENTS) {
        பிழை("பொழி-331", node->line, "'_set_index_internal'");
    }
    out_ << "(fn_index_ref(";
    emitElementReference(node->arguments.front().get());
    emitPattern(", std::any($B), \"$file\", $line) = std::any($D))", node, "");
}

void Generator::emitElementReference(const Expression* target) {
    const auto* element = nodeCast<IndexExpression>(target);
    if (element == nullptr) {
        visitExpression(target);
        return;
    }
    out_ << "fn_index_ref(";
    emitElementReference(element->object.get());
    out_ << ", ";
    emitAny(element->index.get());
    out_ << ", \"" << fileName_ << "\", " << element->line << ")";
}

} // namespace pozhil
