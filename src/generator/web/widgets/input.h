#pragma once

namespace pozhil {

class WidgetWriter;

/// உரைபெட்டி: a box with a field of the browser over it, of one line or several.
void emitTextField(WidgetWriter& field);

/// தேடல்_பட்டை, தேடுபொறி: a search field with its icons.
void emitSearchBar(WidgetWriter& bar);

/// கடவுமறை: a field that looks like one of the browser's own.
void emitHtmlInput(WidgetWriter& input);

} // namespace pozhil
