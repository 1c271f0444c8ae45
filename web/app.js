// SPDX-License-Identifier: GPL-3.0-or-later
// The page: starts the suite's worker with the files from storage, shows its
// windows, plays its sounds, stores its writes and answers its requests.
// Around the suite's windows, never inside them, it offers what only a
// browser needs: saved games to and from disk, the high score tables out and
// in, the licence.
import {Audio} from './audio.js';
import {pointerCursor} from './cards.js';
import {Channel} from './channel.js';
import {Renderer} from './render.js';
import {Storage} from './storage.js';

const HOME = '/home/cardhaven';
const params = new URLSearchParams(location.search);
const testing = params.has('test');
const desktop = document.getElementById('desktop');
const status = document.getElementById('status');
const storage = new Storage();
const audio = new Audio();
let suite = null;
// The service worker is registered two seconds after the suite is drawn, so
// that keeping the files for offline play does not slow the first start.
let markDrawn;
const firstDrawn = new Promise((resolve) => { markDrawn = resolve; });

// ---- message boxes ------------------------------------------------------------
const ICONS = {1: 'critical', 2: 'question', 3: 'exclamation', 4: 'information'};
const BUTTONS = {0: [['OK', 0]], 1: [['OK', 0], ['Cancel', 1]], 2: [['Yes', 2], ['No', 3]]};

function showMessageBox(box, answer) {
  const overlay = document.createElement('div');
  overlay.className = 'msgbox-overlay';
  const el = overlay.appendChild(document.createElement('div'));
  el.className = 'msgbox window';
  el.setAttribute('role', 'alertdialog');
  const title = box.title || "Quillmark's Card Haven";
  el.innerHTML = '<div class="titlebar"><span class="caption"></span></div><div class="msgbody">' +
    '<div class="icon"></div><div class="text"></div></div><div class="buttons"></div>';
  el.querySelector('.caption').textContent = title;
  el.setAttribute('aria-label', title);
  el.querySelector('.text').textContent = box.text;
  const icon = el.querySelector('.icon');
  if (ICONS[box.icon]) icon.classList.add(ICONS[box.icon]);
  else icon.remove();
  const buttons = BUTTONS[box.buttons] || BUTTONS[0];
  const done = (value) => {
    overlay.remove();
    document.removeEventListener('keydown', keys, true);
    answer(value);
  };
  for (const [label, value] of buttons) {
    const b = el.querySelector('.buttons').appendChild(document.createElement('button'));
    b.textContent = label;
    b.addEventListener('click', () => done(value));
  }
  // Return and Space press the button with the focus; Escape gives the box's
  // last answer (Cancel, No; OK in an OK-only box).
  const keys = (e) => {
    if (e.key !== 'Escape') return;
    e.preventDefault();
    e.stopPropagation();
    done(buttons[buttons.length - 1][1]);
  };
  document.addEventListener('keydown', keys, true);
  overlay.style.zIndex = '1000000';
  desktop.append(overlay);
  el.querySelector('.buttons button').focus();
}

// ---- the suite ------------------------------------------------------------------
class Suite {
  constructor(command) {
    this.channel = new Channel();
    this.renderer = new Renderer(desktop, (...event) => this.channel.send(...event), pointerCursor);
    this.worker = new Worker('worker.js');
    this.worker.onmessage = (e) => this.onMessage(e.data);
    this.worker.onerror = (e) => this.failed(e.message);
    this.command = command;
    this.ended = new Promise((resolve) => { this.resolveEnded = resolve; });
  }

  async start() {
    const files = await storage.all();
    const args = testing ? ['--test'] : [];
    if (this.command) args.push('--command', this.command);
    this.worker.postMessage({sab: this.channel.sab, files, screen: [screen.width, screen.height], args, home: HOME});
  }

  async onMessage(m) {
    switch (m.t) {
      case 'snap':
        this.renderer.apply(JSON.parse(m.b), m.n);
        if (!this.drawn && document.querySelector('.window:not([hidden])')) {
          this.drawn = performance.now();
          document.body.dataset.drawn = String(Math.round(this.drawn));
          markDrawn();
        }
        break;
      case 'msgbox':
        showMessageBox(JSON.parse(m.b), (value) => this.channel.send('answer', '', '', -1, '', 0, value));
        break;
      case 'wave':
        audio.playWave(JSON.parse(m.b));
        break;
      case 'music':
        if (JSON.parse(m.b)) audio.startMusic();
        else audio.stopMusic();
        break;
      case 'write':
        this.channel.reply((await storage.write(m.path, m.bytes)) ? 1 : 0);
        break;
      case 'open': {
        // A browser that refuses the new tab returns none: the selector then
        // gives its own failure message.
        let opened = null;
        try {
          if (!blockedPopup) opened = window.open(JSON.parse(m.b), '_blank');
          if (opened) opened.opener = null;
        } catch (err) {
          opened = null;
        }
        this.channel.reply(opened ? 1 : 0);
        break;
      }
      case 'ended':
        this.finish();
        break;
      default:
        break;
    }
  }

  failed(text) {
    console.error(text);
    this.finish();
  }

  finish() {
    this.worker.terminate();
    desktop.textContent = '';
    audio.stopMusic();
    this.resolveEnded();
  }

  stop() {
    this.channel.stop();
  }
}

// A test can make the browser refuse new tabs.
let blockedPopup = testing && params.has('nopopup');

