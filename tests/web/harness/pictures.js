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
    const line = Buffer.alloc(1 + 4 * size);
    for (let x = 0; x < size; x++) {
        line.set([...(x < size / 2 ? left : right), 255], 1 + 4 * x);
    }
    const header = Buffer.concat([number32(size), number32(size), Buffer.from([8, 6, 0, 0, 0])]);
    return Buffer.concat([Buffer.from([137, 80, 78, 71, 13, 10, 26, 10]), chunk('IHDR', header),
                          chunk('IDAT', deflateSync(Buffer.alloc(line.length * size, line))),
                          chunk('IEND', Buffer.alloc(0))]);
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

/// An SVG of one colour.
export const svg = colour => '<svg xmlns="http://www.w3.org/2000/svg" width="40" height="40">'
    + `<rect width="40" height="40" fill="${colour}"/></svg>`;

/// An MP4 of half a second, 64 by 64, red to the left and blue to the right.
export const mp4 = Buffer.from(
    'AAAAJGZ0eXBpc29tAAACAGlzb21pc282aXNvMmF2YzFtcDQxAAACy21vb3YAAAB4bXZoZAEAAAAAAAAA5yb5YwAAAADnJvljAAAD6AAAAAAA'
    + 'AAIaAAEAAAEAAAAAAAAAAAAAAAABAAAAAAAAAAAAAAAAAAAAAQAAAAAAAAAAAAAAAAAAQAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA'
    + 'AAIAAAIjdHJhawAAAGh0a2hkAQAAAwAAAADnJvljAAAAAOcm+WMAAAABAAAAAAAAAAAAAAIaAAAAAAAAAAAAAAAAAAAAAAABAAAAAAAAAAAA'
    + 'AAAAAAAAAQAAAAAAAAAAAAAAAAAAQAAAAABAAAAAQAAAAAABs21kaWEAAAAsbWRoZAEAAAAAAAAA5yb5YwAAAADnJvljAAB1MAAAAAAAAAIa'
    + 'VcQAAAAAAC1oZGxyAAAAAAAAAAB2aWRlAAAAAAAAAAAAAAAAVmlkZW9IYW5kbGVyAAAAAVJtaW5mAAAAFHZtaGQAAAABAAAAAAAAAAAAAAAl'
    + 'ZGluZgAAAB1kcmVmAAAAAAAAAAEAAAANdXJsIAAAAAEAAAABEXN0YmwAAAAQc3RzYwAAAAAAAAAAAAAAEHN0dHMAAAAAAAAAAAAAABRzdHN6'
    + 'AAAAAAAAAAAAAAAAAAAAEHN0Y28AAAAAAAAAAAAAAMVzdHNkAAAAAAAAAAEAAAC1YXZjMQAAAAAAAAABAAAAAQAAAAAAAAAAAAAAAABAAEAA'
    + 'SAAAAEgAAAAAAAAAAQtBVkMxIENvZGluZwAAAAAAAAAAAAAAAAAAAAAAAAAAABj//wAAABBwYXNwAAAAAQAAAAEAAAAUYnRydAAAAAAAAAAA'
    + 'AAAAAAAAAChhdmNDAULACv/hABFnQsAKjI1CEk3AQ0BB4RCNQAEABGjOPIAAAAATY29scm5jbHgAAQANAAGAAAAAKG12ZXgAAAAgdHJleAAA'
    + 'AAAAAAABAAAAAQAAAAAAAAAAAAAAAAAAAJBtb29mAAAAEG1maGQAAAAAAAAAAQAAAHh0cmFmAAAAFHRmaGQAAgAgAAAAAQEBAAAAAAAUdGZk'
    + 'dAEAAAAAAAAAAAAAAAAAAEh0cnVuAQADBQAAAAYAAACYAgAAAAAAC8QAAAA3AAALzQAAABcAAAvxAAAAFAAAC94AAAAUAAALyAAAABIAAAPn'
    + 'AAAADQAAAJ1tZGF0AAAAM2W4AAQAAAQ///4IooABHxwACMcAAQLJN+H/+CKKD44AAgfRwABA1k3W66d11109dddPXgAAABNh4ABAAL5AQ6E/'
    + 'Ef0IuQ9yHkuAAAAAEGHgAIABPkCuhO5D8h+Q8lwAAAAQYeAAwAG+QbuB84ndnd5+JgAAAA5h4AEAAj5Hizvn7OyZ/AAAAAlh4AFAAr5BeEYA'
    + 'AABMbWZyYQAAADR0ZnJhAQAAAAAAAAEAAAA/AAAAAQAAAAAAAAAAAAAAAAAAAu8AAAABAAAAAQAAAAEAAAAQbWZybwAAAAAAAABM', 'base64');
