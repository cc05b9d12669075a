// Fingers: one that stays presses when it goes; one that moves up or down scrolls, with a glide; one that moves sideways
// drags what it is on, and scrolls rows. Two are the browser's, which zooms the page.
var pozhilTouch = (() => {
    // Points that a finger may shake.
    const SLOP = 10;
    // Speeds are points in a millisecond; a glide loses all but a part of it in this time.
    const GLIDE = 325;
    const SLOWEST = 0.02;
    const FASTEST = 4;
    // Of a finger that rests before it goes, nothing glides.
    const LATEST = 100;
    // For so long after a touch browsers act as if a mouse had done it.
    const MIMICRY = 1000;

    /// The finger: where it was put down and where it is, and what it does: 'rest', 'scroll', 'drag', or 'other' than ours.
    let finger = null;
    /// What goes on after the finger has gone: speeds and the time of the last step.
    let glide = null;
    let lastTouch = -Infinity;

    const isField = target => target instanceof HTMLElement && target.matches('.pozhil-input');

    function claim(event) {
        if (event.cancelable) {
            event.preventDefault();
        }
    }

    function giveUp() {
        finger = null;
        glide = null;
        pozhilPointer.hold(false);
        pozhilPointer.leave();
    }

    function begin(event) {
        const [touch] = event.touches;
        glide = null;
        if (event.touches.length > 1 || pozhilFaults.isOf(event.target)) {
            giveUp();
            finger = { does: 'other' };
            return;
        }
        finger = { does: 'rest', target: event.target, left: touch.clientX, top: touch.clientY, x: touch.clientX,
                   y: touch.clientY, speedX: 0, speedY: 0, time: event.timeStamp };
        pozhilPointer.moveTo(finger.x, finger.y);
    }

    function decide(touch) {
        const across = Math.abs(touch.clientX - finger.left);
        const down = Math.abs(touch.clientY - finger.top);
        if (Math.max(across, down) < SLOP) {
            return 'rest';
        }
        if (down >= across) {
            return 'scroll';
        }
        return isField(finger.target) ? 'other' : 'drag';
    }

    function measureSpeed(touch, time) {
        const passed = Math.max(1, time - finger.time);
        const limited = speed => Math.max(-FASTEST, Math.min(FASTEST, speed));
        finger.speedX = limited((finger.x - touch.clientX) / passed);
        finger.speedY = limited((finger.y - touch.clientY) / passed);
        finger.time = time;
    }

    function move(event) {
        const [touch] = event.touches;
        if (!finger || finger.does === 'other') {
            return;
        }
        if (finger.does === 'rest') {
            finger.does = decide(touch);
            if (finger.does === 'drag') {
                pozhilPointer.hold(true);
            } else if (finger.does === 'other') {
                pozhilPointer.leave();
            }
        }
        if (finger.does === 'scroll') {
            claim(event);
            pozhilPointer.turnWheel(0, finger.y - touch.clientY);
        } else if (finger.does === 'drag') {
            claim(event);
            pozhilPointer.turnWheel(finger.x - touch.clientX, 0);
            // The finger may stray from the line on which it began.
            pozhilPointer.moveTo(touch.clientX, finger.top);
        }
        if (finger.does === 'scroll' || finger.does === 'drag') {
            measureSpeed(touch, event.timeStamp);
            finger.x = touch.clientX;
            finger.y = touch.clientY;
        }
    }

    function end(event) {
        lastTouch = event.timeStamp;
        if (!finger || event.touches.length > 0) {
            return;
        }
        const { does, target } = finger;
        const rested = event.timeStamp - finger.time > LATEST;
        if (does === 'rest' && event.type === 'touchend') {
            if (!isField(target)) {
                claim(event);
                document.activeElement?.blur();
            }
            pozhilPointer.tap();
        } else if (does === 'scroll' && !rested) {
            claim(event);
            glide = { x: 0, y: finger.speedY, time: event.timeStamp };
        } else if (does === 'drag') {
            claim(event);
            pozhilPointer.hold(false);
            glide = { x: rested ? 0 : finger.speedX, y: 0, time: event.timeStamp };
        } else {
            pozhilPointer.leave();
        }
        finger = null;
    }

    function step(now) {
        const passed = Math.max(0, now - glide.time);
        const kept = Math.exp(-passed / GLIDE);
        // What the speed comes to in this time while it fades.
        const way = GLIDE * (1 - kept);
        pozhilPointer.turnWheel(glide.x * way, glide.y * way);
        glide = { x: glide.x * kept, y: glide.y * kept, time: now };
        if (Math.max(Math.abs(glide.x), Math.abs(glide.y)) < SLOWEST) {
            glide = null;
            pozhilPointer.leave();
        }
    }

    const atTouch = act => event => {
        // GLFW would hold the button down for all of it.
        event.stopPropagation();
        act(event);
    };
    const listening = { capture: true, passive: false };
    window.addEventListener('touchstart', atTouch(begin), listening);
    window.addEventListener('touchmove', atTouch(move), listening);
    window.addEventListener('touchend', atTouch(end), listening);
    window.addEventListener('touchcancel', atTouch(end), listening);
    for (const mimicked of ['mousemove', 'mousedown', 'mouseup']) {
        window.addEventListener(mimicked, event => {
            if (event.timeStamp - lastTouch < MIMICRY) {
                event.stopImmediatePropagation();
            }
        }, true);
    }
    pozhilFrames.tick(() => {
        if (glide) {
            pozhilFrames.wake();
            step(performance.now());
        }
    });

    return { isMoving: () => finger !== null || glide !== null };
})();
