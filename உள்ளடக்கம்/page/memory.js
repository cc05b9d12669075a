// What the user has typed, scrolled and opened survives a reload of the page.
(() => {
    const KEY = 'pozhil ' + location.pathname;
    // Turns of the wheel so near each other move the same list.
    const NEAR = 40;
    const MOST_TURNS = 50;

    /// The page that is shown, by its name in the program.
    let shownPage = '';
    /// By page, what was scrolled, in order: { axis, x, y, way }, with the place of the pointer and how far it went.
    const turns = {};
    /// What comes back as soon as the program has a place for it: fields as { id, hint, text }, and turns.
    let waiting = { fields: [], turns: {}, page: '' };

    // What is typed there is nobody's to keep.
    const isSecret = field => field.id.startsWith('input_');

    // --- keeping ---

    function keptFields() {
        const shown = [...document.querySelectorAll('input.pozhil-input, textarea.pozhil-input')];
        return [...shown.filter(field => field.value !== '' && !isSecret(field))
            .map(({ id, placeholder, value }) => ({ id, hint: placeholder, text: value })), ...waiting.fields];
    }

    window.addEventListener('pagehide', () => {
        try {
            const kept = { fields: keptFields(), turns: { ...waiting.turns, ...turns }, page: shownPage };
            sessionStorage.setItem(KEY, JSON.stringify(kept));
        } catch {
            // a browser that keeps nothing
        }
    });

    function addTurn(turn) {
        turns[shownPage] ??= [];
        const last = turns[shownPage].at(-1);
        const isNear = last && last.axis === turn.axis && Math.hypot(last.x - turn.x, last.y - turn.y) < NEAR;
        if (isNear || turns[shownPage].length === MOST_TURNS) {
            last.way += turn.way;
        } else {
            turns[shownPage].push(turn);
        }
    }

    // --- bringing back ---

    function load() {
        try {
            const kept = JSON.parse(sessionStorage.getItem(KEY));
            sessionStorage.removeItem(KEY);
            return performance.getEntriesByType('navigation')[0].type === 'reload' ? kept : null;
        } catch {
            return null;
        }
    }

    function fill({ id, hint, text }) {
        const field = document.getElementById(id);
        if (!field || !field.matches('.pozhil-input') || field.placeholder !== hint) {
            return false;
        }
        field.value = text;
        field.dispatchEvent(new Event('input'));
        return true;
    }

    function turnAgain() {
        const [turn] = waiting.turns[shownPage]?.splice(0, 1) ?? [];
        if (turn) {
            pozhilFrames.wake();
            pozhilPointer.moveTo(turn.x, turn.y);
            pozhilPointer.turnWheel(turn.axis === 'x' ? turn.way : 0, turn.axis === 'y' ? turn.way : 0);
        }
        return turn;
    }

    // --- frames ---

    let isFirst = true;
    let firstPage = '';
    let wheel = null;

    const currentPage = () => Module.ccall('pozhil_page_name', 'string', [], []);
    const showPage = name => Module.ccall('pozhil_show_page', null, ['string'], [name]);

    function begin() {
        waiting = load() ?? waiting;
        firstPage = currentPage();
        if (waiting.page !== '') {
            showPage(waiting.page);
        }
    }

    pozhilFrames.before(() => {
        if (isFirst) {
            begin();
        }
        shownPage = currentPage();
        const pointer = [window.mouseX, window.mouseY];
        const again = turnAgain();
        wheel = { x: window.wheelDeltaX, y: window.wheelDelta, left: window.mouseX, top: window.mouseY,
                  pointer: again ? pointer : null };
    });

    pozhilFrames.after(() => {
        if (isFirst && pozhilDrawing.isBlank()) {
            // The program has no page of that name any more.
            showPage(firstPage);
        }
        isFirst = false;
        const isTaken = (wheel.x !== 0 && window.wheelDeltaX === 0) || (wheel.y !== 0 && window.wheelDelta === 0);
        for (const axis of isTaken ? ['x', 'y'] : []) {
            // Only the program knows where its lists end, but what has moved tells it.
            const way = -pozhilDrawing.shift(axis);
            if (way !== 0) {
                addTurn({ axis, x: wheel.left, y: wheel.top, way });
            }
        }
        if (wheel.pointer) {
            [window.mouseX, window.mouseY] = wheel.pointer;
        }
        waiting.fields = waiting.fields.filter(field => !fill(field));
    });
})();
