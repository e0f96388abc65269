// The page's worker, run under Node in a context that stands for a worker's
// global scope: the same script, the same messages.
'use strict';
const fs = require('fs');
const vm = require('vm');

/// The worker's source from the script the page loads, or null when the
/// web build is not there.
function WorkerSource(workerScript) {
  if (!fs.existsSync(workerScript)) return null;
  const holder = {};
  vm.runInNewContext(fs.readFileSync(workerScript, 'utf8'), holder);
  return holder.QUILLMESH_WORKER_SOURCE;
}

/// Starts a worker on \p source; \returns post(request) -> Promise of the
/// list of the messages it posted, up to its 'done' or 'failed'.
function StartWorker(source) {
  let pending = null;
  const scope = {
    importScripts() {},
    location: {href: 'blob:null/worker'},
    console,
    setTimeout,
    clearTimeout,
    TextDecoder,
    TextEncoder,
    URL,
    performance,
    postMessage(message) {
      pending.messages.push(message);
      if (message.type === 'done' || message.type === 'failed') pending.resolve(pending.messages);
    },
  };
  scope.self = scope;
  vm.createContext(scope);
  vm.runInContext(source, scope, {filename: 'quillmesh-worker.js'});
  return (request) => new Promise((resolve) => {
    pending = {messages: [], resolve};
    scope.onmessage({data: request});
  });
}

module.exports = {WorkerSource, StartWorker};
