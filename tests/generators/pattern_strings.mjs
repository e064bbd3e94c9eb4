// Holds strings to their patterns:
//   node pattern_strings.mjs STRINGS EMPTY...
// STRINGS is the file with what generate_strings printed, EMPTY are the patterns of documents that match nothing.
import { readFileSync } from 'node:fs';

const [file, ...empty] = process.argv.slice(2);
const counts = { patterns: 0, strings: 0, withoutStrings: 0, withoutFlag: 0, refused: 0 };
const faults = [];

// Documents escape what flag "u" wants to see bare, and put classes into ranges. What such patterns mean is the same
// without the flag, where they have nothing that only the flag knows.
function expression(pattern) {
  try {
    return new RegExp(pattern, 'u');
  } catch (error) {
    if (/\\p|\\u\{|[^\0-\uFFFF]/iu.test(pattern)) throw error;
    counts.withoutFlag++;
    return new RegExp(pattern);
  }
}

function isPattern(pattern) {
  try {
    return Boolean(new RegExp(pattern, 'u'));
  } catch (error) {
    return false;
  }
}

for (const line of readFileSync(file, 'utf8').trimEnd().split('\n')) {
  const { pattern, minLength, maxLength, drawn, strings, refusal } = JSON.parse(line);
  counts.patterns++;
  if (refusal) {
    counts.refused++;
    if (!refusal.endsWith('not supported') && isPattern(pattern)) faults.push(`${pattern}: refused, ${refusal}`);
    continue;
  }
  const judge = expression(pattern);
  counts.strings += strings.length;
  if (strings.length === 0) {
    counts.withoutStrings++;
    if (!drawn && !empty.includes(pattern))
      faults.push(`${pattern}: no string`);
  }
  for (const text of strings) {
    const length = [...text].length;
    if (!judge.test(text)) faults.push(`${pattern}: ${JSON.stringify(text)} does not match`);
    if (length < minLength || length > (maxLength ?? Infinity)) faults.push(`${pattern}: ${length} characters`);
  }
}
console.log(counts);
for (const fault of faults.slice(0, 50)) console.log(fault);
process.exit(faults.length > 0 || counts.strings < 10000 ? 1 : 0);
