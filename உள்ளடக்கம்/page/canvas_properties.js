// What is set on the canvas of texts, each by its name: what the program wants, and what the browser knows of that. The browser
// is told of it only when something is drawn or measured, and only what it doesn't know.
var pozhilCanvasProperties = (() => {
    // Each with two of its values: whatever is set after the one or the other, and makes no difference between them, is a
    // value as well.
    const TRIALS = {
        font: ['1px serif', '2px serif'], fillStyle: ['#000001', '#000002'], strokeStyle: ['#000001', '#000002'],
        globalAlpha: [0, 1], lineWidth: [1, 2], globalCompositeOperation: ['copy', 'xor'],
        textAlign: ['left', 'right'], textBaseline: ['top', 'bottom'], direction: ['ltr', 'rtl'],
    };
    // Animations go through many values.
    const MOST_VALUES = 1000;

    class Property {
        #context = null;
        /// What the program has set.
        wanted;
        /// What the browser has been told, as far as that is known.
        told;
        #accessor;
        #trials;
        /// By value, how the browser writes it; null for what it refuses.
        #written = new Map();
        // Texts are set one after the other, most of them alike, and each sets values that were made anew: to compare one
        // with the last one is faster than to look it up.
        #last = null;
        #lastWritten = null;

        constructor(name) {
            this.#accessor = Object.getOwnPropertyDescriptor(CanvasRenderingContext2D.prototype, name);
            this.#trials = TRIALS[name];
        }

        /// Takes it as it is set on a canvas, which the others set from now on.
        begin(context) {
            this.#context = context;
            const value = this.#accessor.get.call(context);
            this.#written.set(value, value);
            this.wanted = this.told = value;
        }

        /// Sets it at once; what the program wants stays.
        put(value) {
            this.#accessor.set.call(this.#context, value);
            this.told = undefined;
        }

        tell() {
            if (this.told !== this.wanted) {
                this.#accessor.set.call(this.#context, this.wanted);
                this.told = this.wanted;
            }
        }

        read() {
            this.tell();
            return this.#accessor.get.call(this.#context);
        }

        want(value) {
            if (value !== this.#last) {
                this.#lastWritten = this.#writtenFor(value);
                this.#last = value;
            }
            if (this.#lastWritten !== null) {
                this.wanted = this.#last;
            }
        }

        /// As the browser would tell it.
        get written() {
            return this.#written.get(this.wanted) ?? this.read();
        }

        #writtenFor(value) {
            let text = this.#written.get(value);
            if (text === undefined) {
                if (this.#written.size >= MOST_VALUES) {
                    this.#written.clear();
                }
                text = this.#try(value);
                this.#written.set(value, text);
            }
            return text;
        }

        #try(value) {
            const [one, other] = this.#trials.map(former => {
                this.put(former);
                this.put(value);
                return this.#accessor.get.call(this.#context);
            });
            return one === other ? one : null;
        }
    }

    return Object.fromEntries(Object.keys(TRIALS).map(name => [name, new Property(name)]));
})();
