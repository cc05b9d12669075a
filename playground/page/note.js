// One message over the page, such as that an address was copied.

import { byId, english } from './elements.js';

let undo = null;

function close() {
    byId('note').hidden = true;
}

/// Shows a message in the place of the last one. With `onUndo` it can be taken back.
export function tellNote(tamil, inEnglish, onUndo = null) {
    undo = onUndo;
    byId('note-text').replaceChildren(`${tamil} `, english(inEnglish));
    byId('note-undo').hidden = onUndo === null;
    byId('note').hidden = false;
}

/// What the message told of can't be taken back any more, as something else was done since.
export function forgetUndo() {
    undo = null;
    byId('note-undo').hidden = true;
}

/// Makes its buttons work.
export function prepareNote() {
    byId('note-close').addEventListener('click', close);
    byId('note-undo').addEventListener('click', () => {
        close();
        undo();
    });
}
