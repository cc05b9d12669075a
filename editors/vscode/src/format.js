// One style for a program, by `பொழில் வடிவமை -`.

const { execute } = require('./command.js');

/// The text of a program in the one style; null where there is nothing to change, or the program has faults.
async function format(command, text) {
    const { status, stdout } = await execute(command, ['format', '-'], text);
    return status === 0 && stdout !== text ? stdout : null;
}

module.exports = { format };
