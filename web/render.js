// SPDX-License-Identifier: GPL-3.0-or-later
// Draws the suite's windows as elements of the page from the model's
// snapshots, and turns what the player does into input for the worker.
// Positions are in twips, 15 to the pixel at design size; the frame of a
// window has the desktop's metrics, so a form's width and height in twips
// give the same client area as on the desktop.
import {cardStyle} from './cards.js';

export const FRAME = {border: 4, title: 19, menu: 19};
export const px = (tw) => (tw >= 0 ? Math.trunc((tw + 7) / 15) : -Math.trunc((-tw + 7) / 15));
const WINDOWED = new Set(['button', 'textbox', 'checkbox', 'option', 'frame', 'picture', 'statusbar',
  'progressbar', 'listbox', 'filelist', 'dirlist', 'drivelist']);
const PAINTED = new Set(['label', 'image', 'frame', 'picture']);

export function rgb(bgr) {
  return `rgb(${bgr & 255},${(bgr >> 8) & 255},${(bgr >> 16) & 255})`;
}

export function fontCss(size, bold) {
  // Points at 96 to the inch; DejaVu runs a tenth wider than the fonts the layouts were made for.
  const pixels = Math.max(1, Math.round(size * 96 / 72 * 0.9));
  return `${bold ? 'bold ' : ''}${pixels}px "DejaVu Sans", sans-serif`;
}

// "&File" shows F underlined and makes it the mnemonic; "&&" is an ampersand.
export function setMnemonicText(el, text) {
  el.textContent = '';
  let mnemonic = '';
  for (let i = 0; i < text.length; i++) {
    const c = text[i];
    if (c === '&' && i + 1 < text.length) {
      const next = text[++i];
      if (next === '&') {
        el.append('&');
      } else {
        const u = document.createElement('u');
        u.textContent = next;
        el.append(u);
        if (!mnemonic) mnemonic = next.toLowerCase();
      }
    } else {
      el.append(c);
    }
  }
  return mnemonic;
}

const POINTERS = {1: 'default', 2: 'crosshair', 3: 'text', 11: 'wait', 12: 'not-allowed', 13: 'progress'};

// Sets a style property of a control's element only when it changes: a count-up
// or the selector's ring then costs the page one card or one label.
function css(c, prop, value) {
  if (!c.css) c.css = {};
  if (c.css[prop] === value) return;
  c.css[prop] = value;
  c.el.style[prop] = value;
}

export class Renderer {
  // send(kind, form, control, index, text, key, value, width, height)
  constructor(desktop, send, pointerCursor) {
    this.desktop = desktop;
    this.send = send;
    this.pointerCursor = pointerCursor;
    this.windows = new Map();
    this.stack = 10;
    this.blocker = document.createElement('div');
    this.blocker.className = 'modal-blocker';
    this.blocker.hidden = true;
    desktop.append(this.blocker);
    this.openMenu = null;
    this.menuActive = null;
    this.listeners = [
      [document, 'pointerdown', (e) => {
        if (this.openMenu && !this.openMenu.contains(e.target)) this.closeMenus();
      }],
      [document, 'keydown', (e) => this.onKey(e)],
      [window, 'resize', () => this.fitAll()],
    ];
    for (const [target, type, listener] of this.listeners) target.addEventListener(type, listener);
  }

  // The suite has ended: its windows take no more keys.
  detach() {
    for (const [target, type, listener] of this.listeners) target.removeEventListener(type, listener);
  }

