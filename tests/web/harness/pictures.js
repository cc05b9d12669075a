// Small picture files for pages, made on the spot.

import { deflateSync } from 'node:zlib';

function crc32(bytes) {
    let rest = 0xffffffff;
    for (const byte of bytes) {
        rest ^= byte;
        for (let bit = 0; bit < 8; bit++) {
            rest = rest & 1 ? 0xedb88320 ^ (rest >>> 1) : rest >>> 1;
        }
    }
    return (rest ^ 0xffffffff) >>> 0;
}

function number32(value) {
    const bytes = Buffer.alloc(4);
    bytes.writeUInt32BE(value);
    return bytes;
}

function chunk(type, data) {
    const named = Buffer.concat([Buffer.from(type), data]);
    return Buffer.concat([number32(data.length), named, number32(crc32(named))]);
}

/// A PNG whose left half has one colour, [red, green, blue], and whose right half another.
export function png(size, left, right = left) {
    const lines = [];
    for (let y = 0; y < size; y++) {
        lines.push(0);
        for (let x = 0; x < size; x++) {
            lines.push(...(x < size / 2 ? left : right), 255);
        }
    }
    const header = Buffer.concat([number32(size), number32(size), Buffer.from([8, 6, 0, 0, 0])]);
    return Buffer.concat([Buffer.from([137, 80, 78, 71, 13, 10, 26, 10]), chunk('IHDR', header),
                          chunk('IDAT', deflateSync(Buffer.from(lines))), chunk('IEND', Buffer.alloc(0))]);
}

/// The pixels of one frame, all of the same colour of the table, in codes of three bits: each second code clears the
/// table, so that the codes never get longer.
function gifPixels(count, colour) {
    const bits = [];
    const put = code => bits.push(code & 1, (code >> 1) & 1, code >> 2);
    for (let pixel = 0; pixel < count; pixel++) {
        if (pixel % 2 === 0) {
            put(4);
        }
        put(colour);
    }
    put(5);
    const bytes = [];
    for (let at = 0; at < bits.length; at += 8) {
        bytes.push(bits.slice(at, at + 8).reduce((byte, bit, place) => byte | (bit << place), 0));
    }
    const blocks = [2];
    for (let at = 0; at < bytes.length; at += 255) {
        const block = bytes.slice(at, at + 255);
        blocks.push(block.length, ...block);
    }
    return [...blocks, 0];
}

/// An animated GIF with a frame for each of up to four colours, each shown for so many hundredths of a second.
export function gif(size, colours, delay) {
    const table = [...colours, ...Array(4).fill([0, 0, 0])].slice(0, 4).flat();
    const bytes = [...Buffer.from('GIF89a'), size, 0, size, 0, 0xf1, 0, 0, ...table,
                   0x21, 0xff, 11, ...Buffer.from('NETSCAPE2.0'), 3, 1, 0, 0, 0];
    for (const index of colours.keys()) {
        bytes.push(0x21, 0xf9, 4, 0, delay & 255, delay >> 8, 0, 0, 0x2c, 0, 0, 0, 0, size, 0, size, 0, 0,
                   ...gifPixels(size * size, index));
    }
    return Buffer.from([...bytes, 0x3b]);
}

/// A JPEG, 16 by 16, red to the left and blue to the right.
export const jpeg = Buffer.from(
    '/9j/4AAQSkZJRgABAQAAAQABAAD/4gHYSUNDX1BST0ZJTEUAAQEAAAHIAAAAAAQwAABtbnRyUkdCIFhZWiAH4AABAAEAAAAAAABhY3NwAAAA'
    + 'AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAQAA9tYAAQAAAADTLQAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA'
    + 'AAAAAAAAAAlkZXNjAAAA8AAAACRyWFlaAAABFAAAABRnWFlaAAABKAAAABRiWFlaAAABPAAAABR3dHB0AAABUAAAABRyVFJDAAABZAAAAChn'
    + 'VFJDAAABZAAAAChiVFJDAAABZAAAAChjcHJ0AAABjAAAADxtbHVjAAAAAAAAAAEAAAAMZW5VUwAAAAgAAAAcAHMAUgBHAEJYWVogAAAAAAAA'
    + 'b6IAADj1AAADkFhZWiAAAAAAAABimQAAt4UAABjaWFlaIAAAAAAAACSgAAAPhAAAts9YWVogAAAAAAAA9tYAAQAAAADTLXBhcmEAAAAAAAQA'
    + 'AAACZmYAAPKnAAANWQAAE9AAAApbAAAAAAAAAABtbHVjAAAAAAAAAAEAAAAMZW5VUwAAACAAAAAcAEcAbwBvAGcAbABlACAASQBuAGMALgAg'
    + 'ADIAMAAxADb/2wBDAAMCAgMCAgMDAwMEAwMEBQgFBQQEBQoHBwYIDAoMDAsKCwsNDhIQDQ4RDgsLEBYQERMUFRUVDA8XGBYUGBIUFRT/2wBD'
    + 'AQMEBAUEBQkFBQkUDQsNFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBT/wAARCAAQABADASIAAhEB'
    + 'AxEB/8QAFQABAQAAAAAAAAAAAAAAAAAABwj/xAAUEAEAAAAAAAAAAAAAAAAAAAAA/8QAFQEBAQAAAAAAAAAAAAAAAAAABwj/xAAYEQACAwAA'
    + 'AAAAAAAAAAAAAAAACEWDw//aAAwDAQACEQMRAD8AnQBH0BHBZZijYo1hoq7I/9k=', 'base64');
