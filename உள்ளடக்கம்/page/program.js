// index.js takes over whatever stands in Module.
var Module = { canvas: document.getElementById('canvas'), ...pozhilLoading.hooks, ...pozhilFrames.hooks };