  // `taken`: the number of the last input line the logic had taken when it
  // made this snapshot. A snapshot carries only what changed: a form marked
  // `same` is kept as it stands, any other brings its header and the
  // controls that changed.
  apply(forms, taken = Infinity) {
    this.taken = taken;
    const live = new Set();
    let shown = false;
    for (const f of forms) {
      live.add(f.name);
      let w = this.windows.get(f.name);
      if (w && w.instance !== f.instance) {
        w.el.remove();
        this.windows.delete(f.name);
        w = null;
      }
      if (f.same) continue;
      if (!w) {
        w = this.createWindow(f);
        this.windows.set(f.name, w);
      }
      this.applyWindow(w, f);
      shown = true;
    }
    let gone = false;
    for (const [name, w] of this.windows) {
      if (!live.has(name)) {
        w.el.remove();
        this.windows.delete(name);
        gone = true;
      }
    }
    if (shown || gone) this.updateModal();
  }

  createWindow(f) {
    const el = document.createElement('div');
    el.className = 'window';
    el.dataset.form = f.name;
    el.setAttribute('role', 'dialog');
    el.innerHTML = '<div class="titlebar"><span class="caption"></span>' +
      '<button class="max" aria-label="Maximise" tabindex="-1">□</button>' +
      '<button class="close" aria-label="Close" tabindex="-1">×</button></div>' +
      '<div class="menubar" role="menubar"></div><div class="client"></div><div class="grip"></div>';
    el.hidden = true;
    this.desktop.append(el);
    const w = {name: f.name, instance: f.instance, el, controls: new Map(), placed: false, visible: false,
      caption: el.querySelector('.caption'), menubar: el.querySelector('.menubar'),
      client: el.querySelector('.client'), menuShape: '', snaps: new Map(), state: 0, width: -1, height: -1};
    el.querySelector('.close').addEventListener('click', () => this.send('close', f.name));
    el.querySelector('.max').addEventListener('click', () => {
      const state = w.state === 2 ? 0 : 2;
      this.send('state', f.name, '', -1, '', 0, state);
    });
    el.addEventListener('pointerdown', () => this.raise(w));
    this.makeMovable(w, el.querySelector('.titlebar'));
    this.makeResizable(w, el.querySelector('.grip'));
    return w;
  }

  makeMovable(w, bar) {
    bar.addEventListener('pointerdown', (e) => {
      if (e.target.tagName === 'BUTTON' || w.state === 2) return;
      const start = {x: e.clientX, y: e.clientY, left: w.el.offsetLeft, top: w.el.offsetTop};
      bar.setPointerCapture(e.pointerId);
      const move = (m) => {
        w.el.style.left = `${Math.max(0, start.left + m.clientX - start.x)}px`;
        w.el.style.top = `${Math.max(0, start.top + m.clientY - start.y)}px`;
      };
      const up = () => {
        bar.removeEventListener('pointermove', move);
        bar.removeEventListener('pointerup', up);
      };
      bar.addEventListener('pointermove', move);
      bar.addEventListener('pointerup', up);
    });
  }

  // The player drags the corner; the logic hears the new size when the drag ends.
  makeResizable(w, grip) {
    grip.addEventListener('pointerdown', (e) => {
      if (w.state !== 0) return;
      e.stopPropagation();
      const start = {x: e.clientX, y: e.clientY, width: w.el.offsetWidth, height: w.el.offsetHeight};
      grip.setPointerCapture(e.pointerId);
      const size = (m) => [Math.max(120, start.width + m.clientX - start.x), Math.max(60, start.height + m.clientY - start.y)];
      const move = (m) => {
        const [width, height] = size(m);
        w.el.style.width = `${width}px`;
        w.el.style.height = `${height}px`;
      };
      const up = (m) => {
        grip.removeEventListener('pointermove', move);
        grip.removeEventListener('pointerup', up);
        this.resized(w, ...size(m));
      };
      grip.addEventListener('pointermove', move);
      grip.addEventListener('pointerup', up);
    });
  }

  raise(w) {
    w.el.style.zIndex = String(++this.stack);
  }

