// What the check has found: underlines in the editor with the words of the box, and the list below it.

import { button, byId, element, english } from './elements.js';

/// More than these slow the page down, and nobody reads them.
const MOST_SHOWN = 100;

/// What a box tells below its message.
function details({ cause, mend, suggestion }) {
    const parts = [];
    if (cause !== null) {
        parts.push(element('p', 'cause', cause.ta));
    }
    if (mend !== null) {
        parts.push(element('p', 'mend', element('strong', '', 'தீர்வு: '), mend));
    }
    if (suggestion !== null) {
        parts.push(element('p', 'mend', suggestion));
    }
    return parts;
}

export class Findings {
    #editor;
    #explain;

    /// `explain` is called with a code that is to be explained.
    constructor({ editor, explain }) {
        this.#editor = editor;
        this.#explain = explain;
    }

    /// Shows what came of a check, in the form of `பொழில் சரிபார் --json`.
    show({ edition, findings }) {
        const shown = findings.slice(0, MOST_SHOWN);
        this.#editor.mark(shown.filter(({ begin }) => begin !== null).map(finding => this.#diagnosticOf(finding)));
        byId('findings').replaceChildren(...shown.map(finding => this.#itemOf(finding)));
        const faults = findings.filter(({ kind }) => kind === 'fault').length;
        const hints = findings.length - faults;
        this.tell(faults === 0 ? 'well' : 'faulty',
                  faults === 0 ? 'பிழை இல்லை' : `பிழைகள்: ${faults}`, faults === 0 ? 'No fault' : `Faults: ${faults}`,
                  hints === 0 ? '' : ` · குறிப்புகள்: ${hints}`);
        byId('edition').replaceChildren(edition === 2 ? 'இரண்டாம் பதிப்பு ' : 'முதல் பதிப்பு ',
                                        english(edition === 2 ? 'Second edition' : 'First edition'));
    }

    /// Shows that there is no verdict on what stands in the editor, and why.
    showNone(tamil, inEnglish) {
        this.#editor.mark([]);
        byId('findings').replaceChildren();
        this.tell('unknown', tamil, inEnglish);
    }

    /// What is shown is of another text than that in the editor.
    outdate() {
        byId('state').setAttribute('aria-busy', 'true');
    }

    /// Tells the state of the check.
    tell(state, tamil, inEnglish, rest = '') {
        byId('state').className = state;
        byId('state').setAttribute('aria-busy', 'false');
        byId('summary').replaceChildren(`${tamil} `, english(inEnglish), rest);
    }

    #codeButton(code) {
        return button('code', () => this.#explain(code), code, element('span', 'hidden', ' விளக்கு · Explain'));
    }

    #diagnosticOf(finding) {
        const from = this.#editor.offsetOf(finding.begin);
        return {
            from,
            to: Math.max(this.#editor.offsetOf(finding.end), from),
            severity: finding.kind === 'fault' ? 'error' : 'info',
            message: finding.message,
            renderMessage: () => element('div', 'box', element('p', 'message', finding.message), ...details(finding),
                                         ...(finding.code === null ? [] : [this.#codeButton(finding.code)])),
        };
    }

    #itemOf(finding) {
        const isFault = finding.kind === 'fault';
        const place = finding.begin === null ? [] : [button('place', () => {
            this.#editor.goTo(this.#editor.offsetOf(finding.begin));
        }, `வரி ${finding.begin.line}`)];
        const code = finding.code === null ? [] : [this.#codeButton(finding.code)];
        const head = element('div', 'head', element('strong', '', isFault ? 'பிழை' : 'குறிப்பு'), ...place, ...code);
        const message = element('p', 'message', finding.message);
        return element('li', finding.kind, head, message, ...(isFault ? details(finding) : []));
    }
}
