// Tamil names of the program arrive byte by byte; scripts of the page call them as they are written.
pozhilFrames.whenReady(() => {
    for (const name of Object.keys(Module).filter(key => /^[\x00-\xff]*[\x80-\xff]/.test(key))) {
        try {
            const bytes = Uint8Array.from(name, letter => letter.charCodeAt(0));
            Module[new TextDecoder('utf-8', { fatal: true }).decode(bytes)] = Module[name];
        } catch (error) {
            // not the bytes of a UTF-8 name
        }
    }
    if (Module._set_input_value && !Module.set_input_value) {
        Module.set_input_value = (id, value) =>
            Module.ccall('set_input_value', null, ['string', 'string'], [id, value]);
    }
});
