// SPDX-License-Identifier: GPL-3.0-or-later
// The web edition in headless Chromium: every game plays a stacked deal, blocking steps show as
// the page answers, input reaches modal windows and message boxes, files are kept only where
// storage keeps them and survive a reload, sound waits for a click, and the page works offline.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import {after, before, describe, test} from 'node:test';
import {acceptDialogs, alt, chooseFile, click, downloads, launch, menu, msgboxText, nextSuite, sel, site, startServer,
  storedFiles, tap, waitText} from './harness.js';

const repo = path.resolve(path.dirname(new URL(import.meta.url).pathname), '..', '..');
let server, browser, page, dialogs, files;
let best = '';  // the high score the Sumfall test makes

before(async () => {
  server = await startServer();
  browser = await launch();
  files = await downloads(browser);
  page = await browser.newPage();
  await page.setViewport({width: 1280, height: 900});
  page.on('pageerror', (e) => console.error(`page error: ${e.message}`));
  dialogs = acceptDialogs(page);
});

after(async () => {
  await browser?.close();
  server?.stop();
});

const DEALS = [
  // button, window, a stacked deck, a caption the deal shows
  ['cmdSumfall', 'frmSumfall', '10C 6H 1C 8H 4H 9H 3H 6S 7H 5H 4S 5S 7S 1H 2H 10H 2S 9S 3S 8S 1S 10S 2C 1S 1S 1S 1H 1H 1H 1C 1C 1C 1D 1D 1D 1D 3C 4C 5C 6C 7C 8C 9C 2D 3D 4D 6D 7D 8D 10D 5D 9D',
    'lblTime', /^Time: \d+$/],
  ['cmdFivestack', 'frmFivestack', '13S 10S 10H 10C 10D 11S 11H 11C 11D 1S 6S 2S 3S 4S 5S 7S 8S 9S 12S 1H 2H 3H 4H 5H 6H 7H 8H 9H 12H 13H 1C 2C 3C 4C 5C 6C 7C 8C 9C 12C 13C 1D 2D 3D 4D 5D 6D 7D 8D 9D 12D 13D',
    'StatusBar1', /bonus round/i],
  ['cmdBlackrush', 'frmBlackrush', '10S 1S 10H 9H 5C 2S 3S 4S 5S 7S 2H 3H 4H 6H 1H 6C 4C 1D 6D 9D 8D 7D 6S 8S 9S 11S 12S 13S 5H 7H 8H 11H 12H 13H 1C 2C 3C 7C 8C 9C 10C 11C 12C 13C 2D 3D 4D 5D 10D 11D 12D 13D',
    'StatusBar1', /Make 250,000 for bonus round\./],
  ['cmdSpirehold', 'frmSpirehold', '2S 3S 4S 5S 6S 7S 8S 9S 10S 11S 12S 13S 1H 7H 8H 9H 10H 11H 2H 3H 4H 5H 6H 12H 13H 1C 2C 3C 4C 5C 6C 7C 8C 9C 10C 11C 12C 13C 1D 2D 3D 4D 5D 6D 7D 8D 9D 10D 11D 12D 13D 1S',
    'StatusBar1', /Create runs by clicking on exposed cards!/],
  ['cmdDuopick', 'frmDuopick', '7C 8C 11S 9C 10C 2C 6S 9S 10S 12H 3S 8S 8H 1D 13D 12S 2S 13H 13S 1S 1H 5D 5S 5H 5C 6H 11H 2D 3D 4D 6D 7D 8D 9D 10D 11D 12D 7S 1C 3C 4C 6C 11C 12C 13C 2H 3H 4H 7H 9H 10H 4S',
    'cmdPlay', /^End Game$/],
  ['cmdHandgrid', 'frmHandgrid', null, 'cmdPlay', /^End Game$/],
  ['cmdTreyshift', 'frmTreyshift', '10C 2H 9S 4H 7S 7H 7D 4C 5D 6H 12S 13S 1S 2D 8H 9D 3C 11C 5S 1H 6S 13H 3D 8C 1C 1D 2S 2C 3S 3H 4S 4D 5H 5C 6C 6D 7C 8S 8D 9H 9C 10S 10H 10D 11S 11H 11D 12H 12C 12D 13C 13D',
    'lblCardCount', /^Cards remaining: \d+$/],
];

