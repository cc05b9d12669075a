// The compiler in a worker: questions go in, answers come out one by one, and the page never waits for it.

/// How long an answer may take, in milliseconds.
const PATIENCE = 10_000;

/// Why there is no answer: the worker took too long ("slow"), can't follow a text that nests so deeply ("deep"), broke down
/// otherwise ("died"), or can't be had at all ("missing").
export class CompilerFailure extends Error {
    constructor(kind, cause) {
        super(kind, { cause });
        this.kind = kind;
    }
}

export class Compiler {
    #parts;
    #makeWorker;
    #worker = null;
    #waiting = [];
    #asked = null;

    /// `parts` promises what a worker is made of: its script as text, the compiled module, and the language's own modules.
    constructor(parts) {
        this.#parts = parts;
        this.#makeWorker = async () => {
            const { script, module, modules } = await this.#parts;
            // From memory, so that it can be started again without a network.
            const address = URL.createObjectURL(new Blob([script], { type: 'text/javascript' }));
            const worker = new Worker(address);
            URL.revokeObjectURL(address);
            worker.onmessage = ({ data }) => this.#answer(worker, data);
            worker.onerror = event => this.#fail(worker, 'died', event.message);
            worker.postMessage({ module, modules });
            return worker;
        };
    }

    /// Asks for `what` ("check", "format", "explain") of a text, and promises the answer.
    /// Fails with a CompilerFailure, after which the next question goes to a new worker.
    ask(what, text) {
        return new Promise((resolve, reject) => {
            this.#waiting.push({ what, text, resolve, reject });
            this.#askNext();
        });
    }

    async #askNext() {
        if (this.#asked !== null || this.#waiting.length === 0) {
            return;
        }
        const question = this.#waiting.shift();
        this.#asked = question;
        try {
            this.#worker ??= await this.#makeWorker();
        } catch (error) {
            this.#finish(() => question.reject(new CompilerFailure('missing', error)));
            return;
        }
        const worker = this.#worker;
        question.alarm = setTimeout(() => this.#fail(worker, 'slow'), PATIENCE);
        worker.postMessage({ what: question.what, text: question.text });
    }

    #answer(worker, { answer, failure, kind }) {
        if (worker !== this.#worker || this.#asked === null) {
            return;
        }
        if (failure !== undefined) {
            this.#fail(worker, kind, failure);
            return;
        }
        const question = this.#asked;
        this.#finish(() => question.resolve(answer));
    }

    /// Whatever the worker was doing, its memory can't be trusted any more.
    #fail(worker, kind, cause) {
        if (worker !== this.#worker) {
            return;
        }
        worker.terminate();
        this.#worker = null;
        const question = this.#asked;
        if (question !== null) {
            this.#finish(() => question.reject(new CompilerFailure(kind, cause)));
        }
    }

    #finish(settle) {
        clearTimeout(this.#asked.alarm);
        this.#asked = null;
        settle();
        this.#askNext();
    }
}
