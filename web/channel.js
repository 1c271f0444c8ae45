// SPDX-License-Identifier: GPL-3.0-or-later
// The page's half of the shared memory the suite's worker blocks on (see
// src/web/bridge.js for the layout). Input goes into a queue of lines, one
// event a line, and wakes the worker; answers to its requests go in a slot.
export class Channel {
  constructor(queueBytes = 256 * 1024) {
    this.sab = new SharedArrayBuffer(32 + queueBytes);
    this.ctl = new Int32Array(this.sab, 0, 8);
    this.buf = new Uint8Array(this.sab, 32);
    this.encoder = new TextEncoder();
    this.sent = 0;  // lines queued so far; the worker counts the same lines
  }

  // kind, form, control, index, text, key, value, width, height. Returns the
  // line's number, or 0 when the queue was full and the line was dropped.
  send(kind, form = '', control = '', index = -1, text = '', key = 0, value = 0, width = 0, height = 0) {
    const clean = (s) => String(s).replace(/[\x1e\x1f]/g, ' ');
    const line = [kind, form, control, index < 0 ? '' : index, clean(text), key, value, width, height].join('\x1f');
    return this.sendLine(line) ? this.sent : 0;
  }

  sendLine(line) {
    const bytes = this.encoder.encode(line + '\x1e');
    const ctl = this.ctl;
    while (Atomics.compareExchange(ctl, 1, 0, 1) !== 0) { /* the worker holds it for a copy only */ }
    const used = ctl[2];
    const fits = used + bytes.length <= this.buf.length;
    if (fits) {
      this.buf.set(bytes, used);
      ctl[2] = used + bytes.length;
      this.sent += 1;
    }
    Atomics.store(ctl, 1, 0);
    Atomics.add(ctl, 0, 1);
    Atomics.notify(ctl, 0);
    return fits;
  }

  reply(value) {
    Atomics.store(this.ctl, 5, value);
    Atomics.add(this.ctl, 4, 1);
    Atomics.notify(this.ctl, 4);
  }

  stop() {
    Atomics.store(this.ctl, 3, 1);
    Atomics.notify(this.ctl, 3);
    Atomics.add(this.ctl, 0, 1);
    Atomics.notify(this.ctl, 0);
  }
}
