#include "generator/first/generator.h"
#include "generator/first/names.h"

#include <algorithm>

namespace pozhil {
namespace {

constexpr const char* CONSTRUCTOR = "துவக்கம்";

bool ownsConstructor(const StructDefinitionStatement& structure) {
    return std::any_of(structure.methods.begin(), structure.methods.end(),
                       [](const auto& method) { return method->name.value == CONSTRUCTOR; });
}

} // namespace

/// கட்டமைப்பு T(P): ...  ->  struct T : public P { names as comments }; and one function a method
///
/// The struct has no data members of its own: fields and methods live in the property map of the common base.
void Generator::visitStructDefinitionStatement(const StructDefinitionStatement* node) {
    const std::string& name = node->name.value;
    knownStructs_.insert(name);
    out_ << "struct " << name << " : public " << baseOf(node) << " {\n";
    emitMemberComments(node, true);
    emitMemberComments(node, false);
    out_ << "};\nusing T_" << name << " = std::shared_ptr<" << name << ">;\n";
    setVarType(name, VarType::Object);
    currentStruct_ = name;
    for (const auto& method : node->methods) {
        visitFunctionDefinitionStatement(method.get());
    }
    currentStruct_.clear();
    ++typeEpoch_;
}

std::string Generator::baseOf(const StructDefinitionStatement* node) const {
    if (!node->hasParent || abstractStructDefs_.count(node->parent.value) != 0) {
        return "_StructBase";
    }
    if (structDefs_.count(node->parent.value) == 0) {
        பிழை("பொழி-323", node->name.line, "'" + node->parent.value + "'");
    }
    return node->parent.value;
}

/// The members of one visibility, so that a reader of the text finds them.
void Generator::emitMemberComments(const StructDefinitionStatement* node, bool isPrivate) {
    const auto hasVisibility = [&](const auto& member) { return member->isPrivate == isPrivate; };
    if (std::none_of(node->fields.begin(), node->fields.end(), hasVisibility) &&
        std::none_of(node->methods.begin(), node->methods.end(), hasVisibility)) {
        return;
    }
    out_ << (isPrivate ? "private:\n" : "public:\n");
    for (const auto& field : node->fields) {
        if (hasVisibility(field)) {
            out_.indent();
            out_ << "// " << field->name << "\n";
        }
    }
    for (const auto& method : node->methods) {
        if (hasVisibility(method)) {
            out_.indent();
            out_ << "// " << method->name.value << "()\n";
        }
    }
}

/// A structure and its parents, itself first, up to one without a parent or with an abstract one.
std::vector<const StructDefinitionStatement*> Generator::lineage(const std::string& structName) const {
    std::vector<const StructDefinitionStatement*> line;
    std::string name = structName;
    while (abstractStructDefs_.count(name) == 0 || structDefs_.count(name) != 0) {
        const auto found = structDefs_.find(name);
        // A structure that was defined anew with one of its children as parent never ends.
        if (found == structDefs_.end() || line.size() > structDefs_.size()) {
            பிழை("பொழி-323", 0, "'" + name + "'");
        }
        line.push_back(found->second);
        if (!found->second->hasParent) {
            break;
        }
        name = found->second->parent.value;
    }
    return line;
}

/// Statements that fill a new object: the parents' members first, so that those of the child replace them.
void Generator::bindPropertiesAndMethods(const std::string& structName, const std::string& object) {
    const std::vector<const StructDefinitionStatement*> line = lineage(structName);
    for (auto structure = line.rbegin(); structure != line.rend(); ++structure) {
        for (const auto& field : (*structure)->fields) {
            out_.indent();
            out_ << object << "->properties[\"" << field->name << "\"] = ";
            emitAny(field->initializer.get());
            out_ << ";\n";
        }
        for (const auto& method : (*structure)->methods) {
            bindMethod((*structure)->name.value, *method, object);
        }
    }
}

/// Refuses an object whose fields make objects whose fields make objects, without end or beyond any sensible text:
/// each level repeats the text of those below it.
void Generator::checkConstructionDepth(std::int32_t line) {
    constexpr int MAX_CONSTRUCTION_DEPTH = 12;
    constexpr std::size_t MAX_NESTED_TEXT = std::size_t(64) * 1024 * 1024;
    const bool isNested = constructionDepth_ > 1;
    if (constructionDepth_ > MAX_CONSTRUCTION_DEPTH || (isNested && out_.length() > MAX_NESTED_TEXT)) {
        பிழை("பொழி-291", line, "");
    }
}

/// A method becomes a property that holds a closure over the object.
void Generator::bindMethod(const std::string& structName, const FunctionDefinitionStatement& method,
                           const std::string& object) {
    std::string types;
    std::string declarations;
    std::string names;
    for (std::size_t index = 1; index < method.params.size(); ++index) {
        const std::string& name = method.params[index].name.value;
        types += index == 1 ? "std::any" : ", std::any";
        declarations += (index == 1 ? "std::any " : ", std::any ") + name;
        names += ", " + name;
    }
    out_.indent();
    out_ << object << "->properties[\"" << method.name.value << "\"] = std::any(std::function<std::any(" << types
         << ")>([=](" << declarations << ") { return " << emittedFunctionName(structName + "_" + method.name.value)
         << "(std::static_pointer_cast<_StructBase>(" << object << ")" << names << "); }));\n";
}

/// The structure whose துவக்கம் constructs a \p structName: itself or the nearest parent that has one, else empty.
std::string Generator::constructorOwner(const std::string& structName) const {
    for (const StructDefinitionStatement* structure : lineage(structName)) {
        if (ownsConstructor(*structure)) {
            return structure->name.value;
        }
    }
    return "";
}

void Generator::emitConstructorCall(const std::string& owner, const std::string& object,
                                    const ExpressionList& arguments) {
    out_.indent();
    out_ << emittedFunctionName(owner + "_" + CONSTRUCTOR) << "(std::static_pointer_cast<_StructBase>(" << object
         << ")";
    for (const ExpressionPtr& argument : arguments) {
        out_ << ", ";
        emitAny(argument.get());
    }
    out_ << ");\n";
}

/// T(a)  ->  a closure that makes, fills and constructs an object
void Generator::emitConstruction(const CallExpression* node, const std::string& structName) {
    ++constructionDepth_;
    checkConstructionDepth(node->line);
    out_ << "[&]() -> std::any {\n";
    {
        const CodeWriter::Indented deeper(out_);
        out_.indent();
        out_ << "auto temp_obj = std::make_shared<" << structName << ">();\n";
        bindPropertiesAndMethods(structName, "temp_obj");
        const std::string owner = constructorOwner(structName);
        if (!owner.empty()) {
            emitConstructorCall(owner, "temp_obj", node->arguments);
        } else if (!node->arguments.empty()) {
            பிழை("பொழி-333", node->line, "'" + structName + "' கட்டமைப்பில் 'துவக்கம்()' வரையறுக்கப்படவில்லை.");
        }
        out_.indent();
        out_ << "return std::any(std::static_pointer_cast<_StructBase>(temp_obj));\n";
    }
    out_.indent();
    out_ << "}()";
    --constructionDepth_;
}

/// x = T(a)  ->  an object of its own name, filled and constructed before the variable holds it. Unlike the expression
/// form, only a constructor of T itself is called.
void Generator::emitObjectDeclaration(const VarDeclaration* node, const CallExpression& call,
                                      const std::string& structName) {
    const std::string object = "obj_" + node->name;
    setVarType(node->name, VarType::Object);
    out_.indent();
    out_ << "auto " << object << " = std::make_shared<" << structName << ">();\n";
    bindPropertiesAndMethods(structName, object);
    if (ownsConstructor(*structDefs_.at(structName))) {
        emitConstructorCall(structName, object, call.arguments);
    } else if (!call.arguments.empty()) {
        பிழை("பொழி-333", node->line, "'" + structName + "' கட்டமைப்பில் 'துவக்கம்()' வரையறுக்கப்படவில்லை.");
    }
    out_.indent();
    out_ << (currentFunction_.empty() ? "global_vars[\"" + node->name + "\"]" : node->name)
         << " = std::any(std::static_pointer_cast<_StructBase>(" << object << "))";
}

} // namespace pozhil
