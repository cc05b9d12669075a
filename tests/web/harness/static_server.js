// Serves sites from a path below the root, as any web host does, and tells what was asked for in vain.

import { FolderServer } from './folder_server.js';

export class StaticServer extends FolderServer {
    missing = [];

    constructor() {
        super('/எங்கள் தளம்/செயலிகள்/');
    }

    answer(path, response) {
        const isThere = super.answer(path, response);
        if (!isThere) {
            this.missing.push(path);
        }
        return isThere;
    }
}