  applyWindow(w, f) {
    // Only what changed is written: a write to the page costs a new layout.
    const last = w.form || {};
    w.form = f;
    if (f.caption !== last.caption) {
      w.caption.textContent = f.caption;
      w.el.setAttribute('aria-label', f.caption);
    }
    if (f.back !== last.back) w.client.style.background = rgb(f.back);
    if (f.pointer !== last.pointer) w.el.classList.toggle('busy', f.pointer === 11);
    if (f.enabled !== last.enabled) w.el.classList.toggle('disabled', !f.enabled);
    // Every control the first time, then those that changed.
    let menus = false;
    for (const s of f.controls) {
      w.snaps.set(s.key, s);
      if (s.kind === 'menu') {
        menus = true;
        continue;
      }
      let c = w.controls.get(s.key);
      if (!c) {
        c = this.createControl(w, s);
        w.controls.set(s.key, c);
      }
      this.applyControl(w, c, s);
    }
    if (menus || !w.menus) {
      w.menus = [...w.snaps.values()].filter((s) => s.kind === 'menu');
      const hasMenu = w.menus.length > 0;
      if (hasMenu !== w.hasMenu) w.menubar.hidden = !hasMenu;
      w.hasMenu = hasMenu;
      this.applyMenus(w, w.menus);
    }
    if (f.state !== w.state) {
      w.state = f.state;
      w.el.classList.toggle('maximised', f.state === 2);
      w.el.classList.toggle('minimised', f.state === 1);
    }
    if (f.width !== w.width || f.height !== w.height) {
      w.width = f.width;
      w.height = f.height;
      if (w.state !== 2) {
        w.el.style.width = `${px(f.width)}px`;
        w.el.style.height = `${px(f.height)}px`;
      }
    }
    if (!w.placed) {
      w.el.style.left = `${px(f.left)}px`;
      w.el.style.top = `${px(f.top)}px`;
    }
    if (f.visible && !w.visible) {
      w.el.hidden = false;
      w.placed = true;
      this.raise(w);
      this.fit(w);
    } else if (!f.visible && w.visible) {
      w.el.hidden = true;
    }
    w.visible = f.visible;
    if (f.focusSerial !== w.focusSerial) {
      w.focusSerial = f.focusSerial;
      const focus = w.controls.get(f.focus);
      if (focus && focus.input) focus.input.focus();
    }
  }

  // A window is kept inside the page; a maximised one fills it.
  fit(w) {
    if (!w.visible || w.state === 1) return;
    const vw = this.desktop.clientWidth, vh = this.desktop.clientHeight;
    if (w.state === 2) {
      this.resized(w, vw, vh);
      return;
    }
    // A window larger than the page is made smaller, as a player would.
    if (w.el.offsetWidth > vw || w.el.offsetHeight > vh) {
      const width = Math.min(w.el.offsetWidth, vw), height = Math.min(w.el.offsetHeight, vh);
      w.el.style.width = `${width}px`;
      w.el.style.height = `${height}px`;
      this.resized(w, width, height);
    }
    const left = Math.max(0, Math.min(w.el.offsetLeft, vw - w.el.offsetWidth));
    const top = Math.max(0, Math.min(w.el.offsetTop, vh - w.el.offsetHeight));
    w.el.style.left = `${left}px`;
    w.el.style.top = `${top}px`;
  }

  fitAll() {
    for (const w of this.windows.values()) this.fit(w);
  }

  resized(w, width, height) {
    const tw = width * 15, th = height * 15;
    if (tw === w.width && th === w.height) return;
    w.width = tw;
    w.height = th;
    this.send('resize', w.name, '', -1, '', 0, 0, tw, th);
  }

  updateModal() {
    let top = null;
    for (const w of this.windows.values()) {
      if (w.visible && w.form.modal && (!top || +w.el.style.zIndex > +top.el.style.zIndex)) top = w;
    }
    this.blocker.hidden = !top;
    if (top) this.blocker.style.zIndex = String(+top.el.style.zIndex - 1);
    this.modalWindow = top;
  }

