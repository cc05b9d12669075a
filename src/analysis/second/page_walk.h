#pragma once

#include "parser/tree/expressions.h"
#include "parser/tree/widgets.h"

#include <string>
#include <string_view>

namespace pozhil::second {

/// Goes over what the widgets of a page take from the program, in the order of the tree.
class PageWalk {
public:
    void walk(const WebAppNode& application);
    void walk(const WidgetNode& widget);

protected:
    ~PageWalk() = default;

    /// A value that is evaluated anew whenever the widget is drawn or used.
    virtual void onValue(const Expression& value) = 0;
    /// What comes until leaveEach() does so for each element of the list, whose value is told before.
    virtual void enterEach(const EachNode& each) = 0;
    virtual void leaveEach(const EachNode& each) = 0;
    /// What the program holds of a control: it is shown, and assigned when the user changes it.
    /// \param property the name of the property that says so, as the widget keeps it
    /// \param isOptional whether what can't be assigned is shown all the same
    virtual void onBinding(const std::string& property, const Expression& place, bool isOptional) = 0;
    /// The name of a variable, as a text, that the widget shows or changes.
    virtual void onVariableName(const StringLiteral& name) = 0;
    /// The name of a variable that holds whether a control is on, as a text. The control may be the first to give it a value.
    virtual void onStateName(const StringLiteral& name) = 0;
    /// The name that the program calls a widget by, as a text.
    virtual void onWidgetName(const std::string& name) = 0;

private:
    void walkChildren(const WidgetNode& widget);
    void walkEach(const EachNode& each);
    void walkProperty(const WidgetNode& widget, const std::string& name, const Expression* value);
    void walkSize(const Expression* size);
};

/// What the page is called: what its header says, else what pages without a name are.
std::string pageNameOf(const WebAppNode& application);

/// What an ஒவ்வொன்றும் goes through, and what it knows an element by; null if it doesn't say.
const Expression* listOf(const EachNode& each);
const Expression* keyOf(const EachNode& each);

/// The logic of an application, null if it has none.
const BlockStatement* logicOf(const WebAppNode& application);

} // namespace pozhil::second
