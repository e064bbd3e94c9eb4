// The sources of a generated site: what each file imports and shows, and where its links lead.
"use strict";

const crypto = require("crypto");
const fs = require("fs");
const path = require("path");
const { makeReader } = require("./component.js");

const package_ = "@loomwork/spec-loom-doc-html-template/";
const template = path.join(__dirname, "..", "doc_html_template");
// Their links are the document's or the configuration's.
const foreign = ["Contact", "CustomItem", "CustomItemGroup", "ExternalLink", "License"];

/** Calls `visit` with the name and value of each member, however deep. */
function forEachMember(value, visit) {
  if (typeof value !== "object" || value === null) return;
  for (const [name, member] of Object.entries(value)) {
    visit(name, member);
    forEachMember(member, visit);
  }
}

function filesOf(folder) {
  return fs.readdirSync(folder, { recursive: true, withFileTypes: true }).filter((entry) => entry.isFile())
    .map((entry) => path.relative(folder, path.join(entry.path, entry.name)));
}

/** The names of some components, of as many bytes at most, the same in every run. */
function chosen(sources, bytes) {
  const hashOf = (name) => crypto.createHash("sha1").update(name).digest("hex");
  const names = [...sources.keys()].filter((name) => name.endsWith(".astro")).map((name) => [hashOf(name), name]).sort();
  let left = bytes;
  return new Set(names.map(([, name]) => name).filter((name) => {
    const { length } = sources.get(name);
    if (length > left) return false;
    left -= length;
    return true;
  }));
}

