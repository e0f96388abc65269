// The page in headless Chromium, opened from file://, driven through
// chromedriver's HTTP interface: a model converted and downloaded, Stop in
// each stage, a 60 MB model with the page kept answering, and bad input.
//
//   node page.js PAGE_DIR GOLDEN_DIR WORK_DIR [SCREENSHOT.png]
//
// Exits 77 (skipped) when the page, Chromium or chromedriver is missing.
'use strict';
const assert = require('assert');
const child = require('child_process');
const fs = require('fs');
const net = require('net');
const path = require('path');
const {WriteBigModel} = require('./big_model');

const [pageDir, goldenDir, workDir, screenshot] = process.argv.slice(2);

function Which(names) {
  for (const name of names)
    for (const dir of (process.env.PATH || '').split(':'))
      if (dir && fs.existsSync(path.join(dir, name))) return path.join(dir, name);
  return null;
}

function Skip(why) {
  console.log(`skipped: ${why}`);
  process.exit(77);
}

const page = path.join(pageDir, 'index.html');
if (!fs.existsSync(page) || !fs.existsSync(path.join(pageDir, 'quillmesh-worker.js')))
  Skip(`no page in ${pageDir}; the web build needs emscripten (apt-get install emscripten)`);
const browser = Which(['chromium', 'chromium-browser', 'google-chrome']);
const driver = Which(['chromedriver']);
if (!browser || !driver) Skip('no headless Chromium (apt-get install chromium chromium-driver)');

const sleep = (ms) => new Promise((resolve) => setTimeout(resolve, ms));

function FreePort() {
  return new Promise((resolve) => {
    const server = net.createServer();
    server.listen(0, '127.0.0.1', () => {
      const {port} = server.address();
      server.close(() => resolve(port));
    });
  });
}

class Session {
  static async Open(port, downloads) {
    const base = `http://127.0.0.1:${port}`;
    for (let i = 0; ; ++i) {
      try {
        if ((await fetch(`${base}/status`)).ok) break;
      } catch (notYet) {
        if (i > 100) throw new Error('chromedriver did not start');
      }
      await sleep(100);
    }
    const session = new Session(base);
    const answer = await session.Call('POST', '/session', {capabilities: {alwaysMatch: {
      browserName: 'chrome',
      'goog:chromeOptions': {binary: browser, args: ['--headless=new', '--no-sandbox', '--disable-gpu',
                                                    '--disable-dev-shm-usage', '--window-size=1000,1000']},
    }}});
    session.base = `${base}/session/${answer.sessionId}`;
    await session.Call('POST', '/goog/cdp/execute',
                       {cmd: 'Browser.setDownloadBehavior', params: {behavior: 'allow', downloadPath: downloads}});
    return session;
  }

  constructor(base) { this.base = base; }

  async Call(method, route, body) {
    const response = await fetch(this.base + route, {
      method, headers: {'Content-Type': 'application/json'}, body: body ? JSON.stringify(body) : undefined});
    const answer = await response.json();
    if (!response.ok) throw new Error(`${method} ${route}: ${JSON.stringify(answer.value).slice(0, 400)}`);
    return answer.value;
  }

  Run(script, ...args) { return this.Call('POST', '/execute/sync', {script, args}); }

  async ChooseFile(file) {
    await this.Run(`document.getElementById('result').textContent = '';`);
    const input = await this.Call('POST', '/element', {using: 'css selector', value: '#file'});
    const id = Object.values(input)[0];
    await this.Call('POST', `/element/${id}/value`, {text: file});
  }

  State() {
    return this.Run(`const $ = (id) => document.getElementById(id);
      return {result: $('result').textContent, notice: $('notice').hidden ? '' : $('notice').textContent,
              stopEnabled: !$('stop').disabled, download: $('download').hidden ? null : $('download').download,
              messages: [...$('messages').children].map((li) => li.querySelector('code').textContent),
              current: [...$('stages').children].filter((li) => li.className === 'current').map((li) => li.dataset.stage)};`);
  }

  // Waits until the page shows a result; \returns the page's state.
  async Result(seconds = 120) {
    for (const end = Date.now() + seconds * 1000; Date.now() < end; await sleep(50)) {
      const state = await this.State();
      if (state.result) return state;
    }
    throw new Error('the page showed no result in time');
  }

