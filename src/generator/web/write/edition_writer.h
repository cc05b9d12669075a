#pragma once

#include "diagnostics/fault.h"
#include "emit/emitted_block.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/layering.h"
#include "generator/web/write/presence.h"
#include "parser/tree/node.h"

#include <cstdint>
#include <optional>
#include <string>

namespace pozhil {

class CodeWriter;
class WidgetWriter;
struct WidgetNode;

/// Where a handler stands. Editions differ in which of them call the function that a handler may be.
enum class HandlerSite {
    Control,   ///< what is pressed or changed: a button, a box, a switch, an entry of a menu
    Bar,       ///< a bar whose items are pressed
    TextButton ///< a text that is pressed
};

/// What decides whether a widget is there.
struct Visibility {
    /// What the page calls it.
    std::string name;
    /// A bool of the emitted program, asked anew in each frame.
    Filling condition;
};

/// How the elements of a list stand in a layout if all take the same room: one after the other, along a variable of the
/// emitted block.
struct Course {
    std::string position; ///< float: where the next one stands; each moves it on
    std::string step;     ///< float: by so much
    std::string end;      ///< float: where the window ends
};

/// What a control shows, as its block keeps it.
struct ControlState {
    enum class Kind {
        Truth,  ///< a bool
        Number, ///< a float
        Index,  ///< an int: which item of a bar is selected
        Choice, ///< an int: which of `items`, a std::vector<std::string>, is chosen; -1 for none
        Group   ///< none: which of a group is selected is up to the program
    };
    Kind kind;
    /// The name of its variable.
    std::string variable;
};

/// The message bar (அறிவிப்பு_பட்டை) as the emitted program keeps it: expressions of C++.
struct MessageBar {
    std::string isShown; ///< bool; the others count only while it is true
    std::string since;   ///< double: when it was shown, in milliseconds of the page
    std::string top;     ///< float: how far down it has come
    std::string moved;   ///< an assignment: it has come as far as `currentY`, a float
    std::string hidden;  ///< an assignment: it is shown no longer
    std::string message; ///< std::string
    std::string red;     ///< int from 0 to 255, as the others
    std::string green;
    std::string blue;
};

/// The edition of the language that a web program is written in, as its pages see it. Pages and widgets have the same
/// blocks in every edition. These know the types of C++ and the runtime of pages; how the program holds its values,
/// variables and functions is known to the edition alone, which writes all that has to do with them.
///
/// What an edition returns goes into a hole of a block, once for each time that the hole stands there.
class EditionWriter : public Presence {
public:
    // Values.

    /// A std::string that a member may be asked of: what \p value shows, evaluated where it stands.
    /// \param value null if the source gives none
    /// \param otherwise a std::string of C++ in its place
    virtual Filling text(const Expression* value, const std::string& otherwise) = 0;

    /// The same for what a widget shows in each frame.
    virtual Filling shownText(const Expression* value, const std::string& otherwise) = 0;

    /// A number of C++, which a cast may stand before.
    virtual Filling number(const Expression& value) = 0;

    /// A bool. What is neither true nor false counts as false, or is a fault of the running program.
    virtual Filling truth(const Expression& value) = 0;

    /// A bool: whether both are the same.
    virtual Filling equality(const Expression& left, const Expression& right) = 0;

    /// A text of the source as a literal of C++, in its quotes.
    virtual std::string literal(const std::string& text) const = 0;

    /// A text of the source as a part of a comment of one line.
    virtual std::string inComment(const std::string& text) const = 0;

    /// The type of C++ that holds any value of the program, and nothing when it is made without arguments.
    virtual std::string valueType() const = 0;

    // Sizes that aren't written as numbers or percentages (sizes.h), in pixels.

    /// A number of C++, empty for an expression that is no size.
    /// \param base text of the size that a percentage is taken of
    virtual std::string computedSize(const Expression& size, const std::string& base) = 0;

    /// A bool that decides between two sizes, empty for an expression that can't.
    virtual std::string sizeCondition(const Expression& condition, const std::string& base) = 0;

    std::string sizeText(const Expression* size, const std::string& base) override;

    // State of the program that widgets show and change.

    /// What decides whether \p widget is there; nothing for one that always is.
    virtual std::optional<Visibility> visibility(const WidgetNode& widget) = 0;

