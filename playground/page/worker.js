// Answers questions about programs, away from the page: the first message brings what it takes, each other one a question.

import createCompiler from 'pozhil-compiler';

let compiler = null;

function start({ module, modules }) {
    return new Promise((resolve, reject) => {
        createCompiler({
            locateFile: name => name,
            instantiateWasm: (imports, receive) => {
                WebAssembly.instantiate(module, imports).then(instance => receive(instance, module), reject);
                return {};
            },
        }).then(({ Playground }) => {
            const playground = new Playground();
            for (const { path, text } of modules) {
                playground.addModule(path, text);
            }
            resolve({
                check: text => ({ edition: Playground.editionOf(text), ...JSON.parse(playground.check(text)) }),
                format: text => JSON.parse(playground.format(text)),
                explain: text => JSON.parse(Playground.explain(text)),
            });
        }, reject);
    });
}

async function answer({ what, text }) {
    try {
        const playground = await compiler;
        self.postMessage({ answer: playground[what](text) });
    } catch (error) {
        // Browsers say that calls nest too deeply by errors of these kinds; the parsers' own limits lie beyond.
        const isDeep = error instanceof RangeError || error?.name === 'InternalError';
        self.postMessage({ failure: String(error), kind: isDeep ? 'deep' : 'died' });
    }
}

self.onmessage = ({ data }) => {
    if (compiler === null) {
        compiler = start(data);
        compiler.catch(() => {}); // told to whoever asks
    } else {
        answer(data);
    }
};
