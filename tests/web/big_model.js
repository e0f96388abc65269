// A large s2k model for the page's tests: a chain of joints and frames with
// a section each, of about the size asked for.
'use strict';
const fs = require('fs');

const HEAD = [
  'File big.s2k: a long chain of frames',
  ' ',
  'TABLE:  "PROGRAM CONTROL"',
  '   ProgramName=SAP2000   Version=8.0.0   CurrUnits="KN, m, C"',
  ' ',
  'TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"',
  '   Material=STEEL   Type=Isotropic   DesignType=Steel   UnitMass=7.849   UnitWeight=76.9729   E=199947978   U=0.3',
  ' ',
  'TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"',
  '   SectionName=COL   Material=STEEL   Shape=Box/Tube   t3=0.3   t2=0.3   tf=0.012   tw=0.012   Area=0.013824',
  ' ',
].join('\n') + '\n';

/// Writes the model to \p path, of at least \p megabytes; \returns its joint count.
function WriteBigModel(path, megabytes) {
  const perJoint = 300;
  const count = Math.ceil((megabytes * 1048576) / perJoint);
  const out = fs.openSync(path, 'w');
  const table = (title, row) => {
    fs.writeSync(out, `TABLE:  "${title}"\n`);
    for (let start = 1; start <= count; start += 10000) {
      const lines = [];
      for (let i = start; i < start + 10000 && i <= count; ++i) lines.push(row(i));
      fs.writeSync(out, lines.join('\n') + '\n');
    }
    fs.writeSync(out, ' \n');
  };
  fs.writeSync(out, HEAD);
  table('JOINT COORDINATES', (i) =>
    `   Joint=${i}   CoordSys=GLOBAL   CoordType=Cartesian   XorR=${i * 0.5}   Y=0   Z=0   SpecialJt=No` +
    `   GlobalX=${i * 0.5}   GlobalY=0   GlobalZ=0`);
  table('CONNECTIVITY - FRAME', (i) => `   Frame=${i}   JointI=${i}   JointJ=${i + 1}   IsCurved=No`);
  table('FRAME SECTION ASSIGNMENTS', (i) =>
    `   Frame=${i}   SectionType=Box/Tube   AutoSelect=N.A.   AnalSect=COL   DesignSect=COL   MatProp=Default`);
  fs.writeSync(out, 'END TABLE DATA\n');
  fs.closeSync(out);
  return count;
}

module.exports = {WriteBigModel};
