// Fields are elements of the browser over the canvas. They keep to the page: none shows through a dialog, and none that the
// keyboard reaches pulls the page out of its window; nor does what a search finds.
var pozhilFields = (() => {
    // What lies higher isn't dimmed with the texts.
    const TEXT_LAYER = 1000;
    // Beside the left edge of a field.
    const INSET = 16;

    const fields = () => document.querySelectorAll('.pozhil-input');

    // --- under dialogs ---

    /// Of this frame: for each field the dialogs that were drawn over it, each as the corners of its place.
    let under = new Map();
    let corners = [];

    // A dialog dims the whole page and then cuts out its own place. All fields drawn before lie under it.
    pozhilTextCanvas.watch('fillRect', () => {
        corners = [];
        fields().forEach(field => {
            if (field.dataset.touched === '1') {
                under.set(field, [...under.get(field) ?? [], corners]);
            }
        });
    });
    pozhilTextCanvas.watch('quadraticCurveTo', (...curve) => { corners.push(curve); });

    /// Of this frame: what can be seen but not reached, since a menu is open.
    const shielded = new Set();

    /// The fields that have been drawn so far can't be reached in this frame.
    function shield() {
        fields().forEach(field => {
            if (field.dataset.touched === '1') {
                shielded.add(field);
            }
        });
    }

    function overlaps(field, dialog) {
        const { left, right, top, bottom } = field.getBoundingClientRect();
        const across = dialog.map(([x]) => x);
        const down = dialog.map(([, y]) => y);
        return left < Math.max(...across) && right > Math.min(...across)
            && top < Math.max(...down) && bottom > Math.min(...down);
    }

    /// What lies under a dialog can't be reached, and is seen only where it is dimmed.
    function cover() {
        fields().forEach(field => {
            const dialogs = under.get(field) ?? [];
            const isUnder = dialogs.length > 0;
            const isInert = isUnder || shielded.has(field);
            if (field.inert !== isInert) {
                field.inert = isInert;
            }
            field.classList.toggle('pozhil-under', isUnder && (
                Number(field.style.zIndex) > TEXT_LAYER || dialogs.some(dialog => overlaps(field, dialog))));
        });
        under.clear();
        shielded.clear();
    }

    pozhilFrames.after(cover);

    // --- in the window ---

    /// The program scrolls, not the browser, which would move the canvas out of its window.
    const scrolled = [document.documentElement, document.body, document.getElementById('pozhil-shown')];
    const isIn = ({ top, bottom }) => top >= 0 && bottom <= window.innerHeight;

    function stayInPlace() {
        scrolled.forEach(element => element.scrollTo(0, 0));
    }

    let pointer = null;
    let isByKeyboard = false;
    let isFocusing = false;

    /// Turns the wheel over the middle of the window as far as the place is from there.
    function bringIn({ left, top, bottom }) {
        pointer ??= [window.mouseX, window.mouseY];
        const middle = window.innerHeight / 2;
        pozhilPointer.moveTo(Math.max(INSET, left + INSET), middle);
        pozhilPointer.turnWheel(0, (top + bottom) / 2 - middle);
    }

    // Browsers scroll to what a search finds, and to what gets the focus or is typed in, which is seen to otherwise.
    window.addEventListener('scroll', event => {
        if (event.target !== document && !scrolled.includes(event.target)) {
            return;
        }
        const way = scrolled.reduce((sum, { scrollTop }) => sum + scrollTop, 0);
        stayInPlace();
        if (way !== 0 && !isFocusing && !document.activeElement.matches('.pozhil-input')) {
            const middle = window.innerHeight / 2 + way;
            bringIn({ left: window.innerWidth / 2, top: middle, bottom: middle });
            pozhilFrames.wake();
        }
    }, true);

    window.addEventListener('keydown', () => { isByKeyboard = true; }, true);
    for (const press of ['mousedown', 'touchstart']) {
        window.addEventListener(press, () => { isByKeyboard = false; }, true);
    }
    window.addEventListener('focusin', event => {
        isFocusing = true;
        if (isByKeyboard && event.target.matches('.pozhil-input, .pozhil-widget')) {
            stayInPlace();
            const place = event.target.getBoundingClientRect();
            if (!isIn(place)) {
                bringIn(place);
            }
        }
    });
    pozhilFrames.after(() => {
        isFocusing = false;
        if (pointer) {
            [window.mouseX, window.mouseY] = pointer;
            pointer = null;
        }
    });

    return { shield };
})();
