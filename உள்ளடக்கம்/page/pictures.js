// Of which file each picture is that a frame shows.
var pozhilPictures = (() => {
    const ANIMATED = /\.gif$/i;
    /// Animated pictures whose files have been read, and whose elements haven't been looked at yet.
    const read = [];
    const ofElement = new WeakMap();
    const ofNumber = new Map();
    let pictureFile = null;

    pozhilFrames.whenReady(() => {
        pictureFile = Module._pozhil_picture_file;
        const { readFile } = FS;
        FS.readFile = (path, ...more) => {
            const data = readFile(path, ...more);
            if (ANIMATED.test(path)) {
                read.push(path);
            }
            return data;
        };
    });

    /// The elements of animated pictures were made in the order in which their files were read.
    function lookAtElements() {
        document.querySelectorAll('img.pozhil-input').forEach(element => {
            if (!ofElement.has(element)) {
                ofElement.set(element, element.pozhilData ? read.shift() : element.dataset.rawSrc);
            }
        });
    }

    return {
        /// The file of the picture that the drawing library knows by this number; empty if it isn't known.
        fileOf(number) {
            if (!ofNumber.has(number)) {
                ofNumber.set(number, UTF8ToString(pictureFile(number)));
            }
            return ofNumber.get(number);
        },
        /// The file of an animated picture, which is an element of its own.
        fileOfElement(element) {
            lookAtElements();
            return ofElement.get(element) ?? '';
        },
    };
})();
