// The explanation of a fault, over the page.

import { byId, element, english } from './elements.js';

function part(title, inEnglish, ...contents) {
    return [element('h3', '', `${title} `, english(inEnglish)), ...contents];
}

function program(text) {
    const made = element('pre', '', element('code', '', text.replace(/\n$/, '')));
    made.tabIndex = 0; // so that the keyboard can scroll it
    return made;
}

/// Shows what the compiler knows of a fault.
export function showExplanation({ code, message, cause, mend, wrong, right }) {
    byId('explanation-title').textContent = `${code}: ${message}`;
    const parts = [];
    if (cause !== null) {
        const inEnglish = element('p', 'english', cause.en);
        inEnglish.lang = 'en';
        parts.push(...part('காரணம்', 'Cause', element('p', '', cause.ta), inEnglish));
    }
    if (mend !== null) {
        parts.push(...part('தீர்வு', 'Remedy', element('p', '', mend)));
    }
    if (wrong !== null) {
        parts.push(...part('தவறான நிரல்', 'Wrong', program(wrong)));
    }
    if (right !== null) {
        parts.push(...part('சரியான நிரல்', 'Right', program(right)));
    }
    byId('explanation-parts').replaceChildren(...parts);
    const dialog = byId('explanation');
    if (!dialog.open) {
        dialog.showModal();
    }
    dialog.scrollTop = 0;
}
