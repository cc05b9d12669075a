// Checks what stands in the editor, a moment after each pause, one check at a time.

/// How long a pause is, in milliseconds.
const PAUSE = 150;

const FAILURES = {
    slow: ['சரிபார்க்க நெடுநேரம் ஆகிறது; நிரலைச் சுருக்கவும்.', 'The check takes too long; make the program shorter.'],
    deep: ['நிரல் இந்தப் பக்கத்துக்கு மிக ஆழமாக அடுக்கப்பட்டுள்ளது; அடுக்குகளைக் குறைக்கவும்.',
           'The program nests too deeply for this page; use fewer levels.'],
    died: ['சரிபார்ப்பி நின்றுவிட்டது; நிரலை மாற்றினால் மீண்டும் தொடங்கும்.',
           'The check broke down; it starts again with the next change.'],
    missing: ['சரிபார்ப்பியை ஏற்ற முடியவில்லை; எழுதலாம், சேமிக்கலாம்.',
              'The check could not be loaded; writing and saving work.'],
};

export class Checking {
    #compiler;
    #editor;
    #findings;
    #timer = 0;
    #isBusy = false;
    #isStale = false;

    constructor({ compiler, editor, findings }) {
        this.#compiler = compiler;
        this.#editor = editor;
        this.#findings = findings;
    }

    /// The text is another one now.
    textChanged() {
        this.#findings.outdate();
        clearTimeout(this.#timer);
        this.#timer = setTimeout(() => this.check(), PAUSE);
    }

    /// Checks at once, or as soon as the check under way is done.
    async check() {
        if (this.#isBusy) {
            this.#isStale = true;
            return;
        }
        this.#isBusy = true;
        const text = this.#editor.text;
        try {
            const verdict = await this.#compiler.ask('check', text);
            // Places in another text would be wrong ones; that has its own check.
            if (this.#editor.text === text) {
                this.#findings.show(verdict);
            }
        } catch (failure) {
            this.#findings.showNone(...(FAILURES[failure.kind] ?? FAILURES.died));
        } finally {
            this.#isBusy = false;
        }
        if (this.#isStale) {
            this.#isStale = false;
            this.check();
        }
    }
}
