// The worker: one conversion of one file, on an engine of its own.
//
// It takes {name, file or bytes, stopStage, stopPosition} and posts, in the
// order of the run:
//   {type: 'message', key, text}     a message of the engine
//   {type: 'notice', text}           why the page stopped a read
//   {type: 'progress', what, value, text}
//                                    what: open, stage, range, advance,
//                                    close, stopped
//   {type: 'done', code, outputName, output}
//                                    output: the .tvt file's bytes, or null
//   {type: 'refused', text}          the file is no text: nothing was run
//   {type: 'failed', reason}         the engine could not run to its end
'use strict';

// A name that the engine's file system can hold in its working folder.
function SafeName(name) {
  const safe = String(name || '').replace(/[\/\0]/g, '_');
  return safe === '' || safe === '.' || safe === '..' ? 'model.s2k' : safe;
}

async function ConvertRequest(request, post) {
  const name = SafeName(request.name);
  const bytes = request.bytes ? request.bytes : new Uint8Array(await request.file.arrayBuffer());
  // Binary data under another name than .s2k is no export; an .s2k file
  // with stray NUL bytes is still read, as everywhere else.
  if (!/\.s2k$/i.test(name) && bytes.subarray(0, 65536).includes(0)) {
    post({type: 'refused', text: `“${request.name}” holds binary data and its name does not end in .s2k: ` +
                                 'it is no SAP2000 V8 text export, so nothing was converted.'});
    return;
  }
  const engine = await createQuillmeshEngine({
    onEngineMessage: (text, key) => post({type: 'message', key, text}),
    onEngineNotice: (text) => post({type: 'notice', text}),
    onEngineProgress: (what, value, text) => post({type: 'progress', what, value, text}),
    print: () => {},
    printErr: () => {},
  });
  engine.FS.mkdir('/convert');
  engine.FS.chdir('/convert');
  engine.FS.writeFile(name, bytes);
  const code = engine.ccall('QmConvert', 'number', ['string', 'number', 'number'],
                            [name, request.stopStage | 0, request.stopPosition | 0]);
  const outputName = engine.ccall('QmOutputPath', 'string', ['string'], [name]);
  let output = null;
  try {
    output = engine.FS.readFile(outputName);
  } catch (missing) {
    output = null;
  }
  post({type: 'done', code, outputName, output}, output ? [output.buffer] : []);
}

self.onmessage = (event) => {
  const post = (message, transfer) => self.postMessage(message, transfer || []);
  ConvertRequest(event.data, post).catch((error) => {
    let reason = String((error && error.message) || error);
    if (/memory|Cannot enlarge|Aborted/i.test(reason))
      reason = 'the browser could not give the conversion enough memory (' + reason + ')';
    post({type: 'failed', reason});
  });
};
