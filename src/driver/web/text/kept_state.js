// What the variables of the program hold survives the reload that a newer build brings; a page that is opened or reloaded
// by its user begins anew.
globalThis.pozhilState = (() => {
    const KEY = 'pozhil state ' + location.pathname;

    function takeStored() {
        try {
            const kept = sessionStorage.getItem(KEY);
            sessionStorage.removeItem(KEY);
            return kept ?? '';
        } catch {
            return ''; // a browser that keeps nothing
        }
    }

    /// What the program hasn't had yet; null from its first frame on.
    let waiting = takeStored();

    // Not every program has variables, or wants them to be kept.
    const canKeep = () => Boolean(Module._pozhil_take_state);

    pozhilFrames.before(() => {
        if (waiting !== null && canKeep()) {
            Module.ccall('pozhil_take_state', null, ['string'], [waiting]);
        }
        waiting = null;
    });

    function keep() {
        try {
            const kept = waiting ?? (canKeep() ? Module.ccall('pozhil_kept_state', 'string', [], []) : '');
            if (kept !== '') {
                sessionStorage.setItem(KEY, kept);
            }
        } catch {
            console.warn('பக்கம் மீண்டும் ஏறும்போது மாறிகளின் மதிப்புகளைக் காக்க முடியவில்லை.');
        }
    }

    const tellTooLarge = name => console.warn(
        "'" + name + "' மாறியின் மதிப்பு மிகப் பெரியது; பக்கம் மீண்டும் ஏறும்போது அது காக்கப்படாது.");

    return { keep, tellTooLarge };
})();
