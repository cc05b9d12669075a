#pragma once

/// What the browser side of a page may call. The native compiler skips it all.

#include "input_state.h"
#include "web_text_layer.h"

// --- emitted from here ---

#ifdef __EMSCRIPTEN__
void நகர்த்து(std::string id);
#endif

#ifdef __EMSCRIPTEN__
EMSCRIPTEN_BINDINGS(scroll_logic) {
    emscripten::function("நகர்த்து", &நகர்த்து);
}
#endif