/** The file that an import of `file` reaches: a path in the site or, with its package before it, one in the template; else null. */
function targetOf(specifier, file, files) {
  if (specifier.startsWith(package_)) {
    const inside = specifier.slice(package_.length);
    const isKey = inside === "astro.config.mjs" || /^src\/(components|layouts)\/.*\.astro$/.test(inside);
    return isKey && fs.existsSync(path.join(template, inside)) ? specifier : null;
  }
  let target = null;
  if (/^@(components|layouts)\//.test(specifier)) target = path.posix.join("src", specifier.slice(1));
  if (/^\.\.?\//.test(specifier)) target = path.posix.join(path.posix.dirname(file), specifier);
  return files.has(target) ? target : null;
}

class Site {
  /** The site in a folder. `installed` is the `require` of installed packages; so many bytes of components are compiled, some of each site. */
  static async read(folder, installed, bytes) {
    const site = new Site(filesOf(folder));
    const read = makeReader(installed);
    const sources = new Map([...site.names].map((name) => [name, fs.readFileSync(path.join(folder, name), "utf8")]));
    const compiled = chosen(sources, bytes);
    for (const [name, text] of sources) {
      if (name.endsWith(".astro")) site.addComponent(name, await read(text, name, compiled.has(name)));
      else site.checkOther(name, text, installed("typescript"));
    }
    site.bytes = [...sources.values()].reduce((sum, text) => sum + text.length, 0);
    site.compiled = compiled.size;
    return site;
  }

  constructor(names) {
    this.faults = [];
    this.names = new Set(names);
    this.files = new Map();
    this.pages = new Map([...this.names].filter((name) => name.startsWith("src/pages/") && name.endsWith(".astro"))
      .flatMap((name) => this.addressesOf(name).map((address) => [address, name])));
    this.idsBelow = new Map();
  }

  fault(file, message) {
    this.faults.push(`${file}: ${message}`);
  }

  checkOther(name, text, ts) {
    let diagnostics = [];
    if (name === "package.json") JSON.parse(text);
    else if (name === "tsconfig.json") diagnostics = [ts.parseConfigFileTextToJson(name, text).error].filter(Boolean);
    else if (/\.([mc]js|ts)$/.test(name)) {
      const source = ts.createSourceFile(name, text, ts.ScriptTarget.Latest);
      diagnostics = source.parseDiagnostics;
      for (const { moduleSpecifier } of source.statements.filter(ts.isImportDeclaration))
        if (!targetOf(moduleSpecifier.text, name, this.names) && !/^astro(\/|:|$)/.test(moduleSpecifier.text))
          this.fault(name, `imports ${moduleSpecifier.text}, which is nowhere`);
    }
    for (const { messageText } of diagnostics) this.fault(name, ts.flattenDiagnosticMessageText(messageText, " "));
  }

  addComponent(name, component) {
    this.faults.push(...component.faults);
    component.targets = new Map();
    for (const [symbol, specifier] of component.imports) {
      const target = targetOf(specifier, name, this.names);
      if (target) component.targets.set(symbol, target);
      else this.fault(name, `imports ${specifier}, which is nowhere`);
    }
    for (const element of component.elements) {
      const target = component.targets.get(element.symbol);
      element.key = target?.startsWith(package_) ? path.basename(target, ".astro") : undefined;
      element.file = element.key ? undefined : target;
      if (!component.imports.has(element.symbol)) this.fault(name, `renders <${element.symbol}>, which it does not import`);
      const isForeign = foreign.includes(element.key);
      forEachMember(element.props, (member, value) => {
        if (member === "href" && !isForeign) component.links.push(value);
      });
      if (typeof element.props?.id === "string") component.ids.push(element.props.id);
    }
    this.files.set(name, component);
  }

  /** Under which paths a browser finds a page. */
  addressesOf(file) {
    const route = `/${file.slice("src/pages/".length, -".astro".length)}`;
    if (/\/[_.]|[[\]]/.test(route)) this.fault(file, "is no page to Astro");
    return route.endsWith("/index") ? [route, route.slice(0, -"index".length), route.slice(0, -"/index".length)] : [route];
  }

  /** What `own(component)` gives for a file and all that it renders, once for each time it is rendered. */
  collect(file, memo, own) {
    if (memo.has(file)) return memo.get(file);
    memo.set(file, []); // a component that renders itself would never end; it is found by its own test
    const component = this.files.get(file);
    const found = component ? [...own(component)] : [];
    for (const element of component?.elements ?? [])
      if (element.file) for (const value of this.collect(element.file, memo, own)) found.push(value);
    memo.set(file, found);
    return found;
  }

  idsOf(file) {
    return this.collect(file, this.idsBelow, (component) => component.ids);
  }

  checkLink(file, link) {
    if (typeof link !== "string") return this.fault(file, `an href that is no text: ${JSON.stringify(link)}`);
    const [, address, , fragment] = /^([^?#]*)(\?[^#]*)?(?:#(.*))?$/s.exec(link);
    let target;
    let anchor = fragment;
    try {
      target = this.pages.get(address === "" ? "/" : decodeURIComponent(address)); // a fragment alone means the single page
      anchor = fragment && decodeURIComponent(fragment);
    } catch {
      return this.fault(file, `${link} is no URL`);
    }
    if (!target) return this.fault(file, `${link} leads to no page`);
    if (link.endsWith("#")) return this.fault(file, `${link} has an empty fragment`);
    if (anchor === undefined) return undefined;
    if (!this.anchors.has(target)) this.anchors.set(target, new Set(this.idsOf(target)));
    if (!this.anchors.get(target).has(anchor)) this.fault(file, `${link} leads to no anchor of ${target}`);
    return undefined;
  }

  checkLinks() {
    this.anchors = new Map();
    for (const [file, { links }] of this.files)
      for (const link of new Set(links)) this.checkLink(file, link);
    for (const page of new Set(this.pages.values())) {
      const seen = new Set();
      for (const id of this.idsOf(page)) {
        if (seen.has(id)) this.fault(page, `has two anchors ${id}`);
        seen.add(id);
      }
    }
  }

  /** Each component must stand on a page. */
  checkUse() {
    const shown = new Set(this.pages.values());
    for (const file of shown) for (const { file: target } of this.files.get(file)?.elements ?? []) if (target) shown.add(target);
    for (const file of this.files.keys()) if (!shown.has(file)) this.fault(file, "is on no page");
  }
}

module.exports = { Site, forEachMember };
