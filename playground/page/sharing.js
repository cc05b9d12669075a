// A program as a part of the page's address: compressed where the browser can, in letters of base64 that addresses allow.

/// Longer ones are cut by what passes addresses on.
const LONGEST = 12_000;
/// What an address may unfold to; a small one could hold gigabytes.
const LARGEST_PROGRAM = 1_000_000;
const FORMAT = 'deflate-raw';
const COMPRESSED = '#p=';
const PLAIN = '#t=';

function lettersOf(bytes) {
    let binary = '';
    for (const byte of bytes) {
        binary += String.fromCharCode(byte);
    }
    return btoa(binary).replaceAll('+', '-').replaceAll('/', '_').replace(/=+$/, '');
}

function bytesOf(letters) {
    return Uint8Array.from(atob(letters.replaceAll('-', '+').replaceAll('_', '/')), letter => letter.charCodeAt(0));
}

/// What a stream makes of these bytes, unless that is more than `most`.
async function through(stream, bytes, most) {
    const pieces = [];
    let size = 0;
    for (const reader = new Blob([bytes]).stream().pipeThrough(stream).getReader(); ;) {
        const { done, value } = await reader.read();
        if (done) {
            break;
        }
        size += value.length;
        if (size > most) {
            await reader.cancel();
            throw new RangeError('too large');
        }
        pieces.push(value);
    }
    return new Uint8Array(await new Blob(pieces).arrayBuffer());
}

/// The part of an address that holds a program, null if it would be too long.
export async function addressOf(program) {
    const bytes = new TextEncoder().encode(program);
    if (bytes.length > LARGEST_PROGRAM) {
        return null;
    }
    const address = typeof CompressionStream === 'undefined' ? PLAIN + lettersOf(bytes)
        : COMPRESSED + lettersOf(await through(new CompressionStream(FORMAT), bytes, Infinity));
    return address.length > LONGEST ? null : address;
}

/// The program in that part of an address; undefined if it holds none, null if it can't be read.
export async function programOf(address) {
    const isCompressed = address.startsWith(COMPRESSED);
    if (!isCompressed && !address.startsWith(PLAIN)) {
        return undefined;
    }
    try {
        const bytes = bytesOf(address.slice(COMPRESSED.length));
        const text = isCompressed ? await through(new DecompressionStream(FORMAT), bytes, LARGEST_PROGRAM) : bytes;
        return new TextDecoder('utf-8', { fatal: true, ignoreBOM: true }).decode(text);
    } catch (error) {
        return null;
    }
}
