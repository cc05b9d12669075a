// The editor: what keys do, and what stands in it.

import { defaultKeymap, history, historyKeymap, indentWithTab, isolateHistory, undo } from '@codemirror/commands';
import { bracketMatching, indentOnInput, indentService, indentUnit } from '@codemirror/language';
import { lintGutter, lintKeymap, setDiagnostics } from '@codemirror/lint';
import { highlightSelectionMatches, search, searchKeymap } from '@codemirror/search';
import { Compartment, EditorState } from '@codemirror/state';
import {
    EditorView, drawSelection, highlightActiveLine, highlightSpecialChars, keymap, lineNumbers,
} from '@codemirror/view';

import { indentationAt } from './indentation.js';
import { changesBetween } from './changes.js';
import { WORDS } from './words.js';

const NAME = 'நிரல் · Program. F8: அடுத்த பிழை, next fault. Shift+Alt+F: வடிவமை, format. Esc, Tab: வெளியே, leave.';

/// Taken back by itself, whatever was typed just before.
const ALONE = isolateHistory.of('full');

export class Editor {
    #colours = new Compartment();
    #view;

    /// Puts an editor into `parent`. `onChange` is called after each change of its text, `onFormat` if its key is pressed.
    constructor({ parent, text, onChange, onFormat }) {
        this.#view = new EditorView({
            parent,
            state: EditorState.create({
                doc: text,
                extensions: [
                    lineNumbers(), highlightSpecialChars(), history(), drawSelection(), highlightActiveLine(),
                    EditorState.allowMultipleSelections.of(true), bracketMatching(), highlightSelectionMatches(),
                    indentUnit.of('    '), indentService.of(indentationAt), indentOnInput(), lintGutter(),
                    search({ top: true }), EditorView.lineWrapping,
                    keymap.of([{ key: 'Shift-Alt-f', run: () => { onFormat(); return true; } }]),
                    keymap.of([...defaultKeymap, ...searchKeymap, ...historyKeymap, ...lintKeymap, indentWithTab]),
                    EditorState.languageData.of(() => [{ commentTokens: { line: 'ஃ' } }]),
                    EditorState.phrases.of(WORDS),
                    EditorView.contentAttributes.of({ 'aria-label': NAME, 'spellcheck': 'false', 'autocapitalize': 'off' }),
                    EditorView.updateListener.of(({ docChanged }) => docChanged && onChange()),
                    this.#colours.of([]),
                ],
            }),
        });
    }

    get text() {
        return this.#view.state.doc.toString();
    }

    /// Colours the words from now on.
    setLanguage(language) {
        this.#view.dispatch({ effects: this.#colours.reconfigure(language) });
    }

    /// Puts another program in the place of this one, as a change that can be undone.
    replace(text) {
        this.#view.dispatch({
            changes: { from: 0, to: this.#view.state.doc.length, insert: text }, selection: { anchor: 0 },
            scrollIntoView: true, annotations: ALONE,
        });
    }

    /// Sets the same program in other blanks; the cursor stays at its letter.
    respace(text) {
        this.#view.dispatch({ changes: changesBetween(this.text, text), annotations: ALONE });
    }

    undo() {
        undo(this.#view);
    }

    /// The offset of a position, counted from 1 and in units of UTF-16, that the compiler tells of this text.
    offsetOf({ line, utf16 }) {
        const { doc } = this.#view.state;
        const { from, to } = doc.line(Math.min(line, doc.lines));
        // The compiler leaves out a byte order mark.
        const dropped = from === 0 && doc.sliceString(0, 1) === '\ufeff' ? 1 : 0;
        return Math.min(from + dropped + utf16 - 1, to);
    }

    /// Underlines what these say, as CodeMirror's diagnostics.
    mark(diagnostics) {
        this.#view.dispatch(setDiagnostics(this.#view.state, diagnostics));
    }

    /// Puts the cursor to an offset and shows it.
    goTo(offset) {
        this.#view.dispatch({ selection: { anchor: offset }, effects: EditorView.scrollIntoView(offset, { y: 'center' }) });
        this.#view.focus();
    }

    /// A new layout, as after its fonts or its size have changed.
    measure() {
        this.#view.requestMeasure();
    }
}
