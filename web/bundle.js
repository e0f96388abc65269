// Joins the engine and the worker's code into one script that holds them as
// a text, QUILLMESH_WORKER_SOURCE; the page makes its worker from that text.
'use strict';
const fs = require('fs');
const [output, ...inputs] = process.argv.slice(2);
const source = inputs.map((path) => fs.readFileSync(path, 'utf8')).join('\n;\n');
fs.writeFileSync(output, '// The worker of the Quillmesh page: the engine and its driver.\n' +
                 'var QUILLMESH_WORKER_SOURCE = ' + JSON.stringify(source) + ';\n');
