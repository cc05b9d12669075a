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

    function isAt(begin, bytes) {
        for (let index = 0; index < bytes.length; index++) {
            if (HEAPU8[begin + index] !== bytes[index]) {
                return false;
            }
        }
        return HEAPU8[begin + bytes.length] === 0;
    }

    function remember(begin, end, place) {
        const text = read(begin);
        known[place] = { bytes: HEAPU8.slice(begin, end), text };
        return text;
    }

    /// The text that begins there and ends with a byte of 0.
    function readKnown(begin) {
        const last = begin + LONGEST;
        let place = 0;
        let end = begin;
        for (; HEAPU8[end] !== 0; end++) {
            if (end === last) {
                return read(begin);
            }
            place = Math.imul(place ^ HEAPU8[end], 0x01000193);
        }
        place = (place ^ place >>> 15) & PLACES - 1;
        const entry = known[place];
        return entry !== null && isAt(begin, entry.bytes) ? entry.text : remember(begin, end, place);
    }

    UTF8ToString = (begin, most) => (begin && most === undefined ? readKnown(begin) : read(begin, most));
});
