#pragma once

/// Fields of the browser that float over the boxes of input widgets, since a canvas can't take Tamil keyboards and
/// selections. The native compiler skips it all.

#include "web_bridge.h"

// clang-format off
// --- emitted from here ---

#ifdef __EMSCRIPTEN__
// உரைபெட்டி: ஒரு வரி அல்லது பல வரிகள்
inline void pozhil_place_text_field(const char* id, const char* hint, bool many_lines, const char* color, float x, float y,
                                    float w, float h, float prefix, float font_size) {
    EM_ASM({
        var id = UTF8ToString($0);
        var manyLines = $2 !== 0;
        var el = document.getElementById(id);
        if (!el) {
            el = document.createElement(manyLines ? 'textarea' : 'input');
            if (!manyLines) {
                el.type = 'text';
            }
            el.id = id;
            el.className = 'pozhil-input';
            el.placeholder = UTF8ToString($1);
            el.style.position = 'absolute';
            el.style.background = 'transparent';
            el.style.border = 'none';
            el.style.outline = 'none';
            el.style.zIndex = '100';
            el.style.fontFamily = '"Noto Sans Tamil", Arial, sans-serif';
            if (manyLines) {
                el.style.resize = 'none';
                el.style.paddingTop = '10px';
            }
            document.body.appendChild(el);
            el.addEventListener('input', function(e) {
                Module.ccall('set_input_value', null, ['string', 'string'], [id, e.target.value]);
                Module.ccall('clear_input_error', null, ['string'], [id]);
            });
        }
        var rect = document.getElementById('canvas').getBoundingClientRect();
        el.style.color = UTF8ToString($3);
        el.style.display = 'block';
        el.style.left = (rect.left + window.scrollX + $4 + 15 + $8) + 'px';
        el.style.top = (rect.top + window.scrollY + $5) + 'px';
        el.style.width = ($6 - 30 - $8) + 'px';
        el.style.height = ($7 - (manyLines ? 20 : 0)) + 'px';
        el.style.fontSize = $9 + 'px';
        el.dataset.touched = '1';
    }, id, hint, many_lines ? 1 : 0, color, x, y, w, h, prefix, font_size);
}

// தேடல்_பட்டை
inline void pozhil_place_search_field(const char* id, const char* hint, float x, float y, float w, float h, float font_size) {
    EM_ASM({
        var id = UTF8ToString($0);
        var el = document.getElementById(id);
        if (!el) {
            el = document.createElement('input');
            el.type = 'text';
            el.id = id;
            el.className = 'pozhil-input';
            el.placeholder = UTF8ToString($1);
            el.style.position = 'absolute';
            el.style.background = 'transparent';
            el.style.border = 'none';
            el.style.outline = 'none';
            el.style.zIndex = '100';
            el.style.fontFamily = '"Noto Sans Tamil", Arial, sans-serif';
            el.style.color = '#333';
            document.body.appendChild(el);
            el.addEventListener('input', function(e) {
                Module.ccall('set_input_value', null, ['string', 'string'], [id, e.target.value]);
            });
        }
        var rect = document.getElementById('canvas').getBoundingClientRect();
        el.style.display = 'block';
        el.style.left = (rect.left + window.scrollX + $2 + 45) + 'px';
        el.style.top = (rect.top + window.scrollY + $3) + 'px';
        el.style.width = ($4 - 80) + 'px';
        el.style.height = $5 + 'px';
        el.style.fontSize = $6 + 'px';
        el.dataset.touched = '1';
    }, id, hint, x, y, w, h, font_size);
}

inline void pozhil_clear_field(const char* id) {
    EM_ASM({
        var el = document.getElementById(UTF8ToString($0));
        if (el) {
            el.value = "";
        }
    }, id);
}

// கடவுமறை
inline void pozhil_place_html_input(const char* id, const char* hint, const char* background, const char* color, float x,
                                    float y, float w, float h, float win_height) {
    EM_ASM({
        var id = UTF8ToString($0);
        var el = document.getElementById(id);
        if (!el) {
            el = document.createElement('input');
            el.type = 'text';
            el.id = id;
            el.className = 'pozhil-input';
            el.placeholder = UTF8ToString($1);
            el.style.position = 'absolute';
            el.style.zIndex = '2000';
            el.style.pointerEvents = 'auto';
            el.style.border = '2px solid #E0E0E0';
            el.style.borderRadius = '12px';
            el.style.padding = '0 15px';
            el.style.fontSize = '17px';
            el.style.fontFamily = '"Noto Sans Tamil", sans-serif';
            el.style.outline = 'none';
            el.style.boxSizing = 'border-box';
            el.style.transition = 'opacity 0.2s ease, border-color 0.2s ease';
            el.style.backgroundColor = UTF8ToString($2);
            el.style.color = UTF8ToString($3);
            el.onfocus = function() {
                el.style.borderColor = '#2196F3';
                el.style.boxShadow = '0 0 8px rgba(33,150,243,0.2)';
            };
            el.onblur = function() {
                el.style.borderColor = '#E0E0E0';
                el.style.boxShadow = 'none';
            };
            el.oninput = function(e) {
                Module.ccall('set_input_value', null, ['string', 'string'], [id, e.target.value]);
            };
            document.body.appendChild(el);
        }
        var rect = document.getElementById('canvas').getBoundingClientRect();
        el.dataset.touched = '1';
        el.style.display = 'block';
        el.style.left = (rect.left + window.scrollX + $4) + 'px';
        el.style.top = (rect.top + window.scrollY + $5) + 'px';
        el.style.width = $6 + 'px';
        el.style.height = $7 + 'px';
        var isOutside = $5 < 0 || $5 + $7 > $8;
        el.style.opacity = isOutside ? '0' : '1';
        el.style.pointerEvents = isOutside ? 'none' : 'auto';
    }, id, hint, background, color, x, y, w, h, win_height);
}
#endif
