// The program that is being written, kept in the browser between visits.

const PLACE = 'pozhil-playground-program';

/// The program as it was kept, null if there is none, or if the browser keeps nothing.
export function kept() {
    try {
        return localStorage.getItem(PLACE);
    } catch (error) {
        return null;
    }
}

/// Keeps a program. Without room for it, or where nothing may be kept, the page works all the same.
export function keep(program) {
    try {
        localStorage.setItem(PLACE, program);
    } catch (error) {
        // What was kept before would only pass for it.
        try {
            localStorage.removeItem(PLACE);
        } catch (nothing) {}
    }
}
