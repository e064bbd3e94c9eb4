// Judges the sources of generated sites:
//   node judge_sources.js NODE-MODULES RUNS
// RUNS is a file with a line for each site, a JSON object with "name", "folder", "document" (a file of JSON), "locales" ([{segment, suffix}]),
// "operations", and "bytes", how many of its components are compiled (all, when it is absent). Writes a line for each.
"use strict";

const fs = require("fs");
const { createRequire } = require("module");
const path = require("path");
const { Site } = require("./site.js");
const { TextJudge } = require("./texts.js");

const [modules, runsFile] = process.argv.slice(2);
const installed = createRequire(path.resolve(modules, "any"));

async function judge(run) {
  const site = await Site.read(run.folder, installed, run.bytes ?? Number.POSITIVE_INFINITY);
  site.checkLinks();
  site.checkUse();
  const texts = new TextJudge(JSON.parse(fs.readFileSync(run.document, "utf8")), site, run);
  const faults = [...site.faults, ...texts.check()];
  const links = [...site.files.values()].reduce((sum, component) => sum + component.links.length, 0);
  return { name: run.name, files: site.names.size, compiled: site.compiled, bytes: site.bytes, links, texts: texts.looked, faults };
}

(async () => {
  for (const line of fs.readFileSync(runsFile, "utf8").trimEnd().split("\n")) console.log(JSON.stringify(await judge(JSON.parse(line))));
})();