function showEnded() {
  status.hidden = false;
  status.querySelector('.text').textContent = "Quillmark's Card Haven has ended.";
  const again = status.querySelector('button.again');
  again.hidden = false;
  again.focus();
}

async function run(command) {
  status.hidden = true;
  suite = new Suite(command);
  window.cardhaven = {suite, audio, stack: (cards) => suite.channel.sendLine(`stack\x1f${cards}`)};
  await suite.start();
  await suite.ended;
  suite = null;
  showEnded();
}

// ---- around the suite -----------------------------------------------------------
function download(name, bytes, type = 'application/octet-stream') {
  const a = document.createElement('a');
  a.href = URL.createObjectURL(new Blob([bytes], {type}));
  a.download = name;
  a.click();
  setTimeout(() => URL.revokeObjectURL(a.href), 1000);
}

function pickFile(accept) {
  return new Promise((resolve) => {
    const input = document.createElement('input');
    input.type = 'file';
    input.accept = accept;
    input.onchange = () => resolve(input.files[0] || null);
    input.click();
  });
}

async function savedGames() {
  return (await storage.all()).filter(([path]) => /\.sfl$/i.test(path));
}

const actions = {
  async downloadGame() {
    const games = await savedGames();
    if (!games.length) return alert('There is no saved Sumfall game in this browser yet.');
    const names = games.map(([p]) => p.slice(HOME.length + 1));
    const choice = games.length === 1 ? names[0] : prompt(`Which saved game?\n${names.join('\n')}`, names[0]);
    const game = games.find(([p]) => p.slice(HOME.length + 1) === choice);
    if (game) download(choice.replace(/^.*\//, ''), game[1]);
  },
  async openGame() {
    const file = await pickFile('.sfl');
    if (!file) return;
    const name = file.name.replace(/[^\w .-]/g, '_');
    const path = `${HOME}/${name}`;
    if (!(await storage.write(path, new Uint8Array(await file.arrayBuffer())))) {
      return alert('The browser refused to store the saved game.');
    }
    if (suite && !confirm('Card Haven starts again to open the saved game. Close the windows open now?')) return;
    if (suite) {
      suite.stop();
      await suite.ended;
    }
    run(path);
  },
  async exportTables() {
    const tables = (await storage.all()).filter(([p]) => !/\.sfl$/i.test(p));
    const out = {};
    for (const [path, bytes] of tables) out[path.slice(HOME.length + 1)] = btoa(String.fromCharCode(...bytes));
    download('cardhaven-tables.json', JSON.stringify(out, null, 1), 'application/json');
  },
  async importTables() {
    const file = await pickFile('.json');
    if (!file) return;
    let tables;
    try {
      tables = JSON.parse(await file.text());
    } catch (err) {
      return alert('That file holds no Card Haven tables.');
    }
    if (suite) return alert('Close Card Haven first: its windows would write over the imported tables.');
    for (const [name, data] of Object.entries(tables)) {
      if (!/^[\w .-]+$/.test(name) || /\.sfl$/i.test(name)) continue;
      await storage.write(`${HOME}/${name}`, Uint8Array.from(atob(data), (c) => c.charCodeAt(0)));
    }
    alert('The tables were imported.');
  },
};

async function main() {
  document.querySelectorAll('[data-action]').forEach((b) => b.addEventListener('click', () => actions[b.dataset.action]()));
  status.querySelector('button.again').addEventListener('click', () => run(''));
  if (!crossOriginIsolated) {
    // The service worker adds the isolation headers; the next load has them.
    if (navigator.serviceWorker && navigator.serviceWorker.controller === null && !sessionStorage.reloaded) {
      markDrawn();
      sessionStorage.reloaded = '1';
      await navigator.serviceWorker.ready;
      location.reload();
      return;
    }
    status.querySelector('.text').textContent = 'This browser cannot run Card Haven: it lacks shared memory.';
    return;
  }
  await storage.init();
  // One tab at a time: a second one says so instead of writing the same files.
  const granted = await navigator.locks.request('cardhaven-suite', {ifAvailable: true}, async (lock) => {
    if (!lock) return false;
    await run('');
    await new Promise(() => {});  // the lock is held while the page lives
    return true;
  });
  if (granted === false) {
    status.hidden = false;
    status.querySelector('.text').textContent = 'Card Haven is already open in another tab of this browser.';
    status.querySelector('button.again').hidden = true;
  }
}

// A new version is fetched in the background and taken at the next start;
// the player is told both times.
function watchVersions() {
  const version = document.documentElement.dataset.version;
  const note = document.getElementById('update');
  const last = localStorage.getItem('cardhaven.version');
  localStorage.setItem('cardhaven.version', version);
  if (last && last !== version) {
    note.textContent = `Card Haven was updated to version ${version}.`;
    note.hidden = false;
  }
  if (!('serviceWorker' in navigator)) return;
  firstDrawn.then(() => new Promise((resolve) => setTimeout(resolve, 2000)))
    .then(() => navigator.serviceWorker.register('sw.js')).then((registration) => {
    const waiting = () => {
      note.textContent = 'A new version of Card Haven is ready: it starts the next time you open the page.';
      note.hidden = false;
    };
    if (registration.waiting && navigator.serviceWorker.controller) waiting();
    registration.addEventListener('updatefound', () => {
      const fresh = registration.installing;
      fresh.addEventListener('statechange', () => {
        if (fresh.state === 'installed' && navigator.serviceWorker.controller) waiting();
      });
    });
  }).catch(() => {});
}
watchVersions();
main();
