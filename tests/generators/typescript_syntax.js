// Prints each syntax error of the TypeScript and JSON files below a folder, then how many files there are:
//   node typescript_syntax.js NODE-MODULES FOLDER

const fs = require('fs');
const path = require('path');

const [modules, root] = process.argv.slice(2);
const ts = require(path.join(modules, 'typescript'));

let count = 0;
for (const name of fs.readdirSync(root, { recursive: true })) {
  const file = path.join(root, name);
  if (!/\.(ts|json)$/.test(name) || !fs.statSync(file).isFile()) continue;
  const text = fs.readFileSync(file, 'utf8');
  count += 1;
  const source = name.endsWith('.ts') ? ts.createSourceFile(file, text, ts.ScriptTarget.ESNext) : ts.parseJsonText(file, text);
  for (const fault of source.parseDiagnostics)
    console.log(`${file}: ${ts.flattenDiagnosticMessageText(fault.messageText, ' ')}`);
}
console.log(count);
