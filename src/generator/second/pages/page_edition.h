#pragma once

#include "generator/second/pages/page_layering.h"
#include "generator/second/program_tables.h"
#include "generator/web/write/edition_writer.h"

#include <string>

namespace pozhil {
class WebEmitter;
}

namespace pozhil::resolved::writer {

/// How pages reach the values of the second edition, which the analysis has resolved: by their nodes in the tree. A fault in
/// one of them is told, and the page goes on without what it belongs to.
class PageEdition final : public EditionWriter {
public:
    /// \param program, tables, out outlive the edition; what widgets write goes to \p out
    PageEdition(const Program& program, ProgramTables& tables, CodeWriter& out)
        : program_(program), tables_(tables), out_(out) {}

    /// Whoever writes the widgets that stand in values.
    void setEmitter(WebEmitter& emitter) { emitter_ = &emitter; }

    Filling text(const pozhil::Expression* value, const std::string& otherwise) override;
    Filling shownText(const pozhil::Expression* value, const std::string& otherwise) override;
    Filling number(const pozhil::Expression& value) override;
    Filling truth(const pozhil::Expression& value) override;
    Filling equality(const pozhil::Expression& left, const pozhil::Expression& right) override;
    std::string literal(const std::string& text) const override;
    std::string inComment(const std::string& text) const override;
    std::string valueType() const override { return "Value"; }

    std::string computedSize(const pozhil::Expression& size, const std::string& base) override;
    std::string sizeCondition(const pozhil::Expression& condition, const std::string& base) override;

    /// By the variable that காட்சி_பெயர் names. A dialog waits until it says so; anything else is there until it says no.
    std::optional<Visibility> visibility(const WidgetNode& widget) override;
    std::string shownWhile(const WidgetNode& widget) override;
    bool countsHiddenFields() const override { return true; }

    Extent sumOverElements(const EachNode& each, const Extent& ofOne) override;
    Extent largestOfElements(const EachNode& each, const Extent& ofOne) override;
    void writeEach(WidgetWriter& layout, const EachNode& each, const std::string& number, const Filling& body,
                   const Course* course) override;
    std::string elementScope(const std::string& number) const override;
    Filling elementState(const std::string& type, const std::string& name, const Filling& first) const override;
    std::string elementKey(const std::string& key) const override;
    std::string elementName(const std::string& name) const override;

    // Texts that wrap, and how texts follow the window, in page_wrapping.cpp.

    bool wraps(const WidgetNode& widget) const override;
    std::string wrappedText(const WidgetNode& text, const std::string& shown) override;
    Extent wrappedSize(const WidgetNode& text, const char* side) override;
    std::string leastTextScale() const override { return "page::leastTextScale"; }
    void writePageSettings(WidgetWriter& page) override;

    // Controls, in page_controls.cpp.

    bool isBound(const WidgetNode& control) override;
    /// By the place that the control is bound to; of a box to tick also by the variable that அடையாளம் names.
    void writeStateRead(WidgetWriter& control, const ControlState& state) override;
    /// Assigns the place, then calls the handlers with what is new. In a bar, those of the bar and of its item come after.
    void writeChange(WidgetWriter& control, const ControlState& state) override;
    void writeChoices(WidgetWriter& dropdown, const pozhil::Expression& choices) override;
    void writeField(WidgetWriter& field, const Filling& id) override;
    void writeDisabling(WidgetWriter& widget) override;

    const Layering& layering() const override { return layering_; }

    void writeWindowSize(CodeWriter& out) override;
    void writeOpenAlerts(CodeWriter& out) override;
    void writeDrawing(CodeWriter& out) override;
    std::string frameGuard() const override { return "guarded"; }

    /// The function pozhil_program_shows of the emitted program: whether the variable of a name shows the widgets that name it,
    /// for whoever mirrors the page.
    void writeShownNames(CodeWriter& out);

    void writeHandler(WidgetWriter& widget, const pozhil::Expression& handler, HandlerSite site) override;
    void writeHandlerStatements(WidgetWriter& widget, const pozhil::StatementList& statements) override;
    void writeMessageFunction(WidgetWriter& bar, const Filling& message, const ByteColour& colour) override;
    MessageBar messageBar() const override;

    void writeStatement(const pozhil::Statement* statement) override;
    void writeBody(const pozhil::StatementList& statements) override;
    Fault faultWithoutPlace(const std::string& code, std::int32_t line, const std::string& details) const override;

private:
    /// The variable of the program that holds whether the control is on, null if it has none.
    const Variable* stateOf(const WidgetWriter& control) const;
    const PageValue& valueOf(const void* node) const;
    std::string written(const void* node);
    /// What the value shows, a std::string of the emitted text.
    std::string shownBy(const pozhil::Expression* value, const std::string& otherwise);
    const Function& functionOf(const EachNode& each) const;
    /// What a loop goes through, and where that stands, as two arguments.
    std::string listArguments(const EachNode& each);
    std::string elementParameters(const EachNode& each) const;
    /// Variables that handlers of the element share; empty or a statement of one line.
    std::string sharedElements(const EachNode& each) const;
    static std::string measured(const std::string& size);
    std::string overElements(const char* gather, const EachNode& each, const Extent& ofOne);
    /// \param news what is new, a Value of the emitted text that a function may take; empty if nothing is
    void writeCall(WidgetWriter& widget, const void* handler, const std::string& news = "");
    std::string placeOf(const void* node) const;
    /// What the place holds that a control is bound to, as a Value that may be unset.
    std::string heldValue(const pozhil::Expression& place);
    /// What the user has made of a control, as a Value; empty if that can't be told.
    std::string newsOf(const WidgetNode& control, const ControlState& state);
    void writeUnboundChange(WidgetWriter& control, const ControlState& state, const std::string& news);
    void writeChangeHandler(WidgetWriter& control, const char* property, const std::string& news);
    void writeBarPress(WidgetWriter& bar, const std::string& index);
    void writePress(WidgetWriter& bar, const WidgetNode& pressed);
    std::string visibilityCondition(const pozhil::Expression& name, const std::string& atFirst);

    const Program& program_;
    ProgramTables& tables_;
    CodeWriter& out_;
    PageLayering layering_;
    WebEmitter* emitter_ = nullptr;
};

} // namespace pozhil::resolved::writer
