// SPDX-License-Identifier: GPL-3.0-or-later
// node tools/web/screenshots.mjs SITE OUTDIR
// The web edition's windows in a headless Chromium at pixel ratio 1 and 2:
// the selector, and each game in play, as web-NAME.png and web-NAME-2x.png
// beside the desktop's screenshots.
import {spawn} from 'node:child_process';
import fs from 'node:fs';
import {createRequire} from 'node:module';
import os from 'node:os';
import path from 'node:path';

const here = path.dirname(new URL(import.meta.url).pathname);
const require = createRequire(path.join(here, '..', '..', 'web', 'tests', 'package.json'));
const puppeteer = require('puppeteer-core');
const [site, out] = process.argv.slice(2);
const games = ['Sumfall', 'Fivestack', 'Blackrush', 'Spirehold', 'Duopick', 'Handgrid', 'Treyshift'];
const sleep = (ms) => new Promise((r) => setTimeout(r, ms));
const win = (form) => `.window[data-form="${form}"]:not([hidden])`;

const port = 18900 + (process.pid % 90);
const server = spawn(process.execPath, [path.join(here, '..', '..', 'web', 'serve.js'), site, String(port)],
  {stdio: ['ignore', 'pipe', 'inherit']});
await new Promise((r) => server.stdout.once('data', r));
fs.mkdirSync(out, {recursive: true});
try {
  for (const ratio of [1, 2]) {
    const suffix = ratio === 1 ? '' : '-2x';
    const profile = fs.mkdtempSync(path.join(os.tmpdir(), 'cardhaven-shots-'));
    const browser = await puppeteer.launch({executablePath: process.env.CHROMIUM || '/usr/bin/chromium',
      headless: true, userDataDir: profile, args: ['--no-sandbox', '--disable-gpu']});
    try {
      const page = await browser.newPage();
      await page.setViewport({width: 1024, height: 768, deviceScaleFactor: ratio});
      await page.goto(`http://localhost:${port}/`);
      await page.waitForSelector(win('frmSelect'), {timeout: 30000});
      await sleep(1500);
      await (await page.$(win('frmSelect'))).screenshot({path: path.join(out, `web-selector${suffix}.png`)});
      for (const game of games) {
        await page.click(`${win('frmSelect')} [data-name="cmd${game}"]`);
        await page.waitForSelector(win(`frm${game}`), {timeout: 20000});
        await sleep(500);
        await page.click(`${win(`frm${game}`)} [data-name="cmdPlay"]`);
        await sleep(4000);
        await (await page.$(win(`frm${game}`))).screenshot({path: path.join(out, `web-${game.toLowerCase()}-play${suffix}.png`)});
        await page.click(`${win(`frm${game}`)} .titlebar .close`);
        const asked = await page.waitForSelector('.msgbox', {timeout: 1500}).catch(() => null);
        if (asked) await page.click('.msgbox .buttons button');
        await page.waitForSelector(win('frmSelect'), {timeout: 20000});
      }
    } finally {
      await browser.close();
      fs.rmSync(profile, {recursive: true, force: true});
    }
  }
} finally {
  server.kill();
}
