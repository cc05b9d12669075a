// Tamil names of the program arrive byte by byte; scripts of the page call them as they are written.
pozhilFrames.whenReady(() => {
    for (const name of Object.keys(Module).filter(key => /^[\x00-\xff]*[\x80-\xff]/.test(key))) {
        const written = new TextDecoder().decode(Uint8Array.from(name, letter => letter.charCodeAt(0)));
        if (!written.includes('\uFFFD')) { // which stands for bytes that are no UTF-8, so none of a name
            Module[written] = Module[name];
        }
    }
    if (Module._set_input_value && !Module.set_input_value) {
        Module.set_input_value = (id, value) =>
            Module.ccall('set_input_value', null, ['string', 'string'], [id, value]);
    }
});
