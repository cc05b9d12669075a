// What happens around each frame of the program. The scripts of the page meet here.
var pozhilFrames = (() => {
    const before = [];
    const after = [];
    const starts = [];
    return {
        /// Calls `work` before each frame.
        before(work) {
            before.push(work);
        },
        /// Calls `work` after each frame.
        after(work) {
            after.push(work);
        },
        /// Calls `work` when the program is there but has not begun.
        atStart(work) {
            starts.push(work);
        },
        // What index.js looks for in Module.
        hooks: {
            preRun: [() => starts.forEach(work => work())],
            preMainLoop() {
                if (window.innerWidth === 0 || window.innerHeight === 0) {
                    return false;
                }
                before.forEach(work => work());
                return true;
            },
            postMainLoop() {
                after.forEach(work => work());
            },
        },
    };
})();
