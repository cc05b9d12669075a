// A page where nothing happens draws nothing. Whatever a user does wakes it, and so does whoever calls the program; what moves
// by itself keeps it awake: it draws something else each time, asks for the time, or counts on in silence. A program whose
// memory is as it was once before, and that has drawn the same ever since, will never draw anything else.
(() => {
    // So many frames what happened may take to show: wheels that nobody takes, dialogs, what comes to lie under the pointer.
    const FRAMES_TO_SETTLE = 5;
    // After so many looks at its memory a program is looked at more rarely, which costs time.
    const EAGER_LOOKS = 30;
    const FRAMES_BETWEEN_LOOKS = 60;
    const MOST_KEPT = 1000;

    let sameFrames = 0;
    let formerSum = 0;
    /// What the memory was after the frames that were the same.
    const memories = new Set();
    let sumMemory = null;
    let isResting = false;
    let isFresh = true;
    let isDrawing = false;
    let askedForTime = false;

    const { wake } = pozhilFrames;

    function beginAnew() {
        sameFrames = 0;
        memories.clear();
        isResting = false;
    }

    /// The loop of the program, while it waits for the page to wake. A page at rest doesn't even ask the browser for frames.
    let heldLoop = null;
    let askForFrame = null;

    pozhilFrames.atStart(() => {
        askForFrame = Browser.requestAnimationFrame.bind(Browser);
        Browser.requestAnimationFrame = loop => {
            if (isResting) {
                heldLoop = loop;
            } else {
                askForFrame(loop);
            }
        };
    });

    function goOn() {
        if (heldLoop) {
            const loop = heldLoop;
            heldLoop = null;
            askForFrame(loop);
        }
    }

    /// Whether the memory is as it was after one of the frames that were the same.
    function returns() {
        const look = sameFrames - FRAMES_TO_SETTLE;
        if (look < 0 || (look > EAGER_LOOKS && look % FRAMES_BETWEEN_LOOKS !== 0)) {
            return false;
        }
        const memory = sumMemory();
        if (memories.has(memory)) {
            return true;
        }
        if (memories.size === MOST_KEPT) {
            memories.clear();
        }
        memories.add(memory);
        return false;
    }

    pozhilFrames.whenWoken(() => {
        beginAnew();
        isFresh = true;
        goOn();
    });
    pozhilFrames.drawWhen(() => !isResting);
    pozhilFrames.before(() => {
        // While something happens the frames aren't compared, which would cost time.
        pozhilDrawing.watchSum(!isFresh);
        askedForTime = false;
        isDrawing = true;
    });
    pozhilFrames.after(() => {
        isDrawing = false;
        const sum = pozhilDrawing.sum();
        if (isFresh || askedForTime || sum !== formerSum) {
            beginAnew();
        } else {
            sameFrames++;
            isResting = returns();
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
        sumMemory = Module._pozhil_memory_sum;
        const { cwrap } = Module;
        Module.cwrap = (...signature) => waking(cwrap(...signature));
        for (const name of Object.keys(Module)) {
            if (typeof Module[name] === 'function' && (name === 'ccall' || /^_|[^\x00-\x7f]/.test(name))) {
                Module[name] = waking(Module[name]);
            }
        }
    });
})();
