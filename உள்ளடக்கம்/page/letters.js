// Texts cross from the program to the page by the thousand in each frame, nearly all of them those of the frame before.
// They are told apart by their bytes, which takes a part of the time that reading them anew does.
pozhilFrames.atStart(() => {
    // What is longer is rare.
    const LONGEST = 256;
    // A power of two.
    const PLACES = 8192;

    const read = UTF8ToString;
    /// By a number made of its bytes, a text: { bytes, text }.
    const known = new Array(PLACES).fill(null);
    /// By a number made of where it begins, the text that was there last.
    const lastAt = new Array(PLACES).fill(null);

    function isAt(begin, { bytes }) {
        const heap = HEAPU8;
        for (let index = 0; index < bytes.length; index++) {
            if (heap[begin + index] !== bytes[index]) {
                return false;
            }
        }
        return heap[begin + bytes.length] === 0;
    }

    /// What is known of the text that begins there; null if it is too long.
    function find(begin) {
        const heap = HEAPU8;
        const last = begin + LONGEST;
        let place = 0;
        let end = begin;
        for (; heap[end] !== 0; end++) {
            if (end === last) {
                return null;
            }
            place = Math.imul(place ^ heap[end], 0x01000193);
        }
        place = (place ^ place >>> 15) & PLACES - 1;
        if (known[place] === null || !isAt(begin, known[place])) {
            known[place] = { bytes: heap.slice(begin, end), text: read(begin) };
        }
        return known[place];
    }

    /// The text that begins there and ends with a byte of 0.
    function readKnown(begin) {
        const place = begin & PLACES - 1;
        const last = lastAt[place];
        if (last !== null && isAt(begin, last)) {
            return last.text;
        }
        const found = find(begin);
        if (found === null) {
            return read(begin);
        }
        lastAt[place] = found;
        return found.text;
    }

    UTF8ToString = (begin, most) => (begin && most === undefined ? readKnown(begin) : read(begin, most));
});
