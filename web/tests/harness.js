// SPDX-License-Identifier: GPL-3.0-or-later
// Starts the site's server and a headless Chromium for the page tests, and
// gives them the page's windows and controls by the suite's own names.
import {spawn} from 'node:child_process';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import puppeteer from 'puppeteer-core';

export const site = process.env.CARDHAVEN_SITE;
const here = path.dirname(new URL(import.meta.url).pathname);

export function chromiumPath() {
  for (const p of [process.env.CHROMIUM, '/usr/bin/chromium', '/usr/bin/chromium-browser']) {
    if (p && fs.existsSync(p)) return p;
  }
  return null;
}

export async function startServer() {
  const port = 18000 + (process.pid % 1000);
  const server = spawn(process.execPath, [path.join(here, '..', 'serve.js'), site, String(port)],
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
    executablePath: chromiumPath(),
    headless: true,
    userDataDir: profile,
    args: ['--no-sandbox', '--disable-gpu', '--autoplay-policy=user-gesture-required', ...extra],
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

export async function text(page, ref) {
  return page.$eval(sel(ref), (el) => el.textContent);
}

export async function click(page, ref) {
  await page.waitForSelector(sel(ref), {visible: true, timeout: 15000});
  await page.click(sel(ref));
}

export async function menu(page, form, top, entry) {
  await page.click(`${sel(form)} .menubar [data-name="${top}"] > span`);
  await page.click(`${sel(form)} .menubar [data-name="${entry}"]`);
}
