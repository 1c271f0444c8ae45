// SPDX-License-Identifier: GPL-3.0-or-later
// node bench/web.mjs SITE RUNS: the web edition's measures (see bench/web.sh).
import {spawn} from 'node:child_process';
import fs from 'node:fs';
import {createRequire} from 'node:module';
import os from 'node:os';
import path from 'node:path';

const here = path.dirname(new URL(import.meta.url).pathname);
const require = createRequire(path.join(here, '..', 'web', 'tests', 'package.json'));
const puppeteer = require('puppeteer-core');
const [site, runs = '5'] = process.argv.slice(2);
const sleep = (ms) => new Promise((r) => setTimeout(r, ms));
const median = (v) => [...v].sort((a, b) => a - b)[Math.floor((v.length - 1) / 2)];
const ticks = 100;  // clock ticks a second in /proc

function chromiumProcesses(rootPid) {
  const all = fs.readdirSync('/proc').filter((d) => /^\d+$/.test(d));
  const children = new Map();
  for (const pid of all) {
    try {
      const ppid = +fs.readFileSync(`/proc/${pid}/stat`, 'utf8').split(') ')[1].split(' ')[1];
      if (!children.has(ppid)) children.set(ppid, []);
      children.get(ppid).push(+pid);
    } catch (err) { /* gone */ }
  }
  const out = [];
  const walk = (pid) => { out.push(pid); for (const c of children.get(pid) || []) walk(c); };
  walk(rootPid);
  return out;
}

function cpuTicks(pids) {
  let sum = 0;
  for (const pid of pids) {
    try {
      const f = fs.readFileSync(`/proc/${pid}/stat`, 'utf8').split(') ')[1].split(' ');
      sum += +f[11] + +f[12];
    } catch (err) { /* gone */ }
  }
  return sum;
}

function rendererMb(pids) {
  let kb = 0;
  for (const pid of pids) {
    try {
      if (!fs.readFileSync(`/proc/${pid}/cmdline`, 'utf8').includes('--type=renderer')) continue;
      kb += +fs.readFileSync(`/proc/${pid}/smaps_rollup`, 'utf8').match(/Pss:\s+(\d+)/)[1];
    } catch (err) { /* gone */ }
  }
  return kb / 1024;
}

async function idleCpu(pids) {
  const start = cpuTicks(pids);
  await sleep(10000);
  return ((cpuTicks(pids) - start) / ticks / 10) * 100;
}

const port = 18500 + (process.pid % 400);
const server = spawn(process.execPath, [path.join(here, '..', 'web', 'serve.js'), site, String(port)],
  {stdio: ['ignore', 'pipe', 'inherit'], env: {...process.env, CARDHAVEN_SERVE_LOG: '1'}});
await new Promise((r) => server.stdout.once('data', r));
// Bytes on the wire, the tune not counted, as the server sent them.
let sent = 0;
server.stdout.on('data', (chunk) => {
  for (const [, file, bytes] of String(chunk).matchAll(/^sent (\S+) (\d+)$/gm)) if (!/tune/.test(file)) sent += +bytes;
});
const results = {selector: [], transfer: [], kept: [], tab: [], idle: [], game: [], input: []};
try {
  for (let run = 1; run <= +runs; run++) {
    const profile = fs.mkdtempSync(path.join(os.tmpdir(), 'cardhaven-bench-'));
    const browser = await puppeteer.launch({executablePath: process.env.CHROMIUM || '/usr/bin/chromium', headless: true,
      userDataDir: profile, args: ['--no-sandbox', '--disable-gpu']});
    try {
      const page = await browser.newPage();
      await page.setViewport({width: 1280, height: 900});
      sent = 0;
      await page.goto(`http://localhost:${port}/`);
      await page.waitForSelector('body[data-drawn]', {timeout: 30000});
      const drawn = await page.evaluate(() => +document.body.dataset.drawn);
      await sleep(200);  // the server's last lines
      const transferred = sent;
      await sleep(5000);  // the service worker keeps its copy, the page settles
      const pids = chromiumProcesses(browser.process().pid);
      const idle = await idleCpu(pids);
      // A click to the next snapshot the worker sends.
      const input = await page.evaluate(() => new Promise((resolve) => {
        const worker = window.cardhaven.suite.worker;
        const start = performance.now();
        worker.addEventListener('message', () => resolve(performance.now() - start), {once: true});
        document.querySelector('.window[data-form="frmSelect"] [data-name="cmdTreyshift"]').click();
      }));
      await page.waitForSelector('.window[data-form="frmTreyshift"]:not([hidden])', {timeout: 20000});
      await sleep(2000);
      const game = await idleCpu(pids);
      const tab = rendererMb(chromiumProcesses(browser.process().pid));
      const kept = sent;  // with what the service worker keeps for offline play
      results.selector.push(drawn);
      results.transfer.push(transferred / 1024);
      results.kept.push(kept / 1024);
      results.tab.push(tab);
      results.idle.push(idle);
      results.game.push(game);
      results.input.push(input);
      console.error(`run ${run}: selector ${drawn.toFixed(0)} ms, ${(transferred / 1024).toFixed(0)} KB, ` +
        `offline copy ${(kept / 1024).toFixed(0)} KB, tab ${tab.toFixed(0)} MB, idle ${idle.toFixed(2)} %, game ${game.toFixed(2)} %, input ${input.toFixed(1)} ms`);
    } finally {
      await browser.close();
      fs.rmSync(profile, {recursive: true, force: true});
    }
  }
} finally {
  server.kill();
}
console.log(`web_selector_ms ${median(results.selector).toFixed(0)}`);
console.log(`web_transfer_kb ${median(results.transfer).toFixed(0)}`);
console.log(`web_offline_copy_kb ${median(results.kept).toFixed(0)}`);
console.log(`web_tab_mb ${median(results.tab).toFixed(1)}`);
console.log(`web_idle_cpu_pct ${median(results.idle).toFixed(2)}`);
console.log(`web_game_cpu_pct ${median(results.game).toFixed(2)}`);
console.log(`input_to_frame_ms ${median(results.input).toFixed(1)}`);