  // Counts how long the page's main thread was held at most, from now on.
  WatchResponsiveness() {
    return this.Run(`window.longestGap = 0; let last = performance.now();
      clearInterval(window.gapTimer);
      window.gapTimer = setInterval(() => { const now = performance.now();
        window.longestGap = Math.max(window.longestGap, now - last); last = now; }, 20);`);
  }
}

async function Main() {
  fs.rmSync(workDir, {recursive: true, force: true});
  const downloads = path.join(workDir, 'downloads');
  fs.mkdirSync(downloads, {recursive: true});

  // A case with messages and renumbered names, under a name with two dots.
  const golden = path.join(goldenDir, 'elements-renumbered-two-kinds');
  const model = path.join(workDir, 'bridge.v2.s2k');
  fs.copyFileSync(path.join(golden, 'model.s2k'), model);
  const expectedTvt = Buffer.from(
      fs.readFileSync(path.join(golden, 'expected.tvt'), 'latin1').split('@OUTPUT@').join('bridge.v2.tvt'), 'latin1');
  const expectedKeys = fs.readFileSync(path.join(golden, 'expected.run'), 'utf8').split('\n')
                           .filter((line) => line.startsWith('message ')).map((line) => line.slice(8));

  const big = path.join(workDir, 'big.s2k');
  WriteBigModel(big, 60);
  const empty = path.join(workDir, 'empty.s2k');
  fs.writeFileSync(empty, '');
  const picture = path.join(workDir, 'photo.png');
  fs.writeFileSync(picture, Buffer.from([0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a, 0, 0, 0, 13, 0x49, 0x48, 0x44, 0x52]));
  const notes = path.join(workDir, 'notes.txt');
  fs.writeFileSync(notes, 'Notes on the second floor\nto be checked on Monday\nwith the new sections\nand the crane\n');
  const huge = path.join(workDir, 'huge.s2k');
  fs.closeSync(fs.openSync(huge, 'w'));
  fs.truncateSync(huge, 200 * 1048576);

  const port = await FreePort();
  const chromedriver = child.spawn(driver, [`--port=${port}`], {stdio: 'ignore'});
  let session = null;
  const checks = [];
  const Check = async (name, body) => {
    const started = Date.now();
    try {
      await body();
      checks.push(`ok   ${name} (${((Date.now() - started) / 1000).toFixed(1)} s)`);
    } catch (error) {
      checks.push(`FAIL ${name}: ${error.message}`);
    }
    console.log(checks[checks.length - 1]);
  };
  try {
    session = await Session.Open(port, downloads);
    await session.Call('POST', '/url', {url: 'file://' + path.resolve(page)});

    await Check('a model converts and downloads under its output name, with its messages and keys', async () => {
      await session.ChooseFile(model);
      const state = await session.Result();
      assert.match(state.result, /^Finished in .*: bridge\.v2\.tvt/);
      assert.deepStrictEqual(state.messages, expectedKeys);
      assert.strictEqual(state.download, 'bridge.v2.tvt');
      assert.strictEqual(state.stopEnabled, false);
      if (screenshot) {
        const png = await session.Call('GET', '/screenshot');
        fs.writeFileSync(screenshot, Buffer.from(png, 'base64'));
      }
      await session.Run(`document.getElementById('download').click();`);
      const file = path.join(downloads, 'bridge.v2.tvt');
      for (let i = 0; i < 100 && !(fs.existsSync(file) && fs.statSync(file).size === expectedTvt.length); ++i) await sleep(100);
      assert.ok(fs.readFileSync(file).equals(expectedTvt), 'the downloaded file differs from the expected one');
    });

    for (const stage of [1, 2, 3]) {
      await Check(`Stop pressed in stage ${stage} ends the run with nothing to download`, async () => {
        // Pressed as soon as the stage shows, as a quick user would.
        await session.Run(`const item = document.querySelector('#stages li[data-stage="${stage}"]');
          new MutationObserver((changes, observer) => { if (item.className === 'current') {
            observer.disconnect(); document.getElementById('stop').click(); } })
            .observe(item, {attributes: true});`);
        await session.ChooseFile(big);
        const state = await session.Result();
        assert.strictEqual(state.result, `Stopped in stage ${stage} of 3; nothing to download.`);
        assert.strictEqual(state.download, null);
        assert.strictEqual(state.stopEnabled, false);
      });
    }

    await Check('a 60 MB model converts in the worker while the page keeps answering', async () => {
      await session.WatchResponsiveness();
      await session.ChooseFile(big);
      await sleep(300);
      const during = await session.State();
      assert.strictEqual(during.stopEnabled, true, 'the conversion was not running');
      // A second file while the first converts is refused, and the first goes on.
      await session.ChooseFile(model);
      const refused = await session.State();
      assert.match(refused.notice, /“bridge\.v2\.s2k” was not opened: “big\.s2k” is being converted/);
      // And so is one dropped on the page.
      await session.Run(`const files = new DataTransfer();
        files.items.add(new File(['TABLE:  "JOINT COORDINATES"\\n'], 'second.s2k'));
        document.getElementById('drop').dispatchEvent(
          new DragEvent('drop', {dataTransfer: files, bubbles: true, cancelable: true}));`);
      const dropped = await session.State();
      assert.match(dropped.notice, /“second\.s2k” was not opened: “big\.s2k” is being converted/);
      assert.strictEqual(dropped.stopEnabled, true);
      const state = await session.Result(300);
      assert.match(state.result, /^Finished in .*: big\.tvt/);
      assert.strictEqual(state.download, 'big.tvt');
      const gap = await session.Run('return window.longestGap;');
      assert.ok(gap < 2000, `the page stood still for ${gap} ms`);
    });

    await Check('an empty file is named as such and gives the frame of a TVT file', async () => {
      await session.ChooseFile(empty);
      const state = await session.Result();
      assert.match(state.notice, /“empty\.s2k” is empty/);
      assert.match(state.result, /^Finished in .*: empty\.tvt/);
      assert.deepStrictEqual(state.messages, ['IDS_S2KV8_Export_must_be_executed']);
    });

    await Check('a binary file that is not s2k is refused before the engine runs', async () => {
      await session.ChooseFile(picture);
      const state = await session.Result();
      assert.match(state.notice, /“photo\.png” holds binary data and its name does not end in \.s2k/);
      assert.strictEqual(state.result, 'Nothing was converted.');
      assert.deepStrictEqual(state.messages, []);
      assert.strictEqual(state.download, null);
    });

    await Check('a text that is not s2k is named as such, and fails with the engine\'s messages', async () => {
      // Three foreign opening lines are borne, the fourth ends the run.
      await session.ChooseFile(notes);
      const state = await session.Result();
      assert.match(state.notice, /The name “notes\.txt” does not end in \.s2k/);
      assert.deepStrictEqual(state.messages, ['IDS_S2KV8_Export_must_be_executed', 'IDS_S2KV8_DATA_Not_Convert',
                                              'IDS_S2KV8_DATA_Not_Convert', 'IDS_S2KV8_DATA_Not_Convert',
                                              'IDS_S2KV8_Not_Convert']);
      assert.match(state.result, /^The conversion of “notes\.txt” failed \(code -1\); nothing to download/);
      assert.strictEqual(state.download, null);
    });

    await Check('a file of 200 MB is refused before it is read', async () => {
      await session.ChooseFile(huge);
      await sleep(200);
      const state = await session.State();
      assert.match(state.notice, /“huge\.s2k” is 200 MB; this page converts files of up to 150 MB/);
      assert.strictEqual(state.stopEnabled, false);
      // The page still converts afterwards.
      await session.ChooseFile(model);
      assert.match((await session.Result()).result, /^Finished/);
    });
  } finally {
    if (session) await session.Call('DELETE', '').catch(() => {});
    chromedriver.kill();
    for (const file of [big, huge]) fs.rmSync(file, {force: true});
  }
  const failed = checks.filter((line) => line.startsWith('FAIL')).length;
  console.log(`${checks.length - failed} of ${checks.length} checks of the page pass`);
  process.exit(failed ? 1 : 0);
}

Main().catch((error) => {
  console.log(`FAIL ${error.stack}`);
  process.exit(1);
});
