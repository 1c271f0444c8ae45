// SPDX-License-Identifier: GPL-3.0-or-later
// The page: starts the suite's worker with the files from storage, shows its
// windows, plays its sounds, stores its writes and answers its requests.
// Around the suite's windows, never inside them, it offers what only a
// browser needs: saved games to and from disk, the high score tables out and
// in, the licence.
import {Audio} from './audio.js';
import {pointerCursor} from './cards.js';
import {Channel} from './channel.js';
import {Renderer, setMnemonicText} from './render.js';
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
const BUTTONS = {0: [['OK', 0]], 1: [['OK', 0], ['Cancel', 1]], 2: [['&Yes', 2], ['&No', 3]]};
let closeMessageBox = null;

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
  const close = () => {
    overlay.remove();
    document.removeEventListener('keydown', keys, true);
    closeMessageBox = null;
  };
  const done = (value) => {
    close();
    answer(value);
  };
  const pressable = [];
  for (const [label, value] of buttons) {
    const b = el.querySelector('.buttons').appendChild(document.createElement('button'));
    b.mnemonic = setMnemonicText(b, label);
    b.addEventListener('click', () => done(value));
    pressable.push(b);
  }
  // Return and Space press the button with the focus (the first when the focus
  // is elsewhere), the arrows move the focus between the buttons, Y and N
  // answer Yes and No, and Escape gives the box's last answer (Cancel, No; OK
  // in an OK-only box).
  const keys = (e) => {
    const at = pressable.indexOf(document.activeElement);
    const letter = /^Key[A-Z]$/.test(e.code) ? e.code.slice(3).toLowerCase() : e.key.toLowerCase();
    const named = pressable.find((b) => b.mnemonic && b.mnemonic === letter);
    if (e.key === 'Escape') {
      done(buttons[buttons.length - 1][1]);
    } else if (e.key === 'Enter' || e.key === ' ') {
      done(buttons[Math.max(0, at)][1]);
    } else if (/^Arrow/.test(e.key)) {
      const n = pressable.length, step = e.key === 'ArrowLeft' || e.key === 'ArrowUp' ? -1 : 1;
      pressable[(Math.max(0, at) + step + n) % n].focus();
    } else if (e.key === 'Tab') {
      // The focus goes round the box's buttons only.
      const n = pressable.length;
      pressable[(((at + (e.shiftKey ? -1 : 1)) % n) + n) % n].focus();
    } else if (named && !e.ctrlKey && !e.metaKey) {
      named.click();
    } else {
      return;
    }
    e.preventDefault();
    e.stopPropagation();
  };
  document.addEventListener('keydown', keys, true);
  overlay.style.zIndex = '1000000';
  desktop.append(overlay);
  pressable[0].focus();
  closeMessageBox = close;
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
    this.renderer.detach();
    if (closeMessageBox) closeMessageBox();
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

const inHome = (path) => path.slice(HOME.length + 1);
const isSavedGame = (name) => /\.sfl$/i.test(name);
const isTable = (name) => /^[\w .-]+\.txt$/i.test(name);

function toBase64(bytes) {
  let text = '';
  for (const b of bytes) text += String.fromCharCode(b);
  return btoa(text);
}

// The tables of an exported file, [[name, bytes], ...], or null when the file
// is not one: every entry must be a table's name with its bytes in base64.
function readTables(text) {
  let tables;
  try {
    tables = JSON.parse(text);
  } catch (err) {
    return null;
  }
  if (!tables || typeof tables !== 'object' || Array.isArray(tables)) return null;
  const out = [];
  for (const [name, data] of Object.entries(tables)) {
    if (!isTable(name) || typeof data !== 'string' || data.length > 1 << 20) return null;
    try {
      out.push([name, Uint8Array.from(atob(data), (c) => c.charCodeAt(0))]);
    } catch (err) {
      return null;
    }
  }
  return out.length ? out : null;
}

// The suite's windows close, without their own questions, before the page
// changes its files; it then starts again with what storage holds.
async function stopSuite(question) {
  if (!suite) return true;
  if (!confirm(question)) return false;
  suite.stop();
  await suite.ended;
  return true;
}

