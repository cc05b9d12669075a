#pragma once

#include "parser/tree/second_edition.h"
#include "support/tree_text.h"

namespace pozhil::test {

template <class Node, class Base> const Node* as(const Base* node) {
    return dynamic_cast<const Node*>(node);
}

/// Writes trees as told at treeText.
class TreeWriter {
public:
    explicit TreeWriter(Lines lines) : lines_(lines) {}

    std::string text(const Expression* node);
    std::string text(const Statement* node);

private:
    std::string literal(const Expression* node);
    std::string operation(const Expression* node);
    std::string access(const Expression* node);
    std::string simpleStatement(const Statement* node);
    std::string controlFlow(const Statement* node);
    std::string definition(const Statement* node);
    std::string application(const Statement* node);
    std::string database(const Expression* node);
    std::string secondEdition(const Expression* node);
    std::string secondEdition(const Statement* node);
    std::string widget(const Statement* node);
    std::string parts(const WidgetNode& widget);
    std::string text(const MapLiteral& map);
    std::string text(const SwitchStatement& statement);
    std::string text(const StructDefinitionStatement& structure);
    std::string text(const AbstractStructDefinitionStatement& structure);

    /// The parts in brackets, a blank between each two of them; empty ones are left out.
    template <class... Parts> std::string node(const char* name, std::int32_t line, const Parts&... parts) {
        std::string joined = named(name, line);
        (append(joined, part(parts)), ...);
        return "(" + joined + ")";
    }

    std::string named(const std::string& name, std::int32_t line) const {
        return lines_ == Lines::Hidden || line == 0 ? name : name + "@" + std::to_string(line);
    }

    static std::string quoted(const std::string& text) { return '"' + text + '"'; }

    static void append(std::string& text, const std::string& next) {
        if (!text.empty() && !next.empty()) {
            text += ' ';
        }
        text += next;
    }

    std::string part(const std::string& word) { return word; }
    std::string part(const Token& token) { return token.value; }
    std::string part(const ExpressionPtr& child) { return text(child.get()); }
    std::string part(const StatementPtr& child) { return text(child.get()); }
    std::string part(const std::unique_ptr<BlockStatement>& block) { return text(block.get()); }
    std::string part(const std::unique_ptr<MapLiteral>& map) { return text(map.get()); }
    std::string part(const std::unique_ptr<WidgetNode>& child) { return text(child.get()); }

    template <class Child> std::string part(const std::vector<Child>& children) {
        std::string joined;
        for (const Child& child : children) {
            append(joined, part(child));
        }
        return joined;
    }

    std::string part(const Param& param) { return (param.isMutable ? "&" : "") + param.name.value; }
    std::string part(const AbstractMethod& method) { return node(method.name.value.c_str(), 0, method.params); }
    std::string part(const CaseBlock& block) { return "(" + part(block.value) + " " + part(block.body) + ")"; }
    std::string part(const std::unique_ptr<VarDeclaration>& field) { return text(field.get()); }
    std::string part(const std::unique_ptr<FunctionDefinitionStatement>& method) { return text(method.get()); }

    std::string part(const PropertyMap& properties) {
        std::string joined;
        for (const auto& [key, value] : properties) {
            append(joined, "(" + quoted(key) + " " + part(value) + ")");
        }
        return joined;
    }

    template <class Child> std::string bracketed(const std::vector<Child>& children) {
        return "(" + part(children) + ")";
    }

    Lines lines_;
};

} // namespace pozhil::test
