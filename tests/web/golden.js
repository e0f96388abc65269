// The WebAssembly engine over every end-to-end case: the same bytes, the same
// messages in the same order, the same code as the expected files say.
//
//   node golden.js WORKER_SCRIPT GOLDEN_DIR
//
// Exits 77 (skipped) when the web build is not there.
'use strict';
const fs = require('fs');
const path = require('path');
const {WorkerSource, StartWorker} = require('./worker_sandbox');

const [workerScript, goldenDir] = process.argv.slice(2);
const source = WorkerSource(workerScript);
if (!source) {
  console.log(`skipped: no ${workerScript}; the web build needs emscripten (apt-get install emscripten)`);
  process.exit(77);
}

function Lines(text) {
  return text.split('\n').filter((line) => line !== '');
}

async function RunCase(post, dir) {
  const request = {name: 'model.s2k', bytes: new Uint8Array(fs.readFileSync(path.join(dir, 'model.s2k')))};
  const stopFile = path.join(dir, 'stop');
  if (fs.existsSync(stopFile)) {
    const [stage, position] = fs.readFileSync(stopFile, 'utf8').trim().split(/\s+/).map(Number);
    Object.assign(request, {stopStage: stage, stopPosition: position});
  }
  const messages = await post(request);
  const end = messages[messages.length - 1];
  if (end.type !== 'done') return [`the worker failed: ${end.reason}`];

  const faults = [];
  const got = messages.filter((m) => m.type === 'message')
                  .map((m) => (m.key ? `message ${m.key}` : `text ${m.text}`));
  got.push(`code ${end.code}`);
  const want = Lines(fs.readFileSync(path.join(dir, 'expected.run'), 'utf8'));
  if (JSON.stringify(got) !== JSON.stringify(want))
    faults.push(`run:\n  want ${want.join(' | ')}\n  got  ${got.join(' | ')}`);
  if (end.outputName !== 'model.tvt') faults.push(`output named ${end.outputName}`);

  const expectedTvt = path.join(dir, 'expected.tvt');
  if (fs.existsSync(expectedTvt)) {
    const want = Buffer.from(fs.readFileSync(expectedTvt, 'latin1').split('@OUTPUT@').join(end.outputName), 'latin1');
    if (!end.output) {
      faults.push('no output');
    } else {
      const gotBytes = Buffer.from(end.output);
      if (!gotBytes.equals(want)) {
        let at = 0;
        while (at < want.length && gotBytes[at] === want[at]) ++at;
        faults.push(`output differs at byte ${at}: want ${JSON.stringify(want.subarray(at, at + 40).toString('latin1'))}` +
                    ` got ${JSON.stringify(gotBytes.subarray(at, at + 40).toString('latin1'))}`);
      }
    }
  } else if (end.output) {
    faults.push('an output file where the run must leave none');
  }
  return faults;
}

(async () => {
  const post = StartWorker(source);
  const cases = fs.readdirSync(goldenDir).filter((name) => fs.statSync(path.join(goldenDir, name)).isDirectory()).sort();
  let failed = 0;
  for (const name of cases) {
    const faults = await RunCase(post, path.join(goldenDir, name));
    if (faults.length) {
      ++failed;
      console.log(`FAIL ${name}\n  ${faults.join('\n  ')}`);
    }
  }
  console.log(`${cases.length - failed} of ${cases.length} cases give the expected bytes, messages and code`);
  process.exit(failed || cases.length === 0 ? 1 : 0);
})();
