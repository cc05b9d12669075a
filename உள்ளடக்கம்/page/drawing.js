// What a frame draws, as far as the rest of the page wants to know.
var pozhilDrawing = (() => {
    // Of this frame and of the one before, in turn: a text, its left and its top.
    let texts = [];
    let formerTexts = [];
    /// All that this frame draws as one number, while somebody wants to know.
    let sum = 0;
    let isSumming = false;
    let hasShapes = false;

    const number = new Float64Array(1);
    const partsOfNumber = new Int32Array(number.buffer);

    function add(part) {
        sum = Math.imul(sum ^ part, 0x01000193) + 1 | 0;
    }

    function addNumber(value) {
        number[0] = value;
        partsOfNumber.forEach(add);
    }

    function addText(text) {
        for (let index = 0; index < text.length; index++) {
            add(text.charCodeAt(index));
        }
    }

    function addBytes(data, begin = 0, count = data.length) {
        const size = data.BYTES_PER_ELEMENT;
        const whole = new Int32Array(data.buffer, data.byteOffset + begin * size, count * size >> 2);
        for (let index = 0; index < whole.length; index++) {
            add(whole[index]);
        }
    }

    function watchTexts(context) {
        const { fillText } = context;
        context.fillText = function (text, left, top, ...more) {
            texts.push(text, left, top);
            if (isSumming) {
                addText(text + this.font + this.fillStyle + this.textAlign);
                [left, top, this.globalAlpha].forEach(addNumber);
            }
            return fillText.call(this, text, left, top, ...more);
        };
    }

    /// Shapes come as corners and paints.
    function watchShapes(context) {
        const { bufferData, uniform4fv } = context;
        context.bufferData = function (target, data, usage, ...part) {
            hasShapes = true;
            if (isSumming && ArrayBuffer.isView(data)) {
                addBytes(data, ...part);
            }
            return bufferData.call(this, target, data, usage, ...part);
        };
        context.uniform4fv = function (place, data, ...part) {
            if (isSumming) {
                addBytes(data, ...part);
            }
            return uniform4fv.call(this, place, data, ...part);
        };
    }

    let watched = null;
    pozhilFrames.before(() => {
        const canvas = document.getElementById('textCanvas');
        if (canvas && canvas !== watched) {
            watched = canvas;
            watchTexts(canvas.getContext('2d'));
            watchShapes(Module.ctx);
        }
        [formerTexts, texts] = [texts, []];
        sum = 0;
        hasShapes = false;
    });

    /// How far the first text that has moved since the frame before has moved, across or down; 0 if none has.
    function shift(axis) {
        const place = axis === 'x' ? 1 : 2;
        for (let index = 0; index < Math.min(texts.length, formerTexts.length); index += 3) {
            if (texts[index] === formerTexts[index] && texts[index + place] !== formerTexts[index + place]) {
                return texts[index + place] - formerTexts[index + place];
            }
        }
        return 0;
    }

    return {
        shift,
        /// Whether this frame has drawn nothing at all, not even a background.
        isBlank: () => !hasShapes && texts.length === 0,
        sum: () => sum,
        watchSum: isWanted => { isSumming = isWanted; },
    };
})();
