// Serves built pages as the compiler does, so that tests in a browser don't wait for the compiler's port.

import { FolderServer } from './folder_server.js';

// What stands in every page after its first build, and that nothing is wrong with it: nothing has changed since.
const SAID = { '/version': '2', '/version/fault': '{}' };

export class PageServer extends FolderServer {
    answer(path, response) {
        if (path in SAID) {
            response.end(SAID[path]);
            return true;
        }
        return super.answer(path, response);
    }
}
