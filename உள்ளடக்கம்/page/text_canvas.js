// The canvas on which the program writes. It sets font, colour and place of each text anew, thousands of times a frame: what
// the browser knows already it isn't told again, and what lies above or below the window isn't written. All else is as if
// the browser alone did it.
var pozhilTextCanvas = (() => {
    const browser = CanvasRenderingContext2D.prototype;

    // --- what is set ---

    // Each with two of its values: whatever is set after the one or the other, and makes no difference between them, is a
    // value as well.
    const PROPERTIES = {
        font: ['1px serif', '2px serif'], fillStyle: ['#000001', '#000002'], strokeStyle: ['#000001', '#000002'],
        globalAlpha: [0, 1], lineWidth: [1, 2], globalCompositeOperation: ['copy', 'xor'],
        textAlign: ['left', 'right'], textBaseline: ['top', 'bottom'], direction: ['ltr', 'rtl'],
    };
    const NAMES = Object.keys(PROPERTIES);
    const NAMES_OF_TEXT = NAMES.filter(name => name !== 'strokeStyle' && name !== 'lineWidth');
    // Animations go through many values.
    const MOST_VALUES = 1000;

    const accessors = Object.fromEntries(NAMES.map(name => [name, Object.getOwnPropertyDescriptor(browser, name)]));
    /// By property and value, how the browser writes the value; null for what it refuses.
    const written = Object.fromEntries(NAMES.map(name => [name, new Map()]));

    let context = null;
    /// By property, the value that the program has set.
    let wanted = {};
    /// By property, the value that the browser has been told, as far as that is known.
    const told = {};
    /// What was wanted at each `save` that waits for its `restore`.
    let saved = [];

    /// Takes the canvas as it is.
    function begin() {
        for (const name of NAMES) {
            const value = accessors[name].get.call(context);
            written[name].set(value, value);
            wanted[name] = told[name] = value;
        }
        saved = [];
    }

    /// How the browser writes this value, which is new here.
    function write(name, value) {
        const { get, set } = accessors[name];
        const [one, other] = PROPERTIES[name].map(former => {
            set.call(context, former);
            set.call(context, value);
            return get.call(context);
        });
        told[name] = undefined;
        return one === other ? one : null;
    }

    function want(name, value) {
        const values = written[name];
        let text = values.get(value);
        if (text === undefined) {
            if (values.size >= MOST_VALUES) {
                values.clear();
            }
            text = write(name, value);
            values.set(value, text);
        }
        if (text !== null) {
            wanted[name] = value;
        }
    }

    function tell(name) {
        if (told[name] !== wanted[name]) {
            told[name] = wanted[name];
            accessors[name].set.call(context, wanted[name]);
        }
    }

    function askFor(name) {
        tell(name);
        return accessors[name].get.call(context);
    }

    // --- what is in the window ---

    // Marks above and below letters may reach far out of their line.
    const REACH = 6;
    const SIZE_IN_FONT = /([\d.e+-]+)px/;
    const sizes = new Map();
    /// How many pixels of the canvas are a point of the program's, and how many points the canvas is high; 0 and none where
    /// that isn't known.
    let scale = 0;
    let height = 0;

    function rescale(now) {
        scale = now > 0 ? now : 0;
        height = context.canvas.height / scale;
    }

    function sizeOf(font) {
        let size = sizes.get(font);
        if (size === undefined) {
            if (sizes.size >= MOST_VALUES) {
                sizes.clear();
            }
            size = parseFloat(SIZE_IN_FONT.exec(font)?.[1] ?? Infinity);
            sizes.set(font, size);
        }
        return size;
    }

    function isOutside(top) {
        if (scale === 0) {
            return false;
        }
        const reach = REACH * sizeOf(wanted.font);
        return top < -reach || top > height + reach;
    }

    // --- what is disabled ---

    /// How much of its strength a text keeps.
    let strength = 1;

    function fillFaded(...values) {
        accessors.globalAlpha.set.call(context, askFor('globalAlpha') * strength);
        told.globalAlpha = undefined;
        browser.fillText.call(context, ...values);
    }

    // --- what is over and under texts ---

    /// Who decides whether and how a text is written.
    let writeThrough = draw => draw();
    let lastLine = null;

    const PARTS_TO_THE_LEFT = { center: 0.5, right: 1, end: 1 };
    // Edges of letters are soft.
    const EDGE = 1;

    /// What the browser measures of a text from its upper left corner on.
    function measureFromCorner(text) {
        return pozhilWidths.of(`${wanted.font} from the corner`, text, () => {
            const { textAlign, textBaseline } = wanted;
            Object.assign(wanted, { textAlign: 'left', textBaseline: 'top' });
            NAMES.forEach(tell);
            Object.assign(wanted, { textAlign, textBaseline });
            return browser.measureText.call(context, text);
        });
    }

    /// Where a text leaves its marks.
    function areaOf(text, x, y) {
        const { width, actualBoundingBoxLeft, actualBoundingBoxRight, actualBoundingBoxAscent, actualBoundingBoxDescent }
            = measureFromCorner(text);
        const begin = x - width * (PARTS_TO_THE_LEFT[wanted.textAlign] ?? 0);
        lastLine = { left: begin, right: begin + width, top: y, bottom: y + sizeOf(wanted.font) };
        return { left: begin - actualBoundingBoxLeft - EDGE, right: begin + actualBoundingBoxRight + EDGE,
                 top: y - actualBoundingBoxAscent - EDGE, bottom: y + actualBoundingBoxDescent + EDGE };
    }

    /// From now on `write(draw, areaOf)` writes texts: `draw` writes one, `areaOf` tells where it is seen,
    /// as { left, right, top, bottom }.
    function through(write) {
        writeThrough = write;
    }

    /// What `draw` draws is cut to the area.
    function within({ left, right, top, bottom }, draw) {
        NAMES.forEach(tell);
        browser.save.call(context);
        cutTo(left, top, right - left, bottom - top);
        draw();
        browser.restore.call(context);
    }

    function cutTo(...rectangle) {
        const cut = new Path2D();
        cut.rect(...rectangle);
        browser.clip.call(context, cut);
    }

    /// Takes back what is written where the shape lies, as far as it lies between left, right, top and bottom.
    function erase({ x, y, width, height, radius, strength: part, left, right, top, bottom }) {
        const shape = new Path2D();
        shape.roundRect(x, y, width, height, Math.max(0, radius));
        browser.save.call(context);
        cutTo(left, top, right - left, bottom - top);
        accessors.globalCompositeOperation.set.call(context, 'destination-out');
        accessors.globalAlpha.set.call(context, part);
        accessors.fillStyle.set.call(context, '#000');
        browser.fill.call(context, shape);
        browser.restore.call(context);
    }

    // --- the context of the program: one that others watch, on one that remembers, on the browser's ---

    const remembering = Object.create(browser);
    const watched = Object.create(remembering);

    /// A script does here what no program does. From now on the browser alone keeps the canvas.
    function giveBack() {
        const now = wanted;
        for (wanted of saved) {
            NAMES.forEach(tell);
            browser.save.call(context);
        }
        wanted = now;
        NAMES.forEach(tell);
        Object.setPrototypeOf(watched, browser);
    }

    for (const name of NAMES) {
        Object.defineProperty(remembering, name, {
            configurable: true,
            get() {
                return written[name].get(wanted[name]) ?? askFor(name);
            },
            set(value) {
                // Gradients and patterns are objects.
                if (typeof value === 'object') {
                    giveBack();
                    this[name] = value;
                } else {
                    want(name, value);
                }
            },
        });
    }

    Object.assign(remembering, {
        save() {
            saved.push({ ...wanted });
        },
        restore() {
            wanted = saved.pop() ?? wanted;
        },
        fillText(text, left, top, ...most) {
            if (isOutside(top)) {
                lastLine = null;
            } else {
                writeThrough(() => {
                    NAMES_OF_TEXT.forEach(tell);
                    if (strength === 1) {
                        browser.fillText.call(this, text, left, top, ...most);
                    } else {
                        fillFaded(text, left, top, ...most);
                    }
                }, () => areaOf(text, left, top));
            }
        },
        measureText(text) {
            const measure = () => {
                NAMES.forEach(tell);
                return browser.measureText.call(this, text);
            };
            // More than the width depends on these.
            const isUsual = wanted.textAlign === 'start' && wanted.textBaseline === 'alphabetic';
            return isUsual ? pozhilWidths.of(wanted.font, text, measure) : measure();
        },
        setTransform(...values) {
            if (saved.length > 0) {
                giveBack();
                this.setTransform(...values);
                return;
            }
            // So each frame begins: with nothing that the canvas may have forgotten.
            NAMES.forEach(name => { told[name] = undefined; });
            rescale(values.join() === '1,0,0,1,0,0' ? 1 : 0);
            browser.setTransform.apply(this, values);
        },
        scale(x, y) {
            if (saved.length > 0) {
                giveBack();
                this.scale(x, y);
                return;
            }
            rescale(x === y ? scale * x : 0);
            browser.scale.call(this, x, y);
        },
    });
    for (const method of ['fillRect', 'fill']) {
        remembering[method] = function (...values) {
            NAMES.forEach(tell);
            browser[method].apply(this, values);
        };
    }
    // Of the lines under texts.
    remembering.stroke = function (...values) {
        const draw = () => {
            NAMES.forEach(tell);
            browser.stroke.apply(this, values);
        };
        // That of a text which isn't in the window isn't there either, so nothing can lie over it.
        if (lastLine === null) {
            draw();
        } else {
            writeThrough(draw, () => lastLine);
        }
    };

    // What neither asks what is set nor changes it.
    const FREE = ['constructor', 'canvas', 'clearRect', 'beginPath', 'moveTo', 'lineTo', 'quadraticCurveTo', 'closePath',
                  'getTransform', 'getImageData', 'getContextAttributes', 'isContextLost'];
    for (const [name, { value, get }] of Object.entries(Object.getOwnPropertyDescriptors(browser))) {
        if (Object.hasOwn(remembering, name) || FREE.includes(name)) {
            continue;
        }
        if (typeof value === 'function') {
            remembering[name] = function (...values) {
                giveBack();
                return this[name](...values);
            };
        } else if (get) {
            Object.defineProperty(remembering, name, {
                get,
                set(changed) {
                    giveBack();
                    this[name] = changed;
                },
            });
        }
    }

    /// Calls `see`, as a method of the context, with what the program calls this method with, before that is done.
    function watch(method, see) {
        const later = Object.hasOwn(watched, method) ? watched[method]
            : function (...values) { return Object.getPrototypeOf(watched)[method].apply(this, values); };
        watched[method] = function (...values) {
            see.apply(this, values);
            return later.apply(this, values);
        };
    }

    function beginAnew() {
        begin();
        rescale(1);
    }

    /// A canvas that gets a size, even its own, forgets all that was set.
    function watchSize(canvas) {
        for (const side of ['width', 'height']) {
            const { get, set } = Object.getOwnPropertyDescriptor(HTMLCanvasElement.prototype, side);
            Object.defineProperty(canvas, side, {
                configurable: true, get,
                set(pixels) {
                    set.call(canvas, pixels);
                    beginAnew();
                },
            });
        }
        canvas.addEventListener('contextrestored', beginAnew);
    }

    pozhilFrames.before(() => {
        const canvas = document.getElementById('textCanvas');
        if (!canvas || canvas === context?.canvas) {
            return;
        }
        if (context) {
            Object.setPrototypeOf(context, browser);
        }
        const { getContext } = canvas;
        context = canvas.getContext('2d');
        canvas.getContext = (kind, ...more) => (kind === '2d' ? context : getContext.call(canvas, kind, ...more));
        begin();
        watchSize(canvas);
        Object.setPrototypeOf(context, watched);
    });

    /// From now on texts are written with a part of their strength, 0 to 1.
    function fade(part) {
        strength = part;
    }

    return { watch, fade, through, within, erase };
})();
