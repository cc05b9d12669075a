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
    function fileOfElement(element) {
        if (!ofElement.has(element)) {
            ofElement.set(element, element.pozhilData ? read.shift() : element.dataset.rawSrc);
        }
        return ofElement.get(element);
    }

    return {
        /// The file of the picture that the drawing library knows by this number; empty if it isn't known.
        fileOf(number) {
            if (!ofNumber.has(number)) {
                ofNumber.set(number, UTF8ToString(pictureFile(number)));
            }
            return ofNumber.get(number);
        },
        /// Gives animated pictures, which are elements of their own, the names that `nameOf` has for their files.
        nameElements(nameOf) {
            for (const element of document.querySelectorAll('img.pozhil-input')) {
                const file = fileOfElement(element);
                const name = element.style.display === 'none' ? '' : nameOf(file);
                if (element.getAttribute('alt') !== name) {
                    element.alt = name;
                }
            }
        },
    };
})();
