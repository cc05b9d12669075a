// Keys that GLFW would keep for itself, though no program asks it for keys: Tab goes on to the next field, Backspace and
// the others do what the browser has them do.
pozhilFrames.atStart(() => {
    GLFW.onKeydown = event => GLFW.onKeyChanged(event.keyCode, 1);
});