  createControl(w, s) {
    const c = {snap: null, el: null, input: null};
    let el;
    switch (s.kind) {
      case 'button':
        el = document.createElement('button');
        el.type = 'button';
        el.addEventListener('click', () => this.sendControl(w, c, 'click'));
        c.input = el;
        break;
      case 'textbox':
        if (s.height >= 720) {
          el = document.createElement('textarea');
          el.readOnly = true;
        } else {
          el = document.createElement('input');
          el.type = 'text';
          el.addEventListener('input', () => { c.typed = this.sendControl(w, c, 'text', el.value); });
          el.addEventListener('focus', () => this.sendControl(w, c, 'focus'));
          el.addEventListener('click', () => this.sendControl(w, c, 'click'));
          el.addEventListener('keydown', (e) => {
            if (e.key === 'Enter' || e.key === 'Escape') {
              e.preventDefault();
              e.stopPropagation();
              this.sendControl(w, c, 'key', '', e.key === 'Enter' ? 13 : 27);
            }
          });
        }
        c.input = el;
        break;
      case 'checkbox':
      case 'option': {
        el = document.createElement('label');
        const box = document.createElement('input');
        box.type = s.kind === 'checkbox' ? 'checkbox' : 'radio';
        const text = document.createElement('span');
        el.append(box, text);
        c.box = box;
        c.text = text;
        c.input = box;
        box.addEventListener('click', (e) => {
          box.checked = c.snap.value !== 0;  // the logic decides
          e.stopPropagation();
          this.sendControl(w, c, 'click');
        });
        el.addEventListener('click', (e) => {
          if (e.target !== box) {
            e.preventDefault();
            this.sendControl(w, c, 'click');
          }
        });
        break;
      }
      case 'picture':
        el = document.createElement('div');
        c.canvas = document.createElement('canvas');
        el.append(c.canvas);
        break;
      case 'line':
        el = document.createElementNS('http://www.w3.org/2000/svg', 'svg');
        c.line = document.createElementNS('http://www.w3.org/2000/svg', 'line');
        el.append(c.line);
        break;
      case 'progressbar':
        el = document.createElement('div');
        el.setAttribute('role', 'progressbar');
        c.bar = document.createElement('div');
        el.append(c.bar);
        break;
      case 'statusbar':
        el = document.createElement('div');
        el.setAttribute('role', 'status');
        c.panels = [0, 1, 2].map(() => el.appendChild(document.createElement('span')));
        break;
      case 'listbox':
      case 'filelist':
      case 'dirlist':
      case 'drivelist':
        el = document.createElement('div');
        el.setAttribute('role', 'listbox');
        el.tabIndex = 0;
        c.input = el;
        el.addEventListener('click', (e) => {
          const item = e.target.closest('[data-i]');
          if (item) this.sendControl(w, c, 'select', '', 0, +item.dataset.i);
        });
        el.addEventListener('dblclick', () => this.sendControl(w, c, 'dblclick', '', 0, 1));
        break;
      case 'frame':
        el = document.createElement('div');
        c.legend = document.createElement('span');
        c.legend.className = 'legend';
        el.append(c.legend);
        break;
      default:
        el = document.createElement('div');
    }
    el.classList.add('ctl', `k-${s.kind}`);
    el.dataset.name = s.key;
    c.el = el;
    if (PAINTED.has(s.kind)) {
      let last = 0;
      el.addEventListener('click', (e) => {
        if (e.detail <= 1) this.sendControl(w, c, 'click');
      });
      el.addEventListener('dblclick', () => this.sendControl(w, c, 'dblclick', '', 0, 1));
      el.addEventListener('pointermove', () => {
        const now = performance.now();
        if (now - last < 50) return;
        last = now;
        this.sendControl(w, c, 'move');
      });
    }
    const parent = s.container && w.controls.get(s.container);
    (parent ? parent.el : w.client).append(el);
    return c;
  }

