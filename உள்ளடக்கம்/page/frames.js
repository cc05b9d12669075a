// What happens around each frame of the program. The scripts of the page meet here.
var pozhilFrames = (() => {
    const starts = [];
    const readies = [];
    const ticks = [];
    const conditions = [() => window.innerWidth > 0 && window.innerHeight > 0];
    const wakings = [];
    const before = [];
    const after = [];
    const doAll = works => works.forEach(work => work());
    return {
        /// Calls `work` when the libraries of the program are there.
        atStart: work => { starts.push(work); },
        /// Calls `work` when the program itself is there, before it begins.
        whenReady: work => { readies.push(work); },
        /// Calls `work` whenever the browser could show a frame.
        tick: work => { ticks.push(work); },
        /// Only when all conditions hold, a frame is drawn.
        drawWhen: condition => { conditions.push(condition); },
        /// Something has happened: the page draws, if it rested.
        wake: () => doAll(wakings),
        /// Calls `work` whenever something has happened.
        whenWoken: work => { wakings.push(work); },
        /// Calls `work` before each frame that is drawn.
        before: work => { before.push(work); },
        /// Calls `work` after each frame that has been drawn.
        after: work => { after.push(work); },
        // What index.js looks for in Module.
        hooks: {
            preRun: [() => doAll(starts)],
            onRuntimeInitialized: () => doAll(readies),
            preMainLoop() {
                doAll(ticks);
                const isDrawn = conditions.every(holds => holds());
                if (isDrawn) {
                    doAll(before);
                }
                return isDrawn;
            },
            postMainLoop: () => doAll(after),
        },
    };
})();
