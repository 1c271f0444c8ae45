// SPDX-License-Identifier: GPL-3.0-or-later
// The suite's sounds through Web Audio. A browser starts audio only after a
// gesture: until the first click or key, requests are kept (the music's
// state, and the last wave of the past second) and played at the unlock.
export class Audio {
  constructor() {
    this.context = null;
    this.buffers = new Map();
    this.wave = null;
    this.music = null;
    this.musicWanted = false;
    this.pendingWave = null;
    this.requests = [];  // what the page was asked to play, for the tests
    const unlock = () => this.unlock();
    for (const type of ['pointerdown', 'keydown', 'touchend']) document.addEventListener(type, unlock, {capture: true});
  }

  unlock() {
    if (this.context) return;
    this.context = new AudioContext();
    if (this.musicWanted) this.startMusic();
    if (this.pendingWave && performance.now() - this.pendingWave.at < 1000) this.playWave(this.pendingWave.name);
    this.pendingWave = null;
  }

  async buffer(url) {
    if (!this.buffers.has(url)) {
      this.buffers.set(url, fetch(url).then((r) => r.arrayBuffer()).then((b) => this.context.decodeAudioData(b)));
    }
    return this.buffers.get(url);
  }

  // "\Chord.wav" plays sounds/Chord.ogg; a new wave cuts the one playing.
  async playWave(name) {
    const file = name.replace(/^.*[\\/]/, '').replace(/\.wav$/i, '');
    this.requests.push({wave: file, at: performance.now(), unlocked: !!this.context});
    if (!this.context) {
      this.pendingWave = {name, at: performance.now()};
      return;
    }
    if (this.wave) this.wave.stop();
    const source = this.context.createBufferSource();
    this.wave = source;
    try {
      source.buffer = await this.buffer(`sounds/${file}.ogg`);
    } catch (err) {
      return;
    }
    if (this.wave === source) {
      source.connect(this.context.destination);
      source.start();
    }
  }

  async startMusic() {
    this.musicWanted = true;
    this.requests.push({music: true, at: performance.now(), unlocked: !!this.context});
    if (!this.context) return;
    this.stopMusic();
    this.musicWanted = true;
    const source = this.context.createBufferSource();
    this.music = source;
    try {
      source.buffer = await this.buffer('sounds/tune.ogg');
    } catch (err) {
      return;
    }
    if (this.music === source) {
      source.connect(this.context.destination);
      source.start();
    }
  }

  stopMusic() {
    this.musicWanted = false;
    if (this.music) {
      try { this.music.stop(); } catch (err) { /* not started yet */ }
    }
    this.music = null;
  }
}
