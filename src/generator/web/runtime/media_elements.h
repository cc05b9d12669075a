#pragma once

/// Moving pictures, which the drawing library can't play: elements of the browser that the frame places. The native
/// compiler skips it all.

#include "web_bridge.h"

// clang-format off
// --- emitted from here ---

#ifdef __EMSCRIPTEN__
// அசையும் படம்: சுட்டி அதன்மேல் வரும்போது தொடக்கத்திலிருந்து ஓடும்
inline void pozhil_place_gif(const char* id, const char* path, float x, float y, float w, float h, float radius, bool is_hover) {
    EM_ASM({
        var id = UTF8ToString($0);
        var path = UTF8ToString($1);
        var el = document.getElementById(id);
        if (!el) {
            el = document.createElement('img');
            el.id = id;
            el.className = 'pozhil-input';
            el.style.position = 'absolute';
            el.style.pointerEvents = 'none';
            el.style.objectFit = 'cover';
            el.style.zIndex = '1500';
            el.dataset.isHoveredState = 'false';
            el.dataset.rawSrc = path;
            try {
                if (FS.analyzePath(path).exists) {
                    el.pozhilData = new Blob([FS.readFile(path)], ({ type: 'image/gif' }));
                    el.dataset.rawSrc = URL.createObjectURL(el.pozhilData);
                }
            } catch (e) {
                console.warn('FS image check failed, using URL:', e);
            }
            el.onload = function() {
                el.style.visibility = 'visible';
            };
            el.onerror = function() {
                el.style.visibility = 'hidden';
            };
            el.src = el.dataset.rawSrc;
            document.body.appendChild(el);
        }
        var state = $7 ? 'true' : 'false';
        if (el.dataset.isHoveredState !== state) {
            el.dataset.isHoveredState = state;
            if (el.pozhilFreshSrc) {
                URL.revokeObjectURL(el.pozhilFreshSrc);
                el.pozhilFreshSrc = "";
            }
            if (!$7) {
                el.src = el.dataset.rawSrc;
            } else if (el.pozhilData) {
                // நினைவில் உள்ள தரவின் முகவரி கேள்விக்குறியை ஏற்காது; புது முகவரியே படத்தை மீண்டும் தொடங்கும்
                el.pozhilFreshSrc = URL.createObjectURL(el.pozhilData);
                el.src = el.pozhilFreshSrc;
            } else {
                el.src = el.dataset.rawSrc + '?t=' + new Date().getTime();
            }
        }
        var rect = document.getElementById('canvas').getBoundingClientRect();
        el.style.display = 'block';
        el.style.left = (rect.left + window.scrollX + $2) + 'px';
        el.style.top = (rect.top + window.scrollY + $3) + 'px';
        el.style.width = $4 + 'px';
        el.style.height = $5 + 'px';
        el.style.borderRadius = $6 + 'px';
        el.dataset.touched = '1';
    }, id, path, x, y, w, h, radius, is_hover ? 1 : 0);
}
#endif