  sendControl(w, c, kind, text = '', key = 0, value = 0) {
    const s = c.snap;
    if (!s || !s.enabled || !s.visible) return 0;
    return this.send(kind, w.name, s.name, s.index, text, key, value);
  }

  applyControl(w, c, s) {
    c.snap = s;
    const el = c.el;
    el.hidden = !s.visible;
    if (s.kind === 'line') {
      const x1 = px(s.left), y1 = px(s.top), x2 = px(s.left + s.width), y2 = px(s.top + s.height);
      const left = Math.min(x1, x2), top = Math.min(y1, y2);
      css(c, 'left', `${left}px`);
      css(c, 'top', `${top}px`);
      el.setAttribute('width', Math.abs(x2 - x1) + 1);
      el.setAttribute('height', Math.abs(y2 - y1) + 1);
      c.line.setAttribute('x1', x1 - left + 0.5);
      c.line.setAttribute('y1', y1 - top + 0.5);
      c.line.setAttribute('x2', x2 - left + 0.5);
      c.line.setAttribute('y2', y2 - top + 0.5);
      c.line.setAttribute('stroke', rgb(s.borderColor));
    } else if (s.kind !== 'statusbar') {
      const x = px(s.left), y = px(s.top);
      css(c, 'left', `${x}px`);
      css(c, 'top', `${y}px`);
      css(c, 'width', `${Math.max(0, px(s.left + s.width) - x)}px`);
      css(c, 'height', `${Math.max(0, px(s.top + s.height) - y)}px`);
    } else {
      css(c, 'height', `${Math.max(22, px(s.height))}px`);
    }
    css(c, 'zIndex', String((WINDOWED.has(s.kind) ? 100000 : 0) + s.z));
    css(c, 'font', fontCss(s.size, s.bold));
    if (s.tip !== c.tip) {
      if (s.tip) el.title = s.tip;
      else el.removeAttribute('title');
      c.tip = s.tip;
    }
    el.classList.toggle('disabled', !s.enabled);
    if (c.input && 'disabled' in c.input) c.input.disabled = !s.enabled;
    css(c, 'cursor', s.pointer === 99 && s.icon > 0 ? this.pointerCursor(s.icon) : POINTERS[s.pointer] || '');
    switch (s.kind) {
      case 'label':
        css(c, 'background', s.backStyle !== 0 ? rgb(s.back) : 'transparent');
        css(c, 'color', s.enabled ? rgb(s.fore) : '#808080');
        css(c, 'textAlign', ['left', 'right', 'center'][s.align] || 'left');
        el.classList.toggle('bevel', s.border === 1);
        if (c.shown !== s.text) setMnemonicText(el, s.text);
        c.shown = s.text;
        break;
      case 'image':
        for (const [k, v] of Object.entries(cardStyle(s.picture, s.border === 1 ? 1 : 0))) css(c, k, v);
        el.classList.toggle('framed', s.border === 1);
        el.setAttribute('aria-label', s.text || '');
        break;
      case 'shape':
        css(c, 'border', `2px solid ${rgb(s.borderColor)}`);
        break;
      case 'button':
        c.mnemonic = setMnemonicText(el, s.text);
        el.classList.toggle('default', s.isDefault);
        break;
      case 'textbox':
        if (el.tagName === 'TEXTAREA') {
          const text = s.text.replace(/\r\n/g, '\n');
          if (el.value !== text) el.value = text;
        } else if (document.activeElement === el && c.typed > this.taken) {
          // Made before the logic saw what the player has typed since: its
          // text and selection are already out of date, and applying them
          // would lose keystrokes. The next snapshot brings the text back.
          c.selSerial = s.selSerial;
        } else if (document.activeElement !== el || el.value !== s.text && c.selSerial !== s.selSerial) {
          if (el.value !== s.text) el.value = s.text;
        }
        if (el.tagName === 'INPUT' && s.selSerial !== c.selSerial) {
          c.selSerial = s.selSerial;
          try { el.setSelectionRange(s.selStart, s.selStart + s.selLength); } catch (err) { /* not focused */ }
        }
        css(c, 'color', rgb(s.fore));
        css(c, 'background', rgb(s.back));
        break;
      case 'checkbox':
      case 'option':
        c.mnemonic = setMnemonicText(c.text, s.text);
        c.box.checked = s.value !== 0;
        css(c, 'color', rgb(s.fore));
        css(c, 'background', rgb(s.back));
        break;
      case 'frame':
        css(c, 'background', rgb(s.back));
        c.legend.hidden = !s.text;
        setMnemonicText(c.legend, s.text);
        c.legend.style.background = rgb(s.back);
        c.legend.style.color = s.enabled ? rgb(s.fore) : '#808080';
        break;
      case 'picture':
        el.classList.toggle('bevel', s.border === 1);
        this.paintSurface(c, s);
        break;
      case 'statusbar':
        s.panels.forEach((text, i) => { c.panels[i].textContent = text; });
        break;
      case 'progressbar': {
        const span = Math.max(0, s.max - s.min);
        const v = Math.min(Math.max(s.value, s.min), s.min + span);
        c.bar.style.width = span ? `${(100 * (v - s.min)) / span}%` : '0';
        el.setAttribute('aria-valuenow', v);
        break;
      }
      case 'listbox':
      case 'filelist':
      case 'dirlist':
      case 'drivelist': {
        const same = el.children.length === s.items.length &&
          s.items.every((t, i) => el.children[i].textContent === t);
        if (!same) {
          el.textContent = '';
          s.items.forEach((t, i) => {
            const item = el.appendChild(document.createElement('div'));
            item.dataset.i = i;
            item.setAttribute('role', 'option');
            item.textContent = t;
          });
        }
        [...el.children].forEach((item, i) => item.classList.toggle('selected', i === s.value));
        break;
      }
      default:
        break;
    }
  }