async function saveAs(name) {
  await page.click(sel('frmSave.txtGameName'), {clickCount: 3});
  await page.keyboard.type(name);
  await click(page, 'frmSave.cmdOK');
}

// The game saved as kept.sfl is offered by the Open dialog, which is then cancelled.
async function keptGameListed() {
  await menu(page, 'frmSumfall', 'mnuFile', 'mnuOpen');
  await waitText(page, 'frmOpen.File1', /^kept\.sfl$/);
  await click(page, 'frmOpen.cmdCancel');
}

// Opens a game from the selector by `press` (a click or a tap), stacks its deck and deals.
async function deal([button, form, deck, control, caption], press = click) {
  await press(page, `frmSelect.${button}`);
  await page.waitForSelector(sel(form), {visible: true, timeout: 20000});
  if (deck) await page.evaluate((d) => window.cardhaven.stack(d), deck);
  await press(page, `${form}.cmdPlay`);
  await waitText(page, `${form}.${control}`, caption, 20000);
}

// Closing a game window asks first; Yes goes back to the selector.
async function closeGame(form) {
  await page.click(`${sel(form)} .titlebar .close`);
  await page.waitForSelector('.msgbox', {visible: true, timeout: 20000});
  await page.click('.msgbox .buttons button');
  await page.waitForSelector(sel('frmSelect'), {visible: true, timeout: 20000});
}

