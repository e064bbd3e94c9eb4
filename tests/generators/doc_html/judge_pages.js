// Judges the pages that Astro built of a generated site:
//   node judge_pages.js NODE-MODULES FOLDER [MARKER...]
// FOLDER is the one that Astro wrote. Every link of the site itself leads to a page and an anchor on it; nothing but the elements and
// attributes that the stand-in components and Markdown have is there, and no link that runs something; each MARKER is a text of some page, or,
// behind a "!", of none.
// Writes a JSON object with "pages", "links" and "faults".
"use strict";

const fs = require("fs");
const path = require("path");

const [modules, folder, ...markers] = process.argv.slice(2);

const elements = new Set(("html head meta title body header nav main section div dl dt dd ol li a p h1 h2 h3 h4 h5 h6 ul pre code em strong " +
  "blockquote hr br table thead tbody tr th td del img input").split(" "));
const attributes = new Set("id href data-component data-slot data-name lang charset name content title alt class start align src type checked disabled".split(" "));
const schemes = ["http:", "https:", "mailto:"];
// Whose links are not the site's own.
const foreign = ["Contact", "CustomItem", "CustomItemGroup", "ExternalLink", "License"];

const faults = [];
const pages = new Map(); // by path: {ids, links, text}

/** Whether a browser that follows the link would run it. */
function isUnsafe(link) {
  if (/^[\u0000- ]*[/#?]/.test(link)) return false;
  const scheme = /^[\u0000- ]*((?:[A-Za-z][\t\n\r]*)(?:[\w+.-][\t\n\r]*)*:)/.exec(link)?.[1].replace(/\s/g, "").toLowerCase();
  return scheme !== undefined && !schemes.includes(scheme);
}

/** The page that leads to that of the default locale is Astro's own. */
function readRedirection(file) {
  const target = /^<!doctype html>\s*<title>Redirecting to: ([^<]*)<\/title>/.exec(fs.readFileSync(path.join(folder, file), "utf8"))?.[1];
  return target && { ids: new Set(), links: [target], text: "" };
}

function read(file, parse) {
  const page = { ids: new Set(), links: [], text: "" };
  const fault = (message) => faults.push(`${file}: ${message}`);
  const visit = (node, component) => {
    if (node.nodeName === "#text") page.text += node.value;
    if (node.nodeName === "#comment") fault(`a comment: ${node.data.slice(0, 100)}`);
    if (!node.tagName) return (node.childNodes ?? []).forEach((child) => visit(child, component));
    const values = Object.fromEntries(node.attrs.map(({ name, value }) => [name, value]));
    if (!elements.has(node.tagName)) fault(`an element <${node.tagName}>`);
    for (const name of Object.keys(values)) if (!attributes.has(name)) fault(`an attribute ${name} of <${node.tagName}>`);
    for (const name of ["href", "src"]) if (name in values && isUnsafe(values[name])) fault(`a link that runs: ${values[name]}`);
    if ("id" in values) {
      if (page.ids.has(values.id)) fault(`two anchors ${values.id}`);
      page.ids.add(values.id);
    }
    // Links in Markdown have no such name.
    if (node.tagName === "a" && values["data-name"] === "href" && !foreign.includes(component)) page.links.push(values.href);
    return node.childNodes.forEach((child) => visit(child, values["data-component"] ?? component));
  };
  visit(parse(fs.readFileSync(path.join(folder, file), "utf8")), "");
  return page;
}

/** The page that a browser finds, where a server leaves out ".html" and "index". */
function pageAt(address, from) {
  if (address === "") return from;
  const name = address.replace(/^\/+/, "").replace(/(^|\/)index$/, "");
  return [name, `${name}.html`, `${name.replace(/\/$/, "")}.html`, `${name}/index.html`, `${name}index.html`]
    .map((file) => pages.get(file)).find(Boolean);
}

import(path.join(modules, "parse5", "dist", "index.js")).then(({ parse }) => {
  const names = fs.readdirSync(folder, { recursive: true, withFileTypes: true }).filter((entry) => entry.isFile())
    .map((entry) => path.relative(folder, path.join(entry.path, entry.name)));
  for (const name of names) {
    if (name.endsWith(".html")) pages.set(name, readRedirection(name) ?? read(name, parse));
    else if (/\.([cm]?js|svg)$/.test(name)) faults.push(`${name}: something that runs`);
  }
  let links = 0;
  for (const [file, page] of pages) {
    for (const link of page.links) {
      ++links;
      const [, address, fragment] = /^([^?#]*)(?:\?[^#]*)?(?:#(.*))?$/s.exec(link);
      const target = pageAt(decodeURIComponent(address), page);
      if (!target) faults.push(`${file}: ${link} leads to no page`);
      else if (fragment !== undefined && !target.ids.has(decodeURIComponent(fragment))) faults.push(`${file}: ${link} leads to no anchor`);
    }
  }
  const texts = [...pages.values()].map(({ text }) => text.replace(/\s+/g, " "));
  for (const marker of markers) {
    const isUnwanted = marker.startsWith("!");
    const isThere = texts.some((text) => text.includes(isUnwanted ? marker.slice(1) : marker));
    if (isThere === isUnwanted) faults.push(`${isThere ? "a" : "no"} page has the text ${marker}`);
  }
  console.log(JSON.stringify({ pages: pages.size, links, faults }));
});
