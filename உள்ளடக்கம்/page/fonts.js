// Tamil is drawn with the font that is packed with the application until the web font comes, and without a network for good.
pozhilFrames.whenReady(() => {
    const FAMILY = 'Noto Sans Tamil';
    // Systems know a font by one or the other of these.
    const OWN = ['Noto Sans Tamil', 'Noto Sans Tamil Regular', 'NotoSansTamil-Regular'];
    const PACKED = ['assets/font/Tamil-Regular.ttf', 'assets/font/Coiny-Regular.ttf'];

    const packed = PACKED.find(path => typeof FS !== 'undefined' && FS.analyzePath(path).exists);
    if (!packed) {
        return;
    }
    // The font that the system has is as good as the web font.
    new FontFace(FAMILY, OWN.map(name => `local("${name}")`).join(', ')).load().catch(() => {
        const face = new FontFace(FAMILY, FS.readFile(packed));
        document.fonts.add(face);
        face.load().catch(() => {
            // Then the browser's own font has to do.
            document.fonts.delete(face);
        });
    });
});
