// Parses the TypeScript and JSON files of generated projects:
//   node typescript_syntax.js NODE-MODULES RUNS
// RUNS is a file with a line for each run, a JSON object with the members "document" and "generator", and "folder" and
// "operationIds" or in place of these "failure". Documents that cannot be read have one line, without a generator.
'use strict';
const fs = require('fs');
const path = require('path');

const [modules, runsFile] = process.argv.slice(2);
const ts = require(path.join(modules, 'typescript'));

function syntaxErrors(name, text) {
  const source = name.endsWith('.ts') ? ts.createSourceFile(name, text, ts.ScriptTarget.Latest)
    : ts.parseJsonText(name, text);
  return source.parseDiagnostics.map((fault) => {
    const { line } = source.getLineAndCharacterOfPosition(fault.start);
    return `${name}:${line + 1}: ${ts.flattenDiagnosticMessageText(fault.messageText, ' ')}`;
  });
}

/** Whether a function can have that name. */
function isIdentifier(name) {
  const source = ts.createSourceFile('name.ts', `function ${name}() {}`, ts.ScriptTarget.Latest);
  const [statement] = source.statements;
  return source.parseDiagnostics.length === 0 && source.statements.length === 1 && statement.name?.text === name;
}

// Files that do not parse as they stand, and say so in the manual: what the generator of that name makes of which file
// is either left alone, or made whole first.
const exceptions = {
  'client fetch src/actions.ts': (text, run) => (run.operationIds.every(isIdentifier) ? text : null),
  'client fetch src/utils.ts': (text) => text.replace(/\\([`$])/g, '$1'),
};

// What ends a run of a generator on a document of the corpora: two operations of one name.
const refusals = { 'client fetch': /^Function already exists / };

const runs = fs.readFileSync(runsFile, 'utf8').trimEnd().split('\n').map((line) => JSON.parse(line));
const counts = { parsed: 0, exempt: 0, unreadable: 0, refused: 0 };
const faults = [];
for (const run of runs) {
  if (!run.folder) {
    counts[run.generator ? 'refused' : 'unreadable']++;
    if (run.generator && !refusals[run.generator]?.test(run.failure)) faults.push(`${run.generator} failed`);
    console.log(`${run.generator ?? 'not read'}: ${path.basename(run.document)}: ${run.failure.trimEnd()}`);
    continue;
  }
  const files = fs.existsSync(run.folder) ? fs.readdirSync(run.folder, { recursive: true }) : [];
  if (files.length === 0 && run.generator !== 'server nestjs') // which has none for a document without operations
    faults.push(`${path.basename(run.document)}: ${run.generator} made nothing`);
  for (const name of files.filter((file) => /\.(ts|json)$/.test(file))) {
    const text = fs.readFileSync(path.join(run.folder, name), 'utf8');
    const exception = exceptions[`${run.generator} ${name}`];
    const whole = exception ? exception(text, run) : text;
    counts[whole === null ? 'exempt' : 'parsed']++;
    if (whole !== null)
      faults.push(...syntaxErrors(`${path.basename(run.document)} ${run.generator} ${name}`, whole));
  }
}
console.log(counts);
for (const fault of faults.slice(0, 50)) console.log(fault);
process.exit(faults.length > 0 || counts.unreadable * 2 > runs.length ? 1 : 0);
