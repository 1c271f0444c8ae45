// SPDX-License-Identifier: GPL-3.0-or-later
// Starts the site's server and a headless Chromium, and gives page tests windows and controls by name.
import {spawn} from 'node:child_process';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import puppeteer from 'puppeteer-core';

export const site = process.env.CARDHAVEN_SITE;
const here = path.dirname(new URL(import.meta.url).pathname);

// A server of the site folder, or of another (`slot` gives each its own port).
export async function startServer(root = site, slot = 0) {
  const port = 18000 + (process.pid % 1000) + 1000 * slot;
  const server = spawn(process.execPath, [path.join(here, '..', '..', 'web', 'serve.js'), root, String(port)],
    {stdio: ['ignore', 'pipe', 'inherit']});
  await new Promise((resolve, reject) => {
    server.stdout.once('data', resolve);
    server.once('exit', (code) => reject(new Error(`server ended with ${code}`)));
  });
  return {url: `http://localhost:${port}/`, stop: () => server.kill()};
}

export async function launch(extra = []) {
  const profile = fs.mkdtempSync(path.join(os.tmpdir(), 'cardhaven-chromium-'));
  const browser = await puppeteer.launch({
    executablePath: [process.env.CHROMIUM, '/usr/bin/chromium', '/usr/bin/chromium-browser']
      .find((p) => p && fs.existsSync(p)),
    headless: true,
    userDataDir: profile,
    // No name resolves but localhost's: a page the suite opens fails at once, offline.
    args: ['--no-sandbox', '--disable-gpu', '--autoplay-policy=user-gesture-required',
      '--host-resolver-rules=MAP * ~NOTFOUND, EXCLUDE localhost', ...extra],
  });
  const close = browser.close.bind(browser);
  browser.close = async () => {
    await close();
    fs.rmSync(profile, {recursive: true, force: true});
  };
  return browser;
}

// The element of a control, "frmSumfall.cmdPlay" or "frmSumfall.FieldCardPicture(3)".
export function sel(ref) {
  const [form, control] = ref.split('.');
  const win = `.window[data-form="${form}"]:not([hidden])`;
  return control ? `${win} [data-name="${control}"]` : win;
}

export async function waitText(page, ref, pattern, timeout = 15000) {
  await page.waitForFunction((s, p) => {
    const el = document.querySelector(s);
    return el && new RegExp(p).test(el.textContent);
  }, {timeout, polling: 50}, sel(ref), pattern.source);
}

export async function click(page, ref) {
  await page.waitForSelector(sel(ref), {visible: true, timeout: 15000});
  await page.click(sel(ref));
}

// The text of the message box, once one is up.
export async function msgboxText(page) {
  await page.waitForSelector('.msgbox', {visible: true});
  return page.$eval('.msgbox .text', (e) => e.textContent);
}

export async function menu(page, form, top, entry) {
  await page.click(`${sel(form)} .menubar [data-name="${top}"] > span`);
  await page.click(`${sel(form)} .menubar [data-name="${entry}"]`);
}

export async function tap(page, ref) {
  const el = await page.waitForSelector(sel(ref), {visible: true, timeout: 15000});
  const box = await el.boundingBox();
  await page.touchscreen.tap(box.x + box.width / 2, box.y + box.height / 2);
}

// Alt and a key, as "KeyG".
export async function alt(page, code) {
  await page.keyboard.down('Alt');
  await page.keyboard.press(code);
  await page.keyboard.up('Alt');
}

// Every alert, confirm or prompt is accepted (a prompt with its suggestion); wait(pattern) gives
// the first message not yet waited for that matches, once it has come.
export function acceptDialogs(page) {
  const messages = [];
  const waiting = [];
  const settle = () => {
    for (const w of [...waiting]) {
      const i = messages.findIndex((m) => w.pattern.test(m));
      if (i < 0) continue;
      w.resolve(messages.splice(i, 1)[0]);
      waiting.splice(waiting.indexOf(w), 1);
    }
  };
  page.on('dialog', async (d) => {
    messages.push(d.message());
    await d.accept(d.defaultValue());
    settle();
  });
  return {
    wait: (pattern) => new Promise((resolve) => {
      waiting.push({pattern, resolve});
      settle();
    }),
  };
}

// Resolves once the page runs a suite other than the one it runs now and has drawn it.
export async function nextSuite(page) {
  const old = await page.evaluateHandle(() => window.cardhaven.suite);
  return () => page.waitForFunction((s) => window.cardhaven.suite !== s && window.cardhaven.suite?.drawn,
    {timeout: 20000, polling: 50}, old);
}

// Clicks a button of the page's bar that asks for a file, and gives it `file`.
export async function chooseFile(page, action, file) {
  const [chooser] = await Promise.all([page.waitForFileChooser({timeout: 15000}),
    page.click(`#bar [data-action="${action}"]`)]);
  await chooser.accept([file]);
}

// Downloads go to a folder of their own; next() gives the next one to complete, as {name, bytes}.
export async function downloads(browser) {
  const dir = fs.mkdtempSync(path.join(os.tmpdir(), 'cardhaven-downloads-'));
  const cdp = await browser.target().createCDPSession();
  await cdp.send('Browser.setDownloadBehavior', {behavior: 'allow', downloadPath: dir, eventsEnabled: true});
  const names = new Map();
  cdp.on('Browser.downloadWillBegin', (e) => names.set(e.guid, e.suggestedFilename));
  return {
    dir,
    next: () => new Promise((resolve) => {
      const progress = (e) => {
        if (e.state !== 'completed') return;
        cdp.off('Browser.downloadProgress', progress);
        const name = names.get(e.guid);
        resolve({name, bytes: fs.readFileSync(path.join(dir, name))});
      };
      cdp.on('Browser.downloadProgress', progress);
    }),
  };
}

// The files of the page's storage, {name in the home folder: bytes as text}.
export async function storedFiles(page) {
  return page.evaluate(() => new Promise((resolve, reject) => {
    const request = indexedDB.open('cardhaven');
    request.onerror = () => reject(request.error);
    request.onsuccess = () => {
      const out = {};
      const cursor = request.result.transaction('files').objectStore('files').openCursor();
      cursor.onsuccess = () => {
        const c = cursor.result;
        if (!c) {
          request.result.close();
          resolve(out);
          return;
        }
        out[c.key.replace(/^.*\//, '')] = new TextDecoder().decode(c.value);
        c.continue();
      };
    };
  }));
}
