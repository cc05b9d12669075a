#pragma once

namespace pozhil {

class WidgetWriter;

/// பக்கம் inside a page: drawn while it is the page being shown.
void emitNestedPage(WidgetWriter& page);

} // namespace pozhil
