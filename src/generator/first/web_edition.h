#pragma once

#include "generator/web/write/edition_writer.h"

#include <string>

namespace pozhil {

/// How pages reach the values of the first edition, which are all std::any, and its variables, which stand in
/// global_vars by their names.
class WebEdition : public EditionWriter {
public:
    Filling text(const Expression* value, const std::string& otherwise) override;
    /// A variable is read by its name alone, whether the program has it or not; so is what stands after காட்சி_நிலை.
    Filling shownText(const Expression* value, const std::string& otherwise) override;
    Filling number(const Expression& value) override;
    Filling truth(const Expression& value) override;
    Filling equality(const Expression& left, const Expression& right) override;
    /// Escapes are the same in both languages.
    std::string literal(const std::string& text) const override;
    std::string inComment(const std::string& text) const override { return text; }
    std::string valueType() const override { return "std::any"; }

    /// Variables and the size of the window, and comparisons of these with each other and with sizes.
    std::string computedSize(const Expression& size, const std::string& base) override;
    std::string sizeCondition(const Expression& condition, const std::string& base) override;

    /// By the variable that காட்சி_பெயர் names. A dialog waits until it says so; anything else is there until it says no.
    std::optional<Visibility> visibility(const WidgetNode& widget) override;
    bool isBound(const WidgetNode&) override { return false; }
    /// Of a box to tick, by the variable that அடையாளம் names.
    void writeStateRead(WidgetWriter& control, const ControlState& state) override;
    /// The same; all others have handlers.
    void writeChange(WidgetWriter& control, const ControlState& state) override;
    /// Those that are texts.
    void writeChoices(WidgetWriter& dropdown, const Expression& choices) override;
    void writeField(WidgetWriter&, const Filling&) override {}
    void writeDisabling(WidgetWriter&) override {}
    void writeWindowSize(CodeWriter& out) override;
    void writeOpenAlerts(CodeWriter& out) override;

    /// A fault is told once, on the console.
    void writeDrawing(CodeWriter& out) override;

    /// Only a control calls the function that its handler may be.
    void writeHandler(WidgetWriter& widget, const Expression& handler, HandlerSite site) override;
    void writeHandlerStatements(WidgetWriter& widget, const StatementList& statements) override;

    void writeMessageFunction(WidgetWriter& bar, const Filling& message, const ByteColour& colour) override;
    MessageBar messageBar() const override;

protected:
    /// Writes \p expression where the text ends. One that is missing is a fault.
    virtual void writeExpression(const Expression* expression) = 0;

private:
    Filling written(const Expression* expression);
};

} // namespace pozhil
