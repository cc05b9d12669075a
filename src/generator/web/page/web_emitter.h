#pragma once

#include "emit/code_writer.h"
#include "generator/web/page/application.h"
#include "generator/web/page/widget_frame.h"
#include "generator/web/write/edition_writer.h"
#include "parser/syntax_tree.h"

#include <string>
#include <vector>

namespace pozhil {

/// Writes what only web programs have: the frame function with all pages in it, the start, the database, and widgets
/// wherever the source has them.
class WebEmitter {
public:
    /// \param out, edition, and the trees of the application outlive the emitter; the edition writes to the same text
    WebEmitter(CodeWriter& out, EditionWriter& edition, Application application);

    /// The applications of the program, one page each, in order. A console program has none.
    const std::vector<const WebAppNode*>& applications() const { return application_.pages; }

    /// Name of the page that is shown first.
    const std::string& startPage() const { return application_.startPage; }

    /// What makes the databases of the applications ready, for the set-up before the first frame.
    void writeDatabaseSetup();

    /// The frame function and main. There is an application.
    void writeProgram();

    /// Writes \p statement if it is one of web programs: a page, a widget, a read of the database.
    /// \return whether it is
    bool writeStatement(const Statement* statement);

    /// Writes \p expression if it is one of web programs: a colour, a widget, an operation on the database.
    /// \return whether it is
    bool writeExpression(const Expression* expression);

private:
    void writeFrameHead();
    void writeFrameTail();
    void writeMain();

    CodeWriter& out_;
    EditionWriter& edition_;
    const Application application_;
    WidgetFrame widgets_;
};

} // namespace pozhil
