#pragma once

/// Headers of the web build, and the text canvas that lies over the drawing canvas: the drawing library can't shape
/// Tamil, so all text is drawn by the browser. The native compiler skips it all.

#include "page_headers.h"

// clang-format off
// --- emitted from here ---

#ifdef __EMSCRIPTEN__
#include <emscripten.h>
#include <emscripten/html5.h>
#include <emscripten/val.h>
#include <emscripten/bind.h>
#include <cstring>
#include "nanovg.h"
#define NANOSVG_IMPLEMENTATION
#include "nanosvg.h"
#define NANOSVGRAST_IMPLEMENTATION
#include "nanosvgrast.h"

// SVG படத்தை w, h அளவுக்குள் வரையும்; படிக்க முடியாவிட்டால் -1
inline int loadSVGImage(NVGcontext* vg, const char* filename, float w, float h) {
    NSVGimage* image = nsvgParseFromFile(filename, "px", 96.0f);
    if (!image) {
        return -1;
    }
    const int w_int = (int)w;
    const int h_int = (int)h;
    NSVGrasterizer* rasterizer = nsvgCreateRasterizer();
    if (!rasterizer || w_int <= 0 || h_int <= 0 || image->width <= 0.0f || image->height <= 0.0f) {
        nsvgDeleteRasterizer(rasterizer);
        nsvgDelete(image);
        return -1;
    }
    std::vector<unsigned char> imgData((std::size_t)w_int * (std::size_t)h_int * 4);
    const float scale = std::min(w / image->width, h / image->height);
    nsvgRasterize(rasterizer, image, 0, 0, scale, imgData.data(), w_int, h_int, w_int * 4);
    const int handle = nvgCreateImageRGBA(vg, w_int, h_int, 0, imgData.data());
    nsvgDeleteRasterizer(rasterizer);
    nsvgDelete(image);
    return handle;
}

// உரைத் திரையை வரைபலகையின் அளவுக்குச் சரிசெய்து வெறுமையாக்கும்
inline void setupAndClearTextLayer() {
    EM_ASM({
        var textCanvas = document.getElementById('textCanvas');
        var canvas = document.getElementById('canvas');
        if (!textCanvas) {
            textCanvas = document.createElement('canvas');
            textCanvas.id = 'textCanvas';
            textCanvas.style.position = 'absolute';
            textCanvas.style.top = '0px';
            textCanvas.style.left = '0px';
            textCanvas.style.pointerEvents = 'none';
            textCanvas.style.zIndex = "1000";
            document.body.appendChild(textCanvas);
        }
        var dpr = window.devicePixelRatio || 1;
        if (canvas) {
            var rect = canvas.getBoundingClientRect();
            var width = Math.floor(rect.width * dpr);
            var height = Math.floor(rect.height * dpr);
            if (textCanvas.width !== width || textCanvas.height !== height) {
                textCanvas.style.width = rect.width + 'px';
                textCanvas.style.height = rect.height + 'px';
                textCanvas.width = width;
                textCanvas.height = height;
            }
        }
        var ctx = textCanvas.getContext('2d');
        ctx.setTransform(1, 0, 0, 1, 0, 0);
        ctx.clearRect(0, 0, textCanvas.width, textCanvas.height);
        ctx.scale(dpr, dpr);
    });
}

// உரையை அதன் மேல்விளிம்பு y-இல் நிற்குமாறு எழுதும்
inline void drawFixedText(float x, float y, const char* text, const char* color, float fontSize, const char* align,
                          const char* fontWeight = "400", bool isUnderline = false, const char* fontPath = "",
                          float alpha = 1.0f, float offsetY = 0.0f) {
    EM_ASM({
        var canvas = document.getElementById('textCanvas');
        if (!canvas) {
            return;
        }
        var x = $0;
        var y = $1 + $10;
        var text = UTF8ToString($2);
        var color = UTF8ToString($3);
        var fontSize = $4;
        var align = UTF8ToString($5);
        var weight = UTF8ToString($6);
        var fontPath = UTF8ToString($8);
        var fontFamily = "Noto Sans Tamil";
        var ctx = canvas.getContext('2d');
        ctx.save();
        ctx.globalAlpha = $9;
        if (fontPath) {
            var fontName = 'Font_' + fontPath.replace(/[^a-zA-Z0-9]/g, "");
            fontFamily = fontName;
            window.pozhilFonts = window.pozhilFonts || ({});
            if (!window.pozhilFonts[fontName]) {
                window.pozhilFonts[fontName] = true;
                var fontUrl = fontPath;
                try {
                    if (FS.analyzePath(fontPath).exists) {
                        fontUrl = URL.createObjectURL(new Blob([FS.readFile(fontPath)]));
                    }
                } catch (e) {
                    console.warn('FS Font check failed, using URL:', e);
                }
                new FontFace(fontName, 'url(' + fontUrl + ')').load().then(function(face) {
                    document.fonts.add(face);
                }).catch(function(e) {
                    console.error('Font load error:', e);
                });
            }
        }
        ctx.font = weight + ' ' + fontSize + 'px "' + fontFamily + '", "Noto Sans Tamil", Arial, sans-serif';
        ctx.fillStyle = color;
        ctx.textAlign = align;
        ctx.textBaseline = 'top';
        ctx.direction = 'ltr';
        ctx.fillText(text, x, y);
        if ($7) {
            var width = ctx.measureText(text).width;
            var lineX = x;
            if (align === 'center') {
                lineX -= width / 2;
            } else if (align === 'right') {
                lineX -= width;
            }
            ctx.beginPath();
            ctx.strokeStyle = color;
            ctx.lineWidth = 2;
            ctx.moveTo(lineX, y + 5);
            ctx.lineTo(lineX + width, y + 5);
            ctx.stroke();
        }
        ctx.restore();
    }, x, y, text, color, fontSize, align, fontWeight, isUnderline, fontPath, alpha, offsetY);
}