  paintSurface(c, s) {
    const ratio = window.devicePixelRatio || 1;
    const w = Math.max(1, px(s.width)), h = Math.max(1, px(s.height));
    const canvas = c.canvas;
    canvas.width = Math.round(w * ratio);
    canvas.height = Math.round(h * ratio);
    canvas.style.width = `${w}px`;
    canvas.style.height = `${h}px`;
    const g = canvas.getContext('2d');
    g.fillStyle = rgb(s.back);
    g.fillRect(0, 0, canvas.width, canvas.height);
    g.scale(ratio / 15, ratio / 15);
    g.lineWidth = 15;
    for (const [kind, x1, y1, x2, y2, r, start, end, color, fill] of s.drawing) {
      g.strokeStyle = rgb(color);
      g.beginPath();
      if (kind === 0) {
        g.moveTo(x1, y1);
        g.arc(x1, y1, r, (start * Math.PI) / 180, (end * Math.PI) / 180, end < start);
        g.closePath();
        g.fillStyle = rgb(fill);
        g.fill();
      } else if (kind === 1) {
        g.moveTo(x1, y1);
        g.lineTo(x2, y2);
      } else {
        g.arc(x1, y1, r, 0, 2 * Math.PI);
      }
      g.stroke();
    }
  }

  // ---- menus -----------------------------------------------------------------
  applyMenus(w, menus) {
    const shape = menus.map((m) => `${m.key}<${m.container}${m.text === '-' ? '|-' : ''}`).join(';');
    if (shape !== w.menuShape) {
      w.menuShape = shape;
      w.menubar.textContent = '';
      w.menuItems = new Map();
      const lists = new Map();
      const hasChildren = (m) => menus.some((c) => c.container === m.name);
      for (const m of menus) {
        const item = document.createElement('div');
        item.dataset.name = m.key;
        w.menuItems.set(m.key, item);
        const parent = m.container ? lists.get(m.container) : w.menubar;
        if (!parent) continue;
        if (m.text === '-') {
          item.className = 'menu-separator';
          parent.append(item);
          continue;
        }
        item.label = item.appendChild(document.createElement('span'));
        if (!m.container || hasChildren(m)) {
          // A menu of the bar, or an entry that opens a menu of its own.
          item.className = m.container ? 'menu-item submenu' : 'menu-title';
          item.setAttribute('role', 'menuitem');
          const list = item.appendChild(document.createElement('div'));
          list.className = 'menu-list';
          list.setAttribute('role', 'menu');
          list.hidden = true;
          lists.set(m.name, list);
          item.list = list;
          if (m.container) {
            item.addEventListener('pointerenter', () => {
              this.highlight(item);
              list.hidden = item.classList.contains('disabled');
            });
            item.addEventListener('pointerleave', () => { list.hidden = true; });
            item.addEventListener('click', (e) => {
              e.stopPropagation();
              if (e.target === item || e.target === item.label) list.hidden = item.classList.contains('disabled');
            });
          } else {
            item.label.addEventListener('click', () => {
              if (this.openMenu === item) this.closeMenus();
              else this.openTopMenu(w, item);
            });
          }
        } else {
          item.className = 'menu-item';
          item.setAttribute('role', 'menuitemcheckbox');
          item.addEventListener('pointerenter', () => this.highlight(item));
          item.addEventListener('click', (e) => {
            e.stopPropagation();
            if (item.classList.contains('disabled')) return;
            this.closeMenus();
            this.send('click', w.name, item.snap.name, item.snap.index);
          });
        }
        parent.append(item);
      }
    }
    for (const m of menus) {
      const item = w.menuItems.get(m.key);
      if (!item || item.snap === m) continue;
      item.snap = m;
      item.hidden = !m.visible;
      item.classList.toggle('disabled', !m.enabled);
      item.classList.toggle('checked', m.checked);
      if (m.text !== '-' && item.label) item.mnemonic = setMnemonicText(item.label, m.text);
      if (m.text !== '-') item.setAttribute('aria-checked', String(m.checked));
    }
  }

