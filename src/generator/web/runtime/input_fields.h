#pragma once

/// Fields of the browser that float over the boxes of input widgets, since a canvas can't take Tamil keyboards and
/// selections. The native compiler skips it all.

#include "web_bridge.h"

// clang-format off
// --- emitted from here ---

#ifdef __EMSCRIPTEN__
// புதிய உள்ளீட்டை உருவாக்கினால் true; ஏற்கெனவே இருந்தால் false
inline bool pozhil_make_field(const char* id, const char* hint, bool many_lines) {
    return EM_ASM_INT({
        var id = UTF8ToString($0);
        if (document.getElementById(id)) {
            return 0;
        }
        var el = document.createElement($2 ? 'textarea' : 'input');
        if (!$2) {
            el.type = 'text';
        }
        el.id = id;
        el.className = 'pozhil-input';
        el.placeholder = UTF8ToString($1);
        el.style.position = 'absolute';
        el.style.outline = 'none';
        el.addEventListener('input', function(e) {
            Module.ccall('set_input_value', null, ['string', 'string'], [id, e.target.value]);
        });
        document.body.appendChild(el);
        return 1;
    }, id, hint, many_lines ? 1 : 0) != 0;
}

// வரைபலகையின் மேல் நிற்கும் இடம்; ஒவ்வொரு சட்டமும் அழைக்காத உள்ளீடு மறைந்துவிடும்
inline void pozhil_move_field(const char* id, float x, float y, float w, float h) {
    EM_ASM({
        var el = document.getElementById(UTF8ToString($0));
        var rect = document.getElementById('canvas').getBoundingClientRect();
        el.style.display = 'block';
        el.style.left = (rect.left + window.scrollX + $1) + 'px';
        el.style.top = (rect.top + window.scrollY + $2) + 'px';
        el.style.width = $3 + 'px';
        el.style.height = $4 + 'px';
        el.dataset.touched = '1';
    }, id, x, y, w, h);
}

// பெட்டியை NanoVG வரைவதால் உள்ளீட்டுக்கு விளிம்போ பின்னணியோ இல்லை.
inline void pozhil_bare_field(const char* id) {
    EM_ASM({
        var el = document.getElementById(UTF8ToString($0));
        el.style.background = 'transparent';
        el.style.border = 'none';
        el.style.zIndex = '100';
        el.style.fontFamily = '"Noto Sans Tamil", Arial, sans-serif';
    }, id);
}

inline void pozhil_color_field(const char* id, const char* color, float font_size) {
    EM_ASM({
        var el = document.getElementById(UTF8ToString($0));
        el.style.color = UTF8ToString($1);
        el.style.fontSize = $2 + 'px';
    }, id, color, font_size);
}

// உரைபெட்டி: ஒரு வரி அல்லது பல வரிகள்
inline void pozhil_place_text_field(const char* id, const char* hint, bool many_lines, const char* color, float x, float y,
                                    float w, float h, float prefix, float font_size) {
    if (pozhil_make_field(id, hint, many_lines)) {
        pozhil_bare_field(id);
        EM_ASM({
            var el = document.getElementById(UTF8ToString($0));
            if ($1) {
                el.style.resize = 'none';
                el.style.paddingTop = '10px';
            }
            el.addEventListener('input', function() {
                Module.ccall('clear_input_error', null, ['string'], [el.id]);
            });
        }, id, many_lines ? 1 : 0);
    }
    pozhil_color_field(id, color, font_size);
    pozhil_move_field(id, x + 15 + prefix, y, w - 30 - prefix, many_lines ? h - 20 : h);
}

// தேடல்_பட்டை
inline void pozhil_place_search_field(const char* id, const char* hint, float x, float y, float w, float h, float font_size) {
    if (pozhil_make_field(id, hint, false)) {
        pozhil_bare_field(id);
    }
    pozhil_color_field(id, "#333", font_size);
    pozhil_move_field(id, x + 45, y, w - 80, h);
}

inline void pozhil_clear_field(const char* id) {
    EM_ASM({
        var el = document.getElementById(UTF8ToString($0));
        if (el) {
            el.value = "";
        }
    }, id);
}

// கடவுமறை: சாளரத்துக்கு வெளியே போனால் மங்கி மறையும்
inline void pozhil_place_html_input(const char* id, const char* hint, const char* background, const char* color, float x,
                                    float y, float w, float h, float win_height) {
    if (pozhil_make_field(id, hint, false)) {
        EM_ASM({
            var el = document.getElementById(UTF8ToString($0));
            el.style.zIndex = '2000';
            el.style.border = '2px solid #E0E0E0';
            el.style.borderRadius = '12px';
            el.style.padding = '0 15px';
            el.style.fontFamily = '"Noto Sans Tamil", sans-serif';
            el.style.boxSizing = 'border-box';
            el.style.transition = 'opacity 0.2s ease, border-color 0.2s ease';
            el.style.backgroundColor = UTF8ToString($1);
            el.onfocus = function() {
                el.style.borderColor = '#2196F3';
                el.style.boxShadow = '0 0 8px rgba(33,150,243,0.2)';
            };
            el.onblur = function() {
                el.style.borderColor = '#E0E0E0';
                el.style.boxShadow = 'none';
            };
        }, id, background);
    }
    pozhil_color_field(id, color, 17);
    pozhil_move_field(id, x, y, w, h);
    EM_ASM({
        var el = document.getElementById(UTF8ToString($0));
        el.style.opacity = $1 ? '0' : '1';
        el.style.pointerEvents = $1 ? 'none' : 'auto';
    }, id, (y < 0 || y + h > win_height) ? 1 : 0);
}
#endif
