#pragma once

#include "emit/code_writer.h"
#include "generator/web/write/edition_writer.h"
#include "parser/syntax_tree.h"

/// The bridge to the realtime database: each operation is a script for the browser, put together when it runs. A native
/// program has no database, and its operations do nothing.
namespace pozhil {

/// Loads the libraries of the database that \p app names into the page, one after the other and only once.
void emitDatabaseSetup(CodeWriter& out, const WebAppNode& app);

/// Operations as expressions without a value.
void emitInsert(CodeWriter& out, EditionWriter& edition, const RTDBInsertExpression& insert);
void emitUpdate(CodeWriter& out, EditionWriter& edition, const RTDBUpdateExpression& update);
void emitDelete(CodeWriter& out, EditionWriter& edition, const RTDBDeleteExpression& remove);

/// The body runs when the data has arrived; what stands after the statement doesn't wait. The variables of a function
/// are copied for it, and its own end with it. A return in it leaves the body alone, on some of its ways or on all.
void emitRead(CodeWriter& out, EditionWriter& edition, const RTDBReadStatement& read);

} // namespace pozhil
