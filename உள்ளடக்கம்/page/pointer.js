// The pointer as the program sees it, frame by frame. The program itself listens to the mouse; here is what it doesn't know:
// pointers that go, buttons that are let go elsewhere, wheels that nobody wanted.
var pozhilPointer = (() => {
    // Where the pointer is over nothing.
    const NOWHERE = -9999;
    // What of the wheel nobody took in so many frames isn't meant for what comes to lie under the pointer later.
    const FRAMES_FOR_WHEEL = 3;

    let isTapping = false;
    let target = null;
    let framesWithWheel = 0;

    function moveTo(x, y) {
        const { left, top } = document.getElementById('canvas').getBoundingClientRect();
        window.mouseX = x - left;
        window.mouseY = y - top;
    }

    function leave() {
        window.mouseX = NOWHERE;
        window.mouseY = NOWHERE;
    }

    /// Holds the button or lets it go, without a press: sliders ask for the button itself.
    function hold(isDown) {
        window.mouseDownState = isDown ? 1 : 0;
        if (typeof GLFW !== 'undefined' && GLFW.active) {
            GLFW.active.buttons = isDown ? GLFW.active.buttons | 1 : GLFW.active.buttons & ~1;
        }
    }

    /// Presses where the pointer is, for one frame; after it the pointer leaves.
    /// @param area what is meant by that, { x, y, width, height }, if it isn't just what lies on top there
    function tap(area = null) {
        target = area;
        hold(true);
        window.mouseClicked = 1;
        isTapping = true;
    }

    /// The area of the press that the next frame gets, null if there is none.
    function takeTarget() {
        const area = target;
        target = null;
        return area;
    }

    function turnWheel(x, y) {
        window.wheelDeltaX += x;
        window.wheelDelta += y;
    }

    pozhilFrames.after(() => {
        if (isTapping) {
            isTapping = false;
            hold(false);
            leave();
        }
        framesWithWheel = window.wheelDelta || window.wheelDeltaX ? framesWithWheel + 1 : 0;
        if (framesWithWheel >= FRAMES_FOR_WHEEL) {
            window.wheelDelta = 0;
            window.wheelDeltaX = 0;
        }
    });

    document.documentElement.addEventListener('mouseleave', leave);
    window.addEventListener('mouseup', () => hold(false), true);
    window.addEventListener('blur', () => hold(false));
    // With Ctrl the wheel zooms the page.
    window.addEventListener('wheel', event => {
        if (event.ctrlKey) {
            event.stopImmediatePropagation();
        }
    }, true);

    return { moveTo, leave, hold, tap, takeTarget, turnWheel };
})();
