// A page where nothing happens draws nothing. Whatever a user does wakes it, and so does whoever calls the program; what moves
// by itself keeps it awake: it draws something else each time, or asks for the time.
(() => {
    // For so long, in milliseconds, and for so many frames everything must be the same before the page rests: programs may
    // count frames in silence.
    const TIME_TO_REST = 1000;
    const FRAMES_TO_REST = 5;

    const clock = performance.now.bind(performance);
    let sameFrames = 0;
    let sameSince = 0;
    let formerSum = 0;
    let isFresh = true;
    let isDrawing = false;
    let askedForTime = false;

    const { wake } = pozhilFrames;

    pozhilFrames.whenWoken(() => {
        sameFrames = 0;
        isFresh = true;
    });
    pozhilFrames.drawWhen(() => sameFrames < FRAMES_TO_REST || clock() - sameSince < TIME_TO_REST);
    pozhilFrames.before(() => {
        // While something happens the frames aren't compared, which would cost time.
        pozhilDrawing.watchSum(!isFresh);
        askedForTime = false;
        isDrawing = true;
    });
    pozhilFrames.after(() => {
        isDrawing = false;
        const sum = pozhilDrawing.sum();
        const isSame = !isFresh && !askedForTime && sum === formerSum;
        sameFrames = isSame ? sameFrames + 1 : 0;
        if (!isSame) {
            sameSince = clock();
        }
        formerSum = sum;
        isFresh = false;
    });

    for (const owner of [performance, Date]) {
        const ask = owner.now.bind(owner);
        owner.now = () => {
            askedForTime ||= isDrawing;
            return ask();
        };
    }

    // Browsers send a move for each frame that may have changed what is under the pointer.
    let pointer = '';
    window.addEventListener('mousemove', event => {
        const place = event.clientX + ' ' + event.clientY;
        if (place !== pointer) {
            pointer = place;
            wake();
        }
    }, true);

    const HAPPENINGS = ['mousedown', 'mouseup', 'wheel', 'touchstart', 'touchmove', 'touchend', 'touchcancel',
        'keydown', 'keyup', 'input', 'paste', 'focusin', 'focusout', 'focus', 'blur', 'resize', 'scroll', 'load', 'pageshow'];
    for (const happening of HAPPENINGS) {
        window.addEventListener(happening, wake, { capture: true, passive: true });
    }
    for (const happening of ['mouseleave', 'visibilitychange']) {
        document.addEventListener(happening, wake, true);
    }
    document.fonts.addEventListener('loadingdone', wake);
    const { add } = document.fonts;
    document.fonts.add = function (face) {
        wake();
        return add.call(this, face);
    };

    /// Scripts of the page may call the program at any time. What is called while a frame is drawn belongs to it.
    function waking(call) {
        return (...values) => {
            if (!isDrawing) {
                wake();
            }
            return call(...values);
        };
    }

    pozhilFrames.whenReady(() => {
        const { cwrap } = Module;
        Module.cwrap = (...signature) => waking(cwrap(...signature));
        for (const name of Object.keys(Module)) {
            if (typeof Module[name] === 'function' && (name === 'ccall' || /^_|[^\x00-\x7f]/.test(name))) {
                Module[name] = waking(Module[name]);
            }
        }
    });
})();
