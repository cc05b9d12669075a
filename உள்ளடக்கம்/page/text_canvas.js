// The canvas on which the program writes. It sets font, colour and place of each text anew, thousands of times a frame: what
// the browser knows already it isn't told again, and what lies above or below the window isn't written. All else is as if
// the browser alone did it.
var pozhilTextCanvas = (() => {
    const browser = CanvasRenderingContext2D.prototype;

    // --- what is set ---

    let context = null;

    const { strokeStyle, lineWidth, font, fillStyle, textAlign, textBaseline, globalAlpha, globalCompositeOperation }
        = pozhilCanvasProperties;
    const ALL = Object.values(pozhilCanvasProperties);
    const OF_TEXTS = ALL.filter(property => property !== strokeStyle && property !== lineWidth);

    function tell(some) {
        for (const property of some) {
            property.tell();
        }
    }

    /// What was wanted at each `save`; of those that have been restored, the lists are kept for the next ones.
    const saved = [];
    let depth = 0;

    function save() {
        const values = saved[depth] ??= [];
        for (let index = 0; index < ALL.length; index++) {
            values[index] = ALL[index].wanted;
        }
        depth++;
    }

    function goBackTo(values) {
        for (let index = 0; index < ALL.length; index++) {
            ALL[index].wanted = values[index];
        }
    }

    /// Takes the canvas as it is.
    function begin() {
        ALL.forEach(property => property.begin(context));
        depth = 0;
    }

    // --- what is in the window ---

    // Marks above and below letters may reach far out of their line.
    const REACH = 6;
    const SIZE_IN_FONT = /([\d.e+-]+)px/;
    const MOST_SIZES = 1000;
    const sizes = new Map();
    /// How many pixels of the canvas are a point of the program's, and how many points the canvas is high; 0 and none where
    /// that isn't known.
    let scale = 0;
    let height = 0;

    function rescale(now) {
        scale = now > 0 ? now : 0;
        height = context.canvas.height / scale;
    }

    function sizeOf(name) {
        let size = sizes.get(name);
        if (size === undefined) {
            if (sizes.size >= MOST_SIZES) {
                sizes.clear();
            }
            size = parseFloat(SIZE_IN_FONT.exec(name)?.[1] ?? Infinity);
            sizes.set(name, size);
        }
        return size;
    }

    function isOutside(top) {
        if (scale === 0) {
            return false;
        }
        const reach = REACH * sizeOf(font.wanted);
        return top < -reach || top > height + reach;
    }

    // --- what is disabled ---

    /// How much of its strength a text keeps.
    let strength = 1;

    function fillFaded(...values) {
        globalAlpha.put(globalAlpha.read() * strength);
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
        return pozhilWidths.of(`${font.wanted} from the corner`, text, () => {
            tell(ALL);
            textAlign.put('left');
            textBaseline.put('top');
            return browser.measureText.call(context, text);
        });
    }

    /// Where a text leaves its marks.
    function areaOf(text, x, y) {
        const { width, actualBoundingBoxLeft, actualBoundingBoxRight, actualBoundingBoxAscent, actualBoundingBoxDescent }
            = measureFromCorner(text);
        const begin = x - width * (PARTS_TO_THE_LEFT[textAlign.wanted] ?? 0);
        lastLine = { left: begin, right: begin + width, top: y, bottom: y + sizeOf(font.wanted) };
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
        tell(ALL);
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
        globalCompositeOperation.put('destination-out');
        globalAlpha.put(part);
        fillStyle.put('#000');
        browser.fill.call(context, shape);
        browser.restore.call(context);
    }

    // --- the context of the program: one that others watch, on one that remembers, on the browser's ---

    const remembering = Object.create(browser);
    const watched = Object.create(remembering);

    /// A script does here what no program does. From now on the browser alone keeps the canvas.
    function giveBack() {
        const now = ALL.map(({ wanted }) => wanted);
        for (const values of saved.slice(0, depth)) {
            goBackTo(values);
            tell(ALL);
            browser.save.call(context);
        }
        goBackTo(now);
        tell(ALL);
        Object.setPrototypeOf(watched, browser);
    }

    for (const [name, property] of Object.entries(pozhilCanvasProperties)) {
        Object.defineProperty(remembering, name, {
            configurable: true,
            get() {
                return property.written;
            },
            set(value) {
                // Gradients and patterns are objects.
                if (typeof value === 'object') {
                    giveBack();
                    this[name] = value;
                } else {
                    property.want(value);
                }
            },
        });
    }

    Object.assign(remembering, {
        save,
        restore() {
            if (depth > 0) {
                depth--;
                goBackTo(saved[depth]);
            }
        },
        fillText(text, left, top, ...most) {
            if (isOutside(top)) {
                lastLine = null;
            } else {
                writeThrough(() => {
                    tell(OF_TEXTS);
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
                tell(ALL);
                return browser.measureText.call(this, text);
            };
            // More than the width depends on these.
            const isUsual = textAlign.wanted === 'start' && textBaseline.wanted === 'alphabetic';
            return isUsual ? pozhilWidths.of(font.wanted, text, measure) : measure();
        },
        setTransform(...values) {
            if (depth > 0) {
                giveBack();
                this.setTransform(...values);
                return;
            }
            // So each frame begins: with nothing that the canvas may have forgotten.
            ALL.forEach(property => { property.told = undefined; });
            rescale(values.join() === '1,0,0,1,0,0' ? 1 : 0);
            browser.setTransform.apply(this, values);
        },
        scale(x, y) {
            if (depth > 0) {
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
            tell(ALL);
            browser[method].apply(this, values);
        };
    }
    // Of the lines under texts.
    remembering.stroke = function (...values) {
        const draw = () => {
            tell(ALL);
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
