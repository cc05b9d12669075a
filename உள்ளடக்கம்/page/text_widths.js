// Programs measure the same texts in each frame, most of them twice. A text is as wide as it was while fonts and screen are
// what they were.
var pozhilWidths = (() => {
    const MOST = 20000;

    /// By font, what the browser has measured: its answers by text.
    let known = new Map();
    let count = 0;
    let surroundings = '';
    /// How often fonts or screen have changed.
    let changes = 0;

    function forget() {
        known = new Map();
        count = 0;
    }

    function change() {
        changes++;
        forget();
    }

    /// What `measure()` tells of a text in a font.
    function of(font, text, measure) {
        let answers = known.get(font);
        if (answers === undefined) {
            answers = new Map();
            known.set(font, answers);
        }
        let answer = answers.get(text);
        if (answer === undefined) {
            answer = measure();
            answers.set(text, answer);
            count++;
        }
        return answer;
    }

    pozhilFrames.before(() => {
        const { size, status } = document.fonts;
        const now = `${window.devicePixelRatio} ${size} ${status}`;
        // Of fonts on their way the browser doesn't tell at once that they are there.
        if (now !== surroundings) {
            surroundings = now;
            change();
        } else if (status === 'loading' || count > MOST) {
            forget();
        }
    });
    for (const happening of ['loading', 'loadingdone', 'loadingerror']) {
        document.fonts.addEventListener(happening, change);
    }
    for (const method of ['add', 'delete', 'clear']) {
        const changeFaces = document.fonts[method];
        document.fonts[method] = function (...faces) {
            change();
            return changeFaces.apply(this, faces);
        };
    }

    return { of, changes: () => changes };
})();
