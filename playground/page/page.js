// The playground: an editor, the compiler's front end in a worker, and what passes between them.

import { Checking } from './checking.js';
import { Compiler } from './compiler.js';
import { Editor } from './editor.js';
import { byId, element } from './elements.js';
import { showExplanation } from './explanation.js';
import { Findings } from './findings.js';
import { loadLanguage } from './grammar.js';
import { keep, kept } from './keeping.js';
import { forgetUndo, prepareNote, tellNote } from './note.js';
import { addressOf, programOf } from './sharing.js';

const FILE_NAME = 'நிரல்.பொழில்';

async function load(name) {
    const response = await fetch(name);
    if (!response.ok) {
        throw new Error(`${name}: ${response.status}`);
    }
    return response;
}

const loadText = async name => (await load(name)).text();
const loadJson = async name => (await load(name)).json();
const loadBytes = async name => (await load(name)).arrayBuffer();

async function loadCompiler() {
    const [script, bytes, modules] = await Promise.all([
        loadText('worker.js'), loadBytes('compiler.wasm'), loadJson('modules.json'),
    ]);
    return { script, module: await WebAssembly.compile(bytes), modules };
}

class Page {
    #compiler;
    #editor;
    #checking;
    #samples;
    #isOpeningShared = false;

    constructor() {
        const parts = loadCompiler();
        parts.catch(() => {}); // told where something is asked
        this.#compiler = new Compiler(parts);
        this.#samples = loadJson('samples.json').catch(() => []);
        prepareNote();
        this.#editor = new Editor({
            parent: byId('editor'), text: kept() ?? '', onChange: () => this.#textChanged(), onFormat: () => this.#format(),
        });
        const findings = new Findings({ editor: this.#editor, explain: code => this.#explain(code) });
        this.#checking = new Checking({ compiler: this.#compiler, editor: this.#editor, findings });
    }

    async open() {
        byId('format').addEventListener('click', () => this.#format());
        byId('share').addEventListener('click', () => this.#share());
        byId('save').addEventListener('click', () => this.#save());
        addEventListener('hashchange', () => this.#openShared());
        this.#colour();
        this.#listSamples();
        if (!await this.#openShared()) {
            await this.#openFirst();
        }
        await this.#checking.check();
    }

    /// A shared program is kept from its first edit on: until then its address has it, and the visitor's own stays kept.
    #textChanged() {
        if (!this.#isOpeningShared) {
            this.#leaveAddress();
            keep(this.#editor.text);
        }
        forgetUndo();
        this.#checking.textChanged();
    }

    /// Takes the program out of the address, which would otherwise replace what is written from now on.
    #leaveAddress() {
        if (location.hash !== '') {
            history.replaceState(null, '', location.pathname + location.search);
        }
    }

    /// Puts the first example before somebody who has written nothing yet.
    async #openFirst() {
        const isUntouched = () => kept() === null && this.#editor.text === '';
        if (isUntouched()) {
            const [first] = await this.#samples;
            if (first !== undefined && isUntouched()) {
                this.#editor.replace(first.text);
            }
        }
    }

    async #colour() {
        try {
            const [grammar, engine] = await Promise.all([loadText('grammar.json'), loadBytes('grammar.wasm')]);
            this.#editor.setLanguage(await loadLanguage({ grammar, engine }));
        } catch (error) {
            console.error(error); // without colours all else works
        }
    }

    async #listSamples() {
        const samples = await this.#samples;
        const list = byId('samples');
        for (const edition of [2, 1]) {
            const group = element('optgroup', '');
            group.label = edition === 2 ? 'இரண்டாம் பதிப்பு · Second edition' : 'முதல் பதிப்பு · First edition';
            samples.forEach((sample, index) => {
                if (sample.edition === edition) {
                    const option = element('option', '', sample.name);
                    option.value = index;
                    group.append(option);
                }
            });
            list.append(group);
        }
        list.addEventListener('change', () => {
            const sample = samples[Number(list.value)];
            list.value = '';
            this.#replace(sample.text, `'${sample.name}' திறக்கப்பட்டது.`, 'The example is open.');
        });
    }

    #replace(text, tamil, inEnglish) {
        const hadText = this.#editor.text.trim() !== '' && this.#editor.text !== text;
        this.#editor.replace(text);
        tellNote(tamil, inEnglish, hadText ? () => this.#editor.undo() : null);
    }

    /// Opens the program of the address, and promises whether there was one.
    async #openShared() {
        const program = await programOf(location.hash);
        if (program === undefined) {
            return false;
        }
        if (program === null) {
            this.#leaveAddress();
            tellNote('இந்த முகவரியில் உள்ள நிரலைப் படிக்க முடியவில்லை.', 'The program in this address can\'t be read.');
            return false;
        }
        this.#isOpeningShared = true;
        this.#replace(program, 'பகிர்ந்த நிரல் திறக்கப்பட்டது.', 'The shared program is open.');
        this.#isOpeningShared = false;
        return true;
    }

    async #share() {
        const hash = await addressOf(this.#editor.text);
        if (hash === null) {
            tellNote('இந்த நிரல் ஒரு முகவரிக்கு மிக நீளமானது; கோப்பாகச் சேமித்துப் பகிரவும்.',
                     'This program is too long for an address; save it and share the file.');
            return;
        }
        const address = new URL(hash, location.href).href;
        try {
            await navigator.clipboard.writeText(address);
            tellNote('முகவரி நகலெடுக்கப்பட்டது.', 'The address is copied.');
        } catch (error) {
            // The browser's own line shows it, to be copied from there.
            history.replaceState(null, '', hash);
            tellNote('முகவரி மேலே உள்ளது; அங்கிருந்து நகலெடுக்கவும்.', 'Copy the address from the line above.');
        }
    }

    #save() {
        const address = URL.createObjectURL(new Blob([this.#editor.text], { type: 'text/plain' }));
        const link = element('a', '');
        link.href = address;
        link.download = FILE_NAME;
        link.click();
        setTimeout(() => URL.revokeObjectURL(address), 60_000);
    }

    async #format() {
        const text = this.#editor.text;
        try {
            const made = await this.#compiler.ask('format', text);
            if (made.result === 'faulty') {
                tellNote('பிழையுள்ள நிரலை வடிவமைக்க முடியாது; முதலில் பிழையைச் சரி செய்யவும்.',
                         'A program with faults can\'t be formatted; mend them first.');
            } else if (made.result === 'not-understood') {
                tellNote('இடைவெளிகளை மாற்றினால் பொருள் மாறக்கூடும்; எனவே நிரல் இருந்தபடியே இருக்கிறது.',
                         'Other blanks might change the meaning, so the program stays as it is.');
            } else if (made.text === text) {
                tellNote('ஏற்கெனவே ஒரே பாணியில் உள்ளது.', 'It is in the one style already.');
            } else if (this.#editor.text === text) {
                this.#editor.respace(made.text);
                tellNote('வடிவமைக்கப்பட்டது.', 'Formatted.', () => this.#editor.undo());
            }
        } catch (failure) {
            this.#tellFailure();
        }
    }

    async #explain(code) {
        try {
            const told = await this.#compiler.ask('explain', code);
            if (told !== null) {
                showExplanation(told);
            }
        } catch (failure) {
            this.#tellFailure();
        }
    }

    #tellFailure() {
        tellNote('சரிபார்ப்பி விடை தரவில்லை; மீண்டும் முயலவும்.', 'The compiler gave no answer; try again.');
    }
}

new Page().open();
