// What a frame draws, as far as the rest of the page wants to know.
var pozhilDrawing = (() => {
    // Of this frame and of the one before, in turn: a text, its left and its top.
    let texts = [];
    let formerTexts = [];
    /// All that this frame draws as one number, while somebody wants to know.
    let sum = 0;
    let isSumming = false;
    let hasShapes = false;
    /// What this frame draws that isn't a shape, while somebody wants to know: { kind, shapes, ... } with the number of
    /// shapes drawn before it.
    let notes = [];
    let isNoting = false;

    /// The text whose lines are being written; null for a text of one line.
    let lines = null;

    const number = new Float64Array(1);
    const partsOfNumber = new Int32Array(number.buffer);

    const SIZE_IN_FONT = /([\d.e+-]+)px/;

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

    // --- shapes, as the drawing library notes them down: a count and a place, of six numbers each ---

    const KINDS = ['rect', 'round', 'circle', 'line', 'measure', 'picture'];
    const NUMBERS = 6;
    let shapesAt = 0;
    pozhilFrames.whenReady(() => { shapesAt = Module._pozhil_drawn_shapes() >> 2; });
    const shapeCount = () => HEAP32[shapesAt];

    /// The numbers of this frame's shapes. They hold until the next frame.
    function shapes() {
        const begin = HEAP32[shapesAt + 1] >> 2;
        return HEAPF32.subarray(begin, begin + NUMBERS * shapeCount());
    }

    function noteThat(kind, details) {
        if (isNoting) {
            notes.push({ kind, shapes: shapeCount(), ...details });
        }
    }

    // --- what is disabled ---

    // No widget is there.
    const FAR_AWAY = -9999;
    const FADED = 0.5;
    let isDisabled = false;

    /// What is drawn until this is taken back doesn't know where the pointer is, and shows that.
    function disable(isNow) {
        isDisabled = isNow;
        pozhilTextCanvas.fade(isNow ? FADED : 1);
        noteThat(isNow ? 'disabled' : 'enabled');
        if (isSumming) {
            add(isNow ? 1 : 2);
        }
    }

    /// All that this frame has drawn, in order: shapes as { kind, x, y, width, height, radius }, texts and notes, each with
    /// whether it is disabled.
    function marks() {
        const numbers = shapes();
        const all = [];
        let next = 0;
        let disabled = false;
        const addShapesTo = end => {
            for (; next < end; next++) {
                const [kind, x, y, width, height, radius] = numbers.subarray(NUMBERS * next, NUMBERS * (next + 1));
                all.push({ kind: KINDS[kind], x, y, width, height, radius, disabled });
            }
        };
        for (const note of notes) {
            addShapesTo(note.shapes);
            if (note.kind === 'disabled' || note.kind === 'enabled') {
                disabled = note.kind === 'disabled';
            } else {
                all.push({ ...note, disabled });
            }
        }
        addShapesTo(numbers.length / NUMBERS);
        return all;
    }

    // --- texts of several lines ---

    /// What is written until `endLines` are the lines of one text.
    ///
    /// \param key another for each text and each way it is broken into lines
    /// \param at where the program holds the text, for whoever wants to know all of it
    function beginLines(key, x, y, width, lineHeight, align, at) {
        lines = { key, x, y, width, lineHeight, lineAlign: align, isNoted: false, read: () => UTF8ToString(at) };
    }

    function endLines() {
        lines = null;
    }

    /// A text stands for all its lines.
    function noteText(details) {
        if (lines === null) {
            noteThat('text', details);
        } else if (!lines.isNoted) {
            lines.isNoted = true;
            const { x, y, width, lineHeight, lineAlign } = lines;
            noteThat('text', { ...details, text: lines.read(), x, y, width, lineHeight, lineAlign, align: 'left' });
        }
    }

    // --- texts and paints ---

    // A dialog dims the page; a message clears its place of texts.
    pozhilTextCanvas.watch('fillRect', () => noteThat('dim'));
    pozhilTextCanvas.watch('clearRect', (left, top) => {
        if (left !== 0 || top !== 0) {
            noteThat('message');
        }
    });
    pozhilTextCanvas.watch('fillText', function (text, left, top) {
        texts.push(lines === null ? text : `${lines.key} ${text}`, left, top);
        if (isNoting) {
            const { font, textAlign: align, fillStyle: colour } = this;
            noteText({ text, x: left, y: top, font, size: parseFloat(font.match(SIZE_IN_FONT)[1]), align, colour });
        }
        if (isSumming) {
            addText(text + this.font + this.fillStyle + this.textAlign);
            [left, top, this.globalAlpha].forEach(addNumber);
        }
    });

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

    /// Widgets that can be pressed ask where the pointer is.
    function watchPointer() {
        let { mouseX } = window;
        Object.defineProperty(window, 'mouseX', {
            configurable: true,
            get() {
                // Before the first shape, the background, the frame itself asks.
                if (isNoting && shapeCount() > 0) {
                    noteThat('ask');
                }
                return isDisabled ? FAR_AWAY : mouseX;
            },
            set(x) { mouseX = x; },
        });
    }

    let watched = null;
    pozhilFrames.before(() => {
        if (watched !== Module.ctx) {
            watched = Module.ctx;
            watchShapes(watched);
        }
        [formerTexts, texts] = [texts, []];
        sum = 0;
        notes = [];
        HEAP32[shapesAt] = 0;
        hasShapes = false;
        isDisabled = false;
        // A fault may have come between.
        lines = null;
        pozhilTextCanvas.fade(1);
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

    pozhilFrames.whenReady(watchPointer);

    return {
        shift, shapes, marks, disable, beginLines, endLines,
        texts: () => texts,
        /// Whether the next frame is to be kept for `marks`, which costs time.
        watchMarks: isWanted => { isNoting = isWanted; },
        /// Whether this frame has drawn nothing at all, not even a background.
        isBlank: () => !hasShapes && texts.length === 0,
        sum: () => sum,
        watchSum: isWanted => { isSumming = isWanted; },
    };
})();