// A game opened from disk keeps its name, as a saved game of this browser
// (.sfl added where it lacks it); a different game of that name already here
// is kept, and the new one takes the next free name.
function freeName(name, bytes, files) {
  const stem = name.replace(/[^\w .-]/g, '_').replace(/^\.+/, '').replace(/\.sfl$/i, '') || 'saved';
  for (let n = 1; ; n++) {
    const candidate = `${stem}${n > 1 ? ` (${n})` : ''}.sfl`;
    const same = files.find(([p]) => inHome(p).toLowerCase() === candidate.toLowerCase());
    if (!same) return candidate;
    if (same[1].length === bytes.length && same[1].every((b, i) => b === bytes[i])) return inHome(same[0]);
  }
}

const actions = {
  async downloadGame() {
    const games = (await storage.all()).filter(([p]) => isSavedGame(p));
    if (!games.length) return alert('There is no saved Sumfall game in this browser yet.');
    const names = games.map(([p]) => inHome(p));
    const choice = games.length === 1 ? names[0] : prompt(`Which saved game?\n${names.join('\n')}`, names[0]);
    const game = games.find(([p]) => inHome(p) === choice);
    if (game) download(choice.replace(/^.*\//, ''), game[1]);
    else if (choice !== null) alert(`There is no saved game named ${choice}.`);
  },
  async openGame() {
    const file = await pickFile('.sfl');
    if (!file) return;
    const bytes = new Uint8Array(await file.arrayBuffer());
    const path = `${HOME}/${freeName(file.name, bytes, await storage.all())}`;
    const running = !!suite;
    if (!(await stopSuite('Card Haven starts again to open the saved game. Close the windows open now?'))) return;
    if (await storage.write(path, bytes)) return run(path);
    alert('The browser refused to store the saved game.');
    if (running) run('');
  },
  async exportTables() {
    const out = {};
    for (const [path, bytes] of await storage.all()) if (isTable(inHome(path))) out[inHome(path)] = toBase64(bytes);
    if (!Object.keys(out).length) return alert('There is no high score table in this browser yet.');
    download('cardhaven-high-scores.json', JSON.stringify(out, null, 1), 'application/json');
  },
  // The tables of the file replace those of the same names; the others stay.
  async importTables() {
    const file = await pickFile('.json,application/json');
    if (!file) return;
    const tables = readTables(await file.text());
    if (!tables) return alert('That file holds no Card Haven high score tables.');
    const running = !!suite;
    if (!(await stopSuite('Card Haven starts again to take the imported tables. Close the windows open now?'))) return;
    if (!(await storage.writeAll(tables.map(([name, bytes]) => [`${HOME}/${name}`, bytes])))) {
      alert('The browser refused to store the tables: none was imported.');
    } else {
      alert(`${tables.length === 1 ? 'One table was' : `${tables.length} tables were`} imported.`);
    }
    if (running) run('');
  },
};
// What writes files is for the tab that runs the suite; the others may read.
const WRITES = new Set(['openGame', 'importTables']);
let holdsSuite = false;

function act(name) {
  if (storage.db === undefined) return alert('Card Haven has not started yet.');
  if (WRITES.has(name) && !holdsSuite) {
    return alert('Card Haven is open in another tab of this browser: do this there.');
  }
  return actions[name]();
}

async function main() {
  document.querySelectorAll('[data-action]').forEach((b) => b.addEventListener('click', () => act(b.dataset.action)));
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
    holdsSuite = true;
    if (await takeNewVersion()) return true;
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

// A new version is fetched in the background and waits beside the one
// running; the next start takes it, and the player is told both times.
async function takeNewVersion() {
  const registration = await navigator.serviceWorker?.getRegistration();
  if (!registration?.waiting || !navigator.serviceWorker.controller) return false;
  const changed = new Promise((resolve) => {
    navigator.serviceWorker.addEventListener('controllerchange', () => resolve(true), {once: true});
    setTimeout(() => resolve(false), 5000);
  });
  registration.waiting.postMessage('take');
  if (!(await changed)) return false;
  location.reload();
  return true;
}

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
    // The browser may have begun fetching it before this registration.
    const watch = (fresh) => fresh?.addEventListener('statechange', () => {
      if (fresh.state === 'installed' && navigator.serviceWorker.controller) waiting();
    });
    if (registration.waiting && navigator.serviceWorker.controller) waiting();
    watch(registration.installing);
    registration.addEventListener('updatefound', () => watch(registration.installing));
  }).catch(() => {});
}
watchVersions();
main();
