// The system may take the drawing surface from a page, as it does with many open ones. With a new surface the program begins
// anew; what the user typed comes back with it.
(() => {
    const PATIENCE = 4000;

    let isLost = false;

    pozhilFrames.drawWhen(() => !isLost);
    const canvas = document.getElementById('canvas');
    canvas.addEventListener('webglcontextlost', event => {
        // Otherwise there will be no new one.
        event.preventDefault();
        isLost = true;
        setTimeout(() => {
            pozhilLoading.fail('உலாவி இந்தப் பக்கத்தின் வரைபரப்பை எடுத்துக்கொண்டது. அது திரும்பக் கிடைத்ததும் பக்கம் தானாகத் '
                + 'தொடரும்; இல்லையென்றால் பக்கத்தைப் புதுப்பிக்கவும்.');
        }, PATIENCE);
    });
    canvas.addEventListener('webglcontextrestored', () => location.reload());
})();