inline void drawFixedText(float x, float y, const std::string& text, const char* color, float fontSize,
                          const char* align) {
    drawFixedText(x, y, text.c_str(), color, fontSize, align);
}

// உரையை ஒரு நொடியின் பத்திலொரு பங்கு நேரம் பக்கத்தில் காட்டும்
inline void drawWebText(float x, float y, const char* text, const char* color, float size, const char* align) {
    EM_ASM({
        var div = document.createElement('div');
        div.textContent = UTF8ToString($2);
        div.style.position = 'absolute';
        div.style.left = $0 + 'px';
        div.style.top = $1 + 'px';
        div.style.color = UTF8ToString($3);
        div.style.fontSize = $4 + 'px';
        div.style.fontFamily = 'Arial, sans-serif';
        div.style.pointerEvents = 'none';
        div.style.whiteSpace = 'nowrap';
        if (UTF8ToString($5) === 'center') {
            div.style.transform = 'translate(-50%, -50%)';
        }
        document.body.appendChild(div);
        setTimeout(function() { div.remove(); }, 100);
    }, x, y, text, color, size, align);
}

// உரையின் அகலம்: உலாவியே அளக்கும்
inline float getTextWidth(const char* text, float fontSize) {
    return (float)EM_ASM_DOUBLE({
        var canvas = document.getElementById('textCanvas');
        if (!canvas) {
            return 0;
        }
        var ctx = canvas.getContext('2d');
        ctx.font = 'normal ' + $1 + 'px "Noto Sans Tamil", Arial, sans-serif';
        return ctx.measureText(UTF8ToString($0)).width;
    }, text, fontSize);
}

// எழுத்துரு எதுவும் அமைக்கப்படாத புதிய வரைபலகையில் உரையின் அகலம்
inline float pozhil_plain_text_width(const char* text) {
    return (float)EM_ASM_DOUBLE({
        window.pozhilPlainContext = window.pozhilPlainContext || document.createElement('canvas').getContext('2d');
        return window.pozhilPlainContext.measureText(UTF8ToString($0)).width;
    }, text);
}

// தடிமனையும் சேர்த்து அளந்த அகலம்
inline float pozhil_text_width(const char* text, float fontSize, const char* fontWeight) {
    return (float)EM_ASM_DOUBLE({
        var canvas = document.getElementById('textCanvas');
        if (!canvas) {
            return 0;
        }
        var ctx = canvas.getContext('2d');
        ctx.font = UTF8ToString($2) + ' ' + $1 + 'px "Noto Sans Tamil", Arial, sans-serif';
        return ctx.measureText(UTF8ToString($0)).width;
    }, text, fontSize, fontWeight);
}

// பக்கம் முழுவதையும் மங்கச்செய்து, உரையாடல் பெட்டி நிற்குமிடத்தை மட்டும் திறந்துவிடும்
inline void pozhil_dim_page(float x, float y, float w, float h, float radius) {
    EM_ASM({
        var canvas = document.getElementById('textCanvas');
        if (!canvas) {
            return;
        }
        var x = $0;
        var y = $1;
        var right = x + $2;
        var bottom = y + $3;
        var r = Math.min($4, $2 / 2, $3 / 2);
        var ctx = canvas.getContext('2d');
        ctx.save();
        ctx.fillStyle = 'rgba(0,0,0,0.63)';
        ctx.fillRect(-100, -100, window.innerWidth + 200, window.innerHeight + 200);
        ctx.globalCompositeOperation = 'destination-out';
        ctx.fillStyle = 'rgba(0,0,0,1)';
        ctx.beginPath();
        ctx.moveTo(x + r, y);
        ctx.lineTo(right - r, y);
        ctx.quadraticCurveTo(right, y, right, y + r);
        ctx.lineTo(right, bottom - r);
        ctx.quadraticCurveTo(right, bottom, right - r, bottom);
        ctx.lineTo(x + r, bottom);
        ctx.quadraticCurveTo(x, bottom, x, bottom - r);
        ctx.lineTo(x, y + r);
        ctx.quadraticCurveTo(x, y, x + r, y);
        ctx.closePath();
        ctx.fill();
        ctx.restore();
    }, x, y, w, h, radius);
}

inline void copyToClipboard(const char* text) {
    EM_ASM({
        var text = UTF8ToString($0);
        navigator.clipboard.writeText(text).then(function() {
            console.log('Copied to clipboard: ', text);
        }).catch(function(err) {
            console.error('Could not copy text: ', err);
        });
    }, text);
}

inline void setupClipboardListener() {
    EM_ASM({
        document.addEventListener('paste', function(e) {
            e.preventDefault();
            var text = (e.clipboardData || window.clipboardData).getData('text');
            Module.ccall('on_paste_text', null, ['string'], [text]);
        });
    });
}
#endif