  // Opened from the keyboard, a menu shows its first entry highlighted.
  openTopMenu(w, item, byKey = false) {
    this.closeMenus();
    if (item.classList.contains('disabled')) return;
    this.send('click', w.name, item.snap.name, item.snap.index);
    item.list.hidden = false;
    item.classList.add('open');
    this.openMenu = item;
    this.menuWindow = w;
    if (byKey) this.highlight(this.entries(item.list)[0]);
  }

  closeMenus() {
    if (!this.openMenu) return;
    this.openMenu.querySelectorAll('.menu-list').forEach((l) => { l.hidden = true; });
    this.openMenu.classList.remove('open');
    this.openMenu = null;
    this.highlight(null);
  }

  highlight(item) {
    if (this.menuActive) this.menuActive.classList.remove('active');
    this.menuActive = item || null;
    if (item) item.classList.add('active');
  }

  // The entries of a menu list the keys move among: no separators, none hidden.
  entries(list) {
    return [...list.children].filter((i) => i.label && !i.hidden);
  }

  // The innermost list open: the top menu's, or an entry's menu shown inside it.
  innermostList() {
    const lists = [...this.openMenu.querySelectorAll('.menu-list')].filter((l) => l.offsetParent !== null);
    return lists[lists.length - 1] || this.openMenu.list;
  }