describe('the suite in the page', () => {
  test('the selector comes up with its caption and its game buttons', async () => {
    await page.goto(`${server.url}?test`);
    await page.waitForSelector(sel('frmSelect'), {visible: true, timeout: 20000});
    assert.equal(await page.$eval(`${sel('frmSelect')} .caption`, (e) => e.textContent), "Quillmark's Card Haven");
    assert.equal(await page.$eval(`${sel('frmSelect.frmGameChoice')} .legend`, (e) => e.textContent),
      'Select your game');
    for (const [button] of DEALS) await page.waitForSelector(sel(`frmSelect.${button}`), {visible: true});
    // Sound waits for the first gesture: nothing has played yet.
    const played = await page.evaluate(() => window.cardhaven.audio.requests.filter((r) => r.unlocked).length);
    assert.equal(played, 0);
  });

  for (const game of DEALS) {
    test(`${game[1]} opens from the selector and deals a stacked deck`, async () => {
      await deal(game);
      await closeGame(game[1]);
    });
  }

  test('audio was asked for only after the first click', async () => {
    const requests = await page.evaluate(() => window.cardhaven.audio.requests);
    assert.ok(requests.some((r) => r.wave && r.unlocked), JSON.stringify(requests.slice(0, 5)));
    assert.ok(await page.evaluate(() => window.cardhaven.audio.context?.state !== undefined));
  });

  test('Sumfall: a count-up is seen step by step while the page answers, then a high score', async () => {
    await deal(DEALS[0]);
    for (const i of [20, 21, 16, 17, 18, 19, 10, 12, 11, 7, 13, 15, 14, 5, 6, 3, 4, 8, 9, 1, 2]) {
      await click(page, `frmSumfall.FieldCardPicture(${i})`);
    }
    // The last pair ends the round; the bonuses count up with pauses, the page drawing frames all along.
    const seen = page.evaluate(() => new Promise((resolve) => {
      const find = (name) => document.querySelector(`.window[data-form="frmSumfall"] [data-name="${name}"]`);
      const score = find('lblCurrentScore'), round = find('lblCurrentRound');
      const values = new Set();
      let frames = 0, longest = 0, last = performance.now();
      const tick = () => {
        const now = performance.now();
        longest = Math.max(longest, now - last);
        last = now;
        frames++;
        values.add(score.textContent);
        if (round.textContent === '2') resolve({values: [...values], frames, longest});
        else requestAnimationFrame(tick);
      };
      requestAnimationFrame(tick);
    }));
    await click(page, 'frmSumfall.FieldCardPicture(0)');
    const {values, frames, longest} = await seen;
    assert.ok(values.length > 5, `score values seen: ${values.join(' ')}`);
    assert.ok(frames > values.length, `${frames} frames for ${values.length} values`);
    assert.ok(longest < 500, `the page stopped for ${longest} ms`);

    await page.waitForSelector(`${sel('frmSumfall.cmdTakeScore')}:not(:disabled)`, {timeout: 30000});
    await menu(page, 'frmSumfall', 'mnuOptions', 'mnuDrawTimer');
    await click(page, 'frmSumfall.cmdTakeScore');
    // The name window is modal: the game window below takes no click.
    await page.waitForSelector(sel('frmHiScoreName'), {visible: true, timeout: 20000});
    assert.equal(await page.$eval('.modal-blocker', (e) => e.hidden), false);
    await page.click(`${sel('frmHiScoreName')} [data-name="lblPlayerName"]`, {clickCount: 3});
    await page.keyboard.type('Ann');
    await click(page, 'frmHiScoreName.cmdOK');
    await waitText(page, 'frmHighScores.ScoreList(0)', /^Ann$/);
    best = await page.$eval(sel('frmHighScores.ScoreList(1)'), (e) => e.textContent);
    assert.match(best, /^\d\d,\d00$/);
    await click(page, 'frmHighScores.cmdDone');
    await waitText(page, 'frmSumfall.lblHighScore', new RegExp(`^High Score: ${best}$`));
  });

  test('menus and a message box work from the keyboard: No keeps the table', async () => {
    const open = () => page.$$eval(`${sel('frmSumfall')} .menu-title.open`, (els) => els.map((e) => e.dataset.name));
    const active = () => page.$$eval(`${sel('frmSumfall')} .menu-item.active`, (els) => els.map((e) => e.dataset.name));
    await alt(page, 'KeyG');
    assert.deepEqual(await open(), ['mnuFile']);
    assert.deepEqual(await active(), ['mnuPlay']);
    await page.keyboard.press('ArrowRight');
    assert.deepEqual(await open(), ['mnuOptions']);
    await page.keyboard.press('Escape');
    assert.deepEqual(await open(), []);
    // Down to the entry, past any that are hidden, and Return chooses it.
    await alt(page, 'KeyO');
    const entries = await page.$$eval(`${sel('frmSumfall')} [data-name="mnuOptions"] > .menu-list > .menu-item`,
      (els) => els.filter((e) => !e.hidden).map((e) => e.dataset.name));
    for (let i = 0; i < entries.indexOf('mnuClear'); i++) await page.keyboard.press('ArrowDown');
    assert.deepEqual(await active(), ['mnuClear']);
    await page.keyboard.press('Enter');
    assert.equal(await msgboxText(page), 'This will clear all High Scores. Are You Sure?');
    assert.deepEqual(await open(), []);
    assert.equal(await page.$eval('.msgbox .buttons', (e) => e.textContent), 'YesNo');
    // Yes has the focus; the arrow moves it to No, and Return presses No.
    await page.keyboard.press('ArrowRight');
    await page.keyboard.press('Enter');
    await page.waitForSelector('.msgbox', {hidden: true});
    await waitText(page, 'frmSumfall.lblHighScore', new RegExp(`^High Score: ${best}$`));
    // Return takes the first entry; Alt and a button's letter press it.
    await alt(page, 'KeyH');
    await page.keyboard.press('Enter');
    await page.waitForSelector(sel('frmRules'), {visible: true, timeout: 20000});
    await alt(page, 'KeyO');
    await page.waitForSelector(sel('frmRules'), {hidden: true, timeout: 20000});
  });

  test('Sumfall saves a game only in the home folder, which storage keeps', async () => {
    const items = (ref) => page.$$eval(`${sel(ref)} [data-i]`, (els) => els.map((e) => e.textContent));
    await menu(page, 'frmSumfall', 'mnuFile', 'mnuSave');
    await page.waitForSelector(sel('frmSave'), {visible: true});
    // The home folder is the top: no way up out of it.
    assert.deepEqual(await items('frmSave.Dir1'), []);
    await saveAs('../lost.sfl');
    assert.match(await msgboxText(page), /^Unable to save the file\./);
    await page.click('.msgbox .buttons button');
    await saveAs('kept.sfl');
    await page.waitForSelector(sel('frmSave'), {hidden: true});
  });

  test('the high score and the saved game survive a reload', async () => {
    await page.reload();
    await click(page, 'frmSelect.cmdSumfall');
    await waitText(page, 'frmSumfall.lblHighScore', new RegExp(`^High Score: ${best}$`), 20000);
    // The game saved before the reload is still there to open.
    await keptGameListed();
  });

  test('storage that refuses a write gets the save failure message, and nothing is lost', async () => {
    const stored = await storedFiles(page);
    await page.evaluate(() => {
      window.put = IDBObjectStore.prototype.put;
      IDBObjectStore.prototype.put = () => { throw new DOMException('The quota is used up.', 'QuotaExceededError'); };
    });
    await menu(page, 'frmSumfall', 'mnuFile', 'mnuSave');
    await page.waitForSelector(sel('frmSave'), {visible: true});
    await saveAs('refused.sfl');
    assert.match(await msgboxText(page), /^Unable to save the file\./);
    await page.click('.msgbox .buttons button');
    await click(page, 'frmSave.cmdCancel');
    await page.waitForSelector(sel('frmSave'), {hidden: true});
    await page.evaluate(() => { IDBObjectStore.prototype.put = window.put; });
    // The suite's files are as they were, in storage and in the open dialog.
    assert.deepEqual(await storedFiles(page), stored);
    await keptGameListed();
    await page.waitForSelector(sel('frmOpen'), {hidden: true});
  });

  test('a saved game downloads as a file, and one from disk opens in Sumfall', async () => {
    const downloaded = files.next();
    await page.click('#bar [data-action="downloadGame"]');
    const {name, bytes} = await downloaded;
    assert.equal(name, 'kept.sfl');
    assert.equal(bytes.toString('latin1'), (await storedFiles(page))['kept.sfl']);
    // The suite starts again with the game the player chose.
    const started = await nextSuite(page);
    await chooseFile(page, 'openGame', path.join(repo, 'tests/scenarios/command/cleo.sfl'));
    assert.match(await dialogs.wait(/starts again/), /Close the windows open now\?/);
    await started();
    await click(page, 'frmSelect.cmdSumfall');
    assert.match(await msgboxText(page), /^This game was saved by Cleo\./);
    await page.keyboard.press('Enter');
    await page.waitForSelector('.msgbox', {hidden: true});
    assert.ok('cleo.sfl' in await storedFiles(page));
  });

  test('the high score tables go out to a file and come back in', async () => {
    const exported = files.next();
    await page.click('#bar [data-action="exportTables"]');
    const {name, bytes} = await exported;
    const tables = JSON.parse(bytes);
    assert.ok(Object.keys(tables).every((t) => /\.Txt$/.test(t)), Object.keys(tables).join(' '));
    assert.ok(Object.values(tables).some((t) => /Ann/.test(atob(t))));
    // Cleared from the keyboard: Alt+O, the entry's letter, and Y for Yes.
    await alt(page, 'KeyO');
    await page.keyboard.press('c');
    await page.waitForSelector('.msgbox', {visible: true});
    await page.keyboard.press('y');
    await waitText(page, 'frmSumfall.lblHighScore', new RegExp(`^High Score: (?!${best}$)`));
    const started = await nextSuite(page);
    await chooseFile(page, 'importTables', path.join(files.dir, name));
    await dialogs.wait(/starts again/);
    assert.match(await dialogs.wait(/imported/), /^(One table was|\d+ tables were) imported\.$/);
    await started();
    await click(page, 'frmSelect.cmdSumfall');
    await waitText(page, 'frmSumfall.lblHighScore', new RegExp(`^High Score: ${best}$`), 20000);
  });

  test('a tap on a touch screen plays a card', async () => {
    await page.setViewport({width: 1280, height: 900, hasTouch: true});  // and loads the page again
    await deal(DEALS[0], tap);
    await tap(page, 'frmSumfall.FieldCardPicture(20)');
    await tap(page, 'frmSumfall.FieldCardPicture(21)');
    await waitText(page, 'frmSumfall.lblCurrentScore', /^[1-9]/);
  });

  test('a second tab says the suite is open elsewhere', async () => {
    const second = await browser.newPage();
    await second.goto(server.url);
    await second.waitForFunction(() => /another tab/.test(document.getElementById('status').textContent),
      {timeout: 10000});
    assert.equal(await second.$('.window'), null);
    await second.close();
  });

  test("the web site button gives the selector's own message when the browser refuses a new tab", async () => {
    await page.goto(`${server.url}?test&nopopup`);
    await click(page, 'frmSelect.cmdLaunchBrowser');
    assert.match(await msgboxText(page), /^Unable to open web page '.+'\.$/);
    assert.ok(await page.$('.msgbox .icon.exclamation'));
    await page.click('.msgbox .buttons button');
  });

  test('the web site button opens the address in a new tab, and the selector says nothing', async () => {
    await page.goto(`${server.url}?test`);
    await page.waitForSelector(sel('frmSelect'), {visible: true, timeout: 20000});
    await page.evaluate(() => {
      const open = window.open;
      window.opened = [];
      window.open = (...args) => {
        window.opened.push(args[0]);
        return open.apply(window, args);
      };
    });
    const tab = browser.waitForTarget((t) => /^https?:/.test(t.url()) && !t.url().startsWith(server.url),
      {timeout: 15000});
    await click(page, 'frmSelect.cmdLaunchBrowser');
    const opened = (await tab).url();
    assert.deepEqual(await page.evaluate(() => window.opened), [opened]);
    // The new tab came to the front; the player comes back to the suite.
    await (await (await tab).page()).close();
    await page.bringToFront();
    // The selector goes on: a game opens, and no message box came before it.
    await click(page, 'frmSelect.cmdTreyshift');
    await page.waitForSelector(sel('frmTreyshift'), {visible: true, timeout: 20000});
    assert.equal(await page.$('.msgbox'), null);
    await closeGame('frmTreyshift');
  });

  test('closing the selector ends the suite and leaves a page that starts it again', async () => {
    await click(page, 'frmSelect.cmdClose');
    await page.waitForSelector('#status button.again', {visible: true});
    assert.equal(await page.$('.window'), null);
    await page.click('#status button.again');
    await page.waitForSelector(sel('frmSelect'), {visible: true, timeout: 20000});
  });

  test('the page starts and plays offline after one visit', async () => {
    await page.waitForFunction(async () => (await navigator.serviceWorker.ready).active?.state === 'activated',
      {timeout: 20000});
    server.stop();
    await page.reload();
    await page.waitForSelector(sel('frmSelect'), {visible: true, timeout: 20000});
    await click(page, 'frmSelect.cmdTreyshift');
    await click(page, 'frmTreyshift.cmdPlay');
    await waitText(page, 'frmTreyshift.lblCardCount', /^Cards remaining: \d+$/, 20000);
  });

  test('a new version is fetched in the background, taken at the next start, and the player is told', async () => {
    const copy = fs.mkdtempSync(path.join(os.tmpdir(), 'cardhaven-site-'));
    fs.cpSync(site, copy, {recursive: true});
    const other = await startServer(copy, 1);
    const tab = await browser.newPage();
    const note = (pattern) => tab.waitForFunction(
      (p) => new RegExp(p).test(document.getElementById('update').textContent), {timeout: 30000, polling: 100},
      pattern.source);
    try {
      await tab.goto(`${other.url}?test`);
      await tab.waitForFunction(async () => (await navigator.serviceWorker.ready).active?.state === 'activated',
        {timeout: 20000});
      const version = await tab.$eval('html', (e) => e.dataset.version);
      for (const name of ['index.html', 'sw.js']) {
        const file = path.join(copy, name);
        fs.writeFileSync(file, fs.readFileSync(file, 'utf8').replaceAll(version, `${version}-next`));
      }
      // The page that finds it goes on with the version it started with.
      await tab.reload();
      await note(/^A new version of Card Haven is ready/);
      assert.equal(await tab.$eval('html', (e) => e.dataset.version), version);
      await tab.reload();
      await note(new RegExp(`^Card Haven was updated to version ${version}-next\\.$`));
      await tab.waitForSelector(sel('frmSelect'), {visible: true, timeout: 20000});
    } finally {
      await tab.close();
      other.stop();
      fs.rmSync(copy, {recursive: true, force: true});
    }
  });
});