    /// Whether the program says what the control shows, and is told when the user changes it.
    virtual bool isBound(const WidgetNode& control) = 0;

    /// Lines by which \p state becomes what the program says of the control, in each frame; none if the program holds
    /// nothing of it.
    virtual void writeStateRead(WidgetWriter& control, const ControlState& state) = 0;

    /// Lines by which the program learns that the user has changed the control, and which do what the source wants then.
    virtual void writeChange(WidgetWriter& control, const ControlState& state) = 0;

    /// Lines that add the choices of a list, which isn't written out as texts alone, to `items`.
    virtual void writeChoices(WidgetWriter& dropdown, const Expression& choices) = 0;

    /// Lines after a field of the browser has been put in its place, for what this edition makes of fields.
    /// \param id what the field is called, a std::string or its letters
    virtual void writeField(WidgetWriter& field, const Filling& id) = 0;

    /// Lines at the head of a widget's block, by which it answers nothing while the program says so.
    virtual void writeDisabling(WidgetWriter& widget) = 0;

    /// Lines by which the program knows the size of the window: the floats `winWidth` and `winHeight`.
    virtual void writeWindowSize(CodeWriter& out) = 0;

    /// A float of the emitted text: texts never shrink with the window to a smaller part of their size.
    virtual std::string leastTextScale() const { return "0.65f"; }

    /// Lines at the head of a page, for what this edition makes of its header.
    virtual void writePageSettings(WidgetWriter&) {}

    /// The function pozhil_open_alerts of the emitted program: a std::set<std::string> of the names by which widgets are
    /// there that mask the page.
    virtual void writeOpenAlerts(CodeWriter& out) = 0;

    /// What lies over what.
    virtual const Layering& layering() const;

    // Widgets that come once for each element of a list; in editions that have such.

    /// A loop over the elements with \p body in it.
    /// \param number tells the lists of a program apart
    /// \param course passes over elements that stand out of the window; null if each must be gone through
    virtual void writeEach(WidgetWriter& layout, const EachNode& each, const std::string& number, const Filling& body,
                           const Course* course);

    /// The declaration, in such a body, by which what is drawn after it belongs to the element.
    virtual std::string elementScope(const std::string& number) const;

    /// The declaration of a variable that belongs to the element (WidgetWriter::state).
    virtual Filling elementState(const std::string& type, const std::string& name, const Filling& first) const;

    /// An unsigned number of the emitted text: another for each element and each \p key.
    virtual std::string elementKey(const std::string& key) const;

    /// A std::string of the emitted text: another for each element and each \p name, which is one as well.
    virtual std::string elementName(const std::string& name) const;

    // Faults of the running program.

    /// The function template pozhil_draw of the emitted program, which calls what it gets: the block of a widget. A fault
    /// in it is told, and the page goes on after it.
    virtual void writeDrawing(CodeWriter& out) = 0;

    /// The function of the emitted program that calls what holds the blocks of widgets: all that a frame draws at once.
    virtual std::string frameGuard() const { return "pozhil_draw"; }

    // Handlers, as lines at the present level of indentation, inside the test for the press.

    /// What \p handler does. A page outlives whatever it throws.
    virtual void writeHandler(WidgetWriter& widget, const Expression& handler, HandlerSite site) = 0;

    /// What the statements do that the source wrote in place of a handler.
    virtual void writeHandlerStatements(WidgetWriter& widget, const StatementList& statements) = 0;

    // The message bar.

    /// A value of the program: a function that shows the bar.
    /// \param message a std::string of C++
    virtual void writeMessageFunction(WidgetWriter& bar, const Filling& message, const ByteColour& colour) = 0;

    virtual MessageBar messageBar() const = 0;

    // Statements.

    /// Writes \p statement, with its lines, at the present level of indentation.
    virtual void writeStatement(const Statement* statement) = 0;

    /// Writes \p statements at the present level, in a scope of their own: what they declare isn't known after them.
    virtual void writeBody(const StatementList& statements) = 0;

    /// A fault in the source that is told without its place, to be thrown.
    virtual Fault faultWithoutPlace(const std::string& code, std::int32_t line, const std::string& details) const = 0;
};

} // namespace pozhil
