// SPDX-License-Identifier: GPL-3.0-or-later
// The suite's files in the browser's persistent storage: one IndexedDB
// record per file, its path as the key and its bytes as the value, each
// write one transaction, so a file is old or new, never half written.
const DB = 'cardhaven', STORE = 'files';

function open() {
  return new Promise((resolve, reject) => {
    const request = indexedDB.open(DB, 1);
    request.onupgradeneeded = () => request.result.createObjectStore(STORE);
    request.onsuccess = () => resolve(request.result);
    request.onerror = () => reject(request.error);
  });
}

export class Storage {
  // A browser that refuses storage altogether (some private windows) leaves
  // none: the suite then starts with no files, and every write fails as a
  // write to a full disk does.
  async init() {
    try {
      this.db = await open();
    } catch (err) {
      this.db = null;
      console.warn(`no storage: ${err}`);
    }
    if (navigator.storage && navigator.storage.persist) navigator.storage.persist().catch(() => {});
  }

  // [[path, Uint8Array], ...]
  all() {
    if (!this.db) return Promise.resolve([]);
    return new Promise((resolve, reject) => {
      const out = [];
      const tx = this.db.transaction(STORE, 'readonly');
      const cursor = tx.objectStore(STORE).openCursor();
      cursor.onsuccess = () => {
        const c = cursor.result;
        if (!c) return resolve(out);
        out.push([c.key, new Uint8Array(c.value)]);
        c.continue();
      };
      cursor.onerror = () => reject(cursor.error);
    });
  }

  // Resolves true once the bytes are stored, false when storage refused them.
  write(path, bytes) {
    return this.writeAll([[path, bytes]]);
  }

  // [[path, Uint8Array], ...] in one transaction: all of them stored, or none.
  writeAll(files) {
    return new Promise((resolve) => {
      let tx;
      if (!this.db) {
        resolve(false);
        return;
      }
      try {
        tx = this.db.transaction(STORE, 'readwrite');
        for (const [path, bytes] of files) tx.objectStore(STORE).put(bytes, path);
      } catch (err) {
        try { tx?.abort(); } catch (ended) { /* nothing was stored */ }
        resolve(false);
        return;
      }
      tx.oncomplete = () => resolve(true);
      tx.onerror = tx.onabort = () => resolve(false);
    });
  }
}
