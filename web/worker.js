// SPDX-License-Identifier: GPL-3.0-or-later
// The suite's own thread: loads the WebAssembly module, fills its home folder
// from the files the page read from storage, and runs the suite until its
// last window closes. It blocks in Atomics.wait wherever the logic waits.
importScripts('cardhaven-web.js');

async function loadFonts() {
  const faces = [['normal', 'fonts/DejaVuSans.woff2'], ['bold', 'fonts/DejaVuSans-Bold.woff2']];
  for (const [weight, url] of faces) {
    try {
      const face = new FontFace('DejaVu Sans', `url(${url})`, {weight});
      await face.load();
      self.fonts.add(face);
    } catch (err) {
      console.warn(`font ${url}: ${err}`);
    }
  }
}

onmessage = async (event) => {
  onmessage = null;
  const {sab, files, screen, args, home} = event.data;
  await loadFonts();
  const module = await CardHavenModule({
    ch: {ctl: new Int32Array(sab, 0, 8), buf: new Uint8Array(sab, 32), seen: 0, screen, home},
    print: (text) => console.log(text),
    printErr: (text) => console.error(text),
    preRun: [(m) => {
      m.FS.mkdirTree(home);
      for (const [path, bytes] of files) {
        m.FS.mkdirTree(path.slice(0, path.lastIndexOf('/')));
        m.FS.writeFile(path, bytes);
      }
    }],
  });
  module.callMain(args);
};
