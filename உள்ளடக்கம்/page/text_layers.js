// Texts are written on a canvas of their own over all shapes, and fields of the browser stand over both. In the second edition
// either shows only where it would if all were drawn on one canvas: within what the program cuts it to, and not under what is
// drawn later.
var pozhilTextLayers = (() => {
    // What is fainter hides no field.
    const OPAQUE = 0.5;

    /// Whether the program of this page asks for layers.
    let isWanted = false;

    // --- what texts are cut to: left, right, top and bottom, where the program keeps it ---

    let clipAt = 0;
    const clip = () => ({ left: HEAPF32[clipAt], right: HEAPF32[clipAt + 1], top: HEAPF32[clipAt + 2],
                          bottom: HEAPF32[clipAt + 3] });

    // --- where texts have been written in this frame, by the rows of the window ---

    const ROW = 32;
    let rows = [];
    /// A dialog has dimmed the page: there is something everywhere.
    let isDimmed = false;
    const rowOf = y => Math.max(0, Math.floor(y / ROW));

    function add(area) {
        for (let row = rowOf(area.top); row <= rowOf(Math.min(area.bottom, window.innerHeight)); row++) {
            (rows[row] ??= []).push(area);
        }
    }

    const overlap = (one, other) => one.left < other.right && other.left < one.right && one.top < other.bottom
        && other.top < one.bottom;

    function isWrittenIn(area) {
        for (let row = rowOf(area.top); row <= Math.min(rowOf(area.bottom), rows.length - 1); row++) {
            if (rows[row]?.some(written => overlap(written, area))) {
                return true;
            }
        }
        return false;
    }

    // --- what is drawn over them, as the drawing library notes it down: a count and a place, of ten numbers each ---

    const NUMBERS = 10;
    let coversAt = 0;
    /// How many of this frame's have been seen to.
    let done = 0;

    function coverAt(index) {
        const numbers = HEAPF32;
        const begin = (HEAP32[coversAt + 1] >> 2) + NUMBERS * index;
        const [x, y, width, height] = [numbers[begin], numbers[begin + 1], numbers[begin + 2], numbers[begin + 3]];
        return { x, y, width, height, radius: numbers[begin + 4], strength: numbers[begin + 5],
                 left: Math.max(numbers[begin + 6], x), top: Math.max(numbers[begin + 7], y),
                 right: Math.min(numbers[begin + 8], x + width), bottom: Math.min(numbers[begin + 9], y + height) };
    }

    /// Hides what lies under the shapes that have been drawn since.
    function cover() {
        const count = HEAP32[coversAt];
        const isBlank = !isDimmed && rows.length === 0 && fields.length === 0;
        for (; done < count && !isBlank; done++) {
            const shape = coverAt(done);
            if (isDimmed || isWrittenIn(shape)) {
                pozhilTextCanvas.erase(shape);
            }
            if (shape.strength >= OPAQUE) {
                fields.filter(({ area }) => overlap(area, shape)).forEach(({ covers }) => covers.push(shape));
            }
        }
        done = count;
    }

    // --- texts ---

    function write(draw, areaOf) {
        if (!isWanted) {
            draw();
            return;
        }
        cover();
        const cut = clip();
        const area = areaOf();
        if (!overlap(area, cut)) {
            return;
        }
        add(area);
        if (area.left >= cut.left && area.right <= cut.right && area.top >= cut.top && area.bottom <= cut.bottom) {
            draw();
        } else {
            pozhilTextCanvas.within(cut, draw);
        }
    }

    pozhilTextCanvas.through(write);
    pozhilTextCanvas.watch('fillRect', () => {
        if (isWanted) {
            cover();
            isDimmed = true;
        }
    });

    // --- fields ---

    /// Those of this frame: { element, area, cut, covers }.
    let fields = [];

    /// The field has been placed; so far, nothing lies over it.
    function addField(id) {
        cover();
        const element = document.getElementById(id);
        const { left, top, right, bottom } = element.getBoundingClientRect();
        fields.push({ element, area: { left, right, top, bottom }, cut: clip(), covers: [] });
    }

    const inner = (one, other) => ({ left: Math.max(one.left, other.left), right: Math.min(one.right, other.right),
                                     top: Math.max(one.top, other.top), bottom: Math.min(one.bottom, other.bottom) });
    const outer = (one, other) => ({ left: Math.min(one.left, other.left), right: Math.max(one.right, other.right),
                                     top: Math.min(one.top, other.top), bottom: Math.max(one.bottom, other.bottom) });

    /// The areas without overlaps: what overlaps becomes one.
    function apart(areas) {
        const found = [];
        for (let area of areas) {
            for (let place = found.findIndex(other => overlap(other, area)); place >= 0;
                place = found.findIndex(other => overlap(other, area))) {
                area = outer(area, ...found.splice(place, 1));
            }
            found.push(area);
        }
        return found;
    }

    /// What of the field can be seen, as CSS says it; empty if that is all.
    function shownPart({ area, cut, covers }) {
        const seen = inner(area, cut);
        if (covers.length === 0 && ['left', 'right', 'top', 'bottom'].every(side => seen[side] === area[side])) {
            return '';
        }
        if (seen.left >= seen.right || seen.top >= seen.bottom) {
            return 'inset(50%)';
        }
        const holes = apart(covers.filter(shape => overlap(shape, seen)).map(shape => inner(shape, seen)));
        const paths = [seen, ...holes].map(({ left, right, top, bottom }) =>
            `M${left - area.left} ${top - area.top}H${right - area.left}V${bottom - area.top}H${left - area.left}Z`);
        return `path(evenodd, "${paths.join('')}")`;
    }

    function cutFields() {
        for (const field of fields) {
            const part = shownPart(field);
            if ((field.element.pozhilPart ?? '') !== part) {
                field.element.pozhilPart = part;
                field.element.style.clipPath = part;
            }
        }
    }

    // --- frames ---

    /// A frame of a program that wants layers begins.
    /// @param place where in the program's memory the four numbers stand that texts are cut to
    function begin(place) {
        isWanted = true;
        clipAt = place >> 2;
        rows = [];
        fields = [];
        isDimmed = false;
        done = 0;
    }

    pozhilFrames.whenReady(() => { coversAt = Module._pozhil_drawn_covers() >> 2; });
    pozhilFrames.after(() => {
        if (isWanted) {
            cover();
            cutFields();
        }
    });

    return { begin, addField };
})();
