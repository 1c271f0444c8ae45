// SPDX-License-Identifier: GPL-3.0-or-later
// The worker's half of the browser platform (see webplatform.h), linked into
// the module as a JavaScript library. Module.ch holds what the worker set up:
//   ctl   Int32Array on shared memory: [0] input count, [1] queue lock,
//         [2] bytes queued, [3] stop, [4] reply count, [5] reply value
//   buf   Uint8Array on shared memory: queued input lines
//   seen  the input count at the last take
//   screen [width, height] of the screen in pixels
mergeInto(LibraryManager.library, {
  ch_now: function () {
    return performance.now();
  },
  ch_wall: function (p) {
    var d = new Date();
    var f = [d.getFullYear(), d.getMonth() + 1, d.getDate(), d.getHours(), d.getMinutes(), d.getSeconds(),
             d.getMilliseconds()];
    for (var i = 0; i < 7; i++) HEAP32[(p >> 2) + i] = f[i];
  },
  ch_take_input: function () {
    var s = Module['ch'], ctl = s.ctl;
    while (Atomics.compareExchange(ctl, 1, 0, 1) !== 0) {}
    var n = ctl[2], text = '';
    if (n > 0) {
      text = new TextDecoder().decode(s.buf.slice(0, n));
      ctl[2] = 0;
    }
    s.seen = Atomics.load(ctl, 0);
    Atomics.store(ctl, 1, 0);
    return n > 0 ? allocateUTF8(text) : 0;
  },
  ch_wait_input: function (ms) {
    var s = Module['ch'], ctl = s.ctl;
    if (!Atomics.load(ctl, 3) && Atomics.load(ctl, 0) === s.seen) Atomics.wait(ctl, 0, s.seen, ms);
    return Atomics.load(ctl, 3);
  },
  ch_sleep: function (ms) {
    var ctl = Module['ch'].ctl;
    if (!Atomics.load(ctl, 3)) Atomics.wait(ctl, 3, 0, ms);
    return Atomics.load(ctl, 3);
  },
  ch_post: function (type, body) {
    postMessage({t: UTF8ToString(type), b: UTF8ToString(body)});
  },
  // A snapshot, with the number of the last input line the logic has taken.
  ch_post_snapshot: function (body, linesTaken) {
    postMessage({t: 'snap', b: UTF8ToString(body), n: linesTaken});
  },
  ch_request__deps: ['$chRequest'],
  ch_request: function (type, body) {
    return chRequest({t: UTF8ToString(type), b: UTF8ToString(body)});
  },
  // Posts a message the page answers with a number, and waits for it.
  $chRequest: function (message, transfer) {
    var ctl = Module['ch'].ctl;
    var count = Atomics.load(ctl, 4);
    message.reply = true;
    postMessage(message, transfer || []);
    Atomics.wait(ctl, 4, count);
    return Atomics.load(ctl, 5);
  },
  ch_text_width: function (text, pixels, bold) {
    var s = Module['ch'];
    if (!s.ctx) s.ctx = new OffscreenCanvas(1, 1).getContext('2d');
    s.ctx.font = (bold ? 'bold ' : '') + pixels + 'px "DejaVu Sans", sans-serif';
    return s.ctx.measureText(UTF8ToString(text)).width;
  },
  ch_screen: function (which) {
    return Module['ch'].screen[which];
  },
  // Every whole-file write ends in a rename over the target: the page stores
  // the new bytes as one transaction first, and a refused store fails the
  // rename, so the old file stays in memory and in storage alike.
  ch_mirror_files__deps: ['$chRequest', '$FS'],
  ch_mirror_files: function () {
    var rename = FS.rename;
    FS.rename = function (from, to) {
      if (to.indexOf(Module['ch'].home + '/') === 0) {
        var bytes = FS.readFile(from);
        if (!chRequest({t: 'write', path: to, bytes: bytes}, [bytes.buffer])) throw new FS.ErrnoError(29);
      }
      return rename.call(FS, from, to);
    };
  },
});