  // Arrows move the highlight and go from menu to menu, Return chooses the
  // highlighted entry, a letter the entry it underlines, Escape closes the
  // innermost list.
  menuKey(e, w, letter) {
    const list = this.innermostList();
    const inner = list !== this.openMenu.list;
    const entries = this.entries(list);
    const at = entries.indexOf(this.menuActive);
    const enter = (item) => {
      if (item.list) {
        if (item.classList.contains('disabled')) return;
        item.list.hidden = false;
        this.highlight(this.entries(item.list)[0]);
      } else {
        item.click();
      }
    };
    const leave = () => {
      list.hidden = true;
      this.highlight(list.parentElement);
    };
    const neighbour = (step) => {
      const tops = [...w.menubar.children].filter((i) => !i.hidden && !i.classList.contains('disabled'));
      const next = tops[(tops.indexOf(this.openMenu) + step + tops.length) % tops.length];
      if (next) this.openTopMenu(w, next, true);
    };
    if (e.key === 'Escape') {
      if (inner) leave();
      else this.closeMenus();
    } else if (e.key === 'ArrowDown' || e.key === 'ArrowUp') {
      const step = e.key === 'ArrowDown' ? 1 : -1;
      if (entries.length) this.highlight(entries[at < 0 ? (step > 0 ? 0 : entries.length - 1)
        : (at + step + entries.length) % entries.length]);
    } else if (e.key === 'ArrowRight') {
      if (this.menuActive && this.menuActive.list && at >= 0) enter(this.menuActive);
      else neighbour(1);
    } else if (e.key === 'ArrowLeft') {
      if (inner) leave();
      else neighbour(-1);
    } else if (e.key === 'Enter') {
      if (at >= 0) enter(this.menuActive);
    } else if (letter) {
      const entry = entries.find((i) => i.mnemonic === letter);
      if (entry) enter(entry);
    }
  }

  activeWindow() {
    if (this.modalWindow) return this.modalWindow;
    let top = null;
    for (const w of this.windows.values()) {
      if (w.visible && (!top || +w.el.style.zIndex > +top.el.style.zIndex)) top = w;
    }
    return top;
  }

  // Alt and a letter opens a menu (see menuKey for the keys of an open one).
  // Return and Escape elsewhere go to the control with the focus, or else to
  // the window's first control that takes keys.
  onKey(e) {
    if (document.querySelector('.msgbox:not([hidden])')) return;
    const w = this.activeWindow();
    if (!w) return;
    // With Alt some keyboards give another character: the key's place names the letter.
    const letter = e.altKey && /^Key[A-Z]$/.test(e.code) ? e.code.slice(3).toLowerCase()
      : e.key.length === 1 ? e.key.toLowerCase() : '';
    if (this.openMenu) {
      e.preventDefault();
      if (this.menuWindow === w) this.menuKey(e, w, letter);
      else this.closeMenus();
      return;
    }
    if (e.altKey && letter) {
      // A menu of the bar first, else the button, check or option button that
      // shows the letter underlined.
      const top = w.menuItems && [...w.menubar.children].find((i) => i.mnemonic === letter && !i.hidden);
      const control = !top && [...w.controls.values()].find((c) => c.mnemonic === letter && c.snap.enabled &&
        c.el.offsetParent !== null);
      if (top) this.openTopMenu(w, top, true);
      else if (control) this.sendControl(w, control, 'click');
      if (top || control) e.preventDefault();
      return;
    }
    if (e.target.tagName === 'INPUT' && e.target.type === 'text') return;
    let key = 0;
    if (e.key === 'Enter') key = 13;
    else if (e.key === 'Escape') key = 27;
    else if (letter && letter.charCodeAt(0) < 128 && !e.ctrlKey && !e.metaKey && !e.altKey) key = e.key.charCodeAt(0);
    if (!key) return;
    let target = [...w.controls.values()].find((c) => c.input && c.input === document.activeElement);
    if (!target) {
      target = [...w.controls.values()].sort((a, b) => a.snap.order - b.snap.order)
        .find((c) => WINDOWED.has(c.snap.kind) && c.snap.visible && c.snap.enabled);
    }
    if (target) {
      e.preventDefault();
      this.send('key', w.name, target.snap.name, target.snap.index, '', key);
    }
  }
}
