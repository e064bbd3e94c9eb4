// Holds the sources of a site to what the document says, read here anew: each text has its place.
"use strict";

const { forEachMember } = require("./site.js");
const { decoded } = require("./component.js");

const methods = ["get", "put", "post", "delete", "options", "head", "patch", "trace"];

const plain = (text) => String(text).replace(/\s+/g, " ").trim();
const isObject = (value) => typeof value === "object" && value !== null && !Array.isArray(value);
const entries = (value) => (isObject(value) ? Object.entries(value) : []);
const list = (value) => (Array.isArray(value) ? value : []);
const isText = (value) => typeof value === "string" && plain(value) !== "";

/** What a reader of Markdown sees is made of these, wherever its signs end up. */
function wordsOf(text) {
  const shown = text.replace(/<!--.*?-->/gs, " ").replace(/&#?\w+;|%[0-9A-Fa-f]{2}/g, " ").replace(/^([\s>*+-]|\d+[.)])*(```|~~~).*$/gm, " ").replace(/\\(?=[^\s\w])/g, "");
  return shown.match(/[\p{L}\p{N}]{3,}/gu) ?? [];
}

/** The strings of a component: each by itself, and the words of all. */
class Shown {
  constructor(component) {
    this.values = new Set();
    const add = (value) => this.values.add(plain(value));
    for (const { props, symbol } of component.elements) {
      forEachMember({ props }, (name, value) => {
        if (typeof value === "string" || typeof value === "number") add(value);
        if (name === "scopes" && isObject(value)) Object.keys(value).forEach(add);
      });
      add(symbol);
    }
    component.texts.forEach(add);
    for (const text of component.html) add(decoded(String(text).replace(/<[^>]*>/g, "")));
    this.raw = [...this.values, ...component.html.map((text) => decoded(String(text)).replace(/%[0-9A-F]{2}/g, " "))].join("\n");
  }

  get words() {
    this.wordSet ??= new Set(this.raw.match(/[\p{L}\p{N}]{3,}/gu) ?? []);
    return this.wordSet;
  }
}

class TextJudge {
  /** `locales` is a list of {segment, suffix}: its folder, and what its translations have behind each text. */
  constructor(document, site, options) {
    Object.assign(this, { document, site, options, faults: [], looked: 0 });
    this.shown = new Map();
  }

  shownOf(file) {
    if (!this.shown.has(file)) this.shown.set(file, new Shown(this.site.files.get(file)));
    return this.shown.get(file);
  }

  resolve(value) {
    for (let steps = 0; isObject(value) && typeof value.$ref === "string" && steps < 100; ++steps) {
      if (!value.$ref.startsWith("#/")) return undefined;
      value = value.$ref.slice(2).split("/").reduce(
        (at, token) => at?.[decodeURIComponent(token).replaceAll("~1", "/").replaceAll("~0", "~")], this.document);
    }
    return isObject(value) ? value : undefined;
  }

  /** Whether a file has a text as one of its values. */
  exact(file, text, what) {
    if (!isText(text)) return;
    ++this.looked;
    if (!this.shownOf(file).values.has(plain(text))) this.faults.push(`${file}: lacks the ${what} ${JSON.stringify(text).slice(0, 200)}`);
  }

  within(file, text, what) {
    if (!isText(text)) return;
    ++this.looked;
    if (!this.shownOf(file).raw.includes(text)) this.faults.push(`${file}: lacks the ${what} ${JSON.stringify(text).slice(0, 200)}`);
  }

  words(file, text, what) {
    // A link that would run something loses where it leads.
    if (!isText(text) || /(java|vb)script:|data:text/i.test(text)) return;
    ++this.looked;
    const { words } = this.shownOf(file);
    const missing = wordsOf(text).filter((word) => !words.has(word));
    if (missing.length > 0) this.faults.push(`${file}: of the ${what} it lacks ${missing.slice(0, 5).join(", ")}`);
  }

  /** A text that is translated as a whole. */
  translated(file, text, what) {
    if (isText(text)) this.exact(file, text + this.locale.suffix, what);
  }

  described(file, owner, what) {
    if (isText(owner?.description)) this.words(file, owner.description + this.locale.suffix, `description of ${what}`);
  }

  /** The properties that stand in the table of a schema: [name, schema] for each. */
  propertiesOf(schema, depth = 0) {
    const target = this.resolve(schema);
    if (!target || depth > 8) return [];
    const own = entries(target.properties);
    const parts = list(target.allOf).flatMap((part) => this.propertiesOf(part, depth + 1));
    const found = [...own, ...parts];
    return found.length === 0 && target.items ? this.propertiesOf(target.items, depth + 1) : found;
  }

  checkProperties(file, schema) {
    const seen = new Set();
    for (const [name, property] of this.propertiesOf(schema)) {
      this.exact(file, name, "property");
      if (seen.has(name) || !isObject(property)) continue;
      seen.add(name);
      if (typeof property.$ref === "string") continue;
      this.described(file, property, `property ${name}`);
      const inner = isObject(property.items) ? property.items : property;
      if (typeof inner.$ref !== "string") for (const nested of Object.keys(inner.properties ?? {})) this.exact(file, nested, "inner property");
    }
  }

  /** The files of this locale in a folder of the components. */
  filesIn(folder) {
    const prefix = ["src/components", this.locale.segment, folder].filter(Boolean).join("/");
    return [...this.site.files.keys()].filter((file) => file.startsWith(`${prefix}/`) && !file.slice(prefix.length + 1).includes("/"));
  }

  /** The one among files whose element of that key fits; names may be numbered, so the paths do not tell. */
  indexed(files, key, keyOf) {
    const index = new Map();
    for (const file of files)
      for (const { key: found, props } of this.site.files.get(file).elements) {
        if (found !== key) continue;
        const name = keyOf(props);
        if (index.has(name)) this.faults.push(`${file}: tells of ${name}, as ${index.get(name)} does`);
        index.set(name, file);
      }
    return index;
  }

  checkOperation(file, operation, item) {
    this.exact(file, operation.operationId, "operationId");
    this.translated(file, operation.summary, "summary");
    this.described(file, operation, "the operation");
    const parameters = new Map();
    for (const parameter of [...list(item.parameters), ...list(operation.parameters)].map((value) => this.resolve(value)))
      if (parameter) parameters.set(`${parameter.in} ${parameter.name}`, parameter);
    for (const parameter of parameters.values()) {
      this.exact(file, parameter.name, "parameter");
      this.described(file, parameter, `parameter ${parameter.name}`);
    }
    const body = this.resolve(operation.requestBody);
    const json = body?.content?.["application/json"];
    if (json) {
      this.described(file, body, "the request body");
      this.checkProperties(file, json.schema);
    }
    for (const [status, response] of entries(operation.responses)) {
      if (status.startsWith("x-")) continue;
      this.exact(file, status, "response");
      this.described(file, this.resolve(response), `response ${status}`);
    }
    for (const requirement of list(operation.security))
      for (const [scheme, scopes] of entries(requirement)) [scheme, ...list(scopes)].forEach((name) => this.within(file, name, "security"));
    const server = [operation, item, this.document].map(({ servers }) => list(servers)[0]).find(Boolean);
    const url = server?.url?.replace(/\{([^}]*)\}/g, (whole, name) => server.variables?.[name]?.default ?? whole).replace(/\/$/, "");
    if (isText(url) && !/[^\w:./-]/.test(url)) this.within(file, url, "server");
  }

  checkOperations() {
    const index = this.indexed(this.filesIn("operations"), "Operation", ({ method, path }) => `${String(method).toLowerCase()} ${path}`);
    const sidebar = ["src/components", this.locale.segment, "sidebar/Operations.astro"].filter(Boolean).join("/");
    const search = ["src/pages", this.locale.segment, "search.astro"].filter(Boolean).join("/");
    const declared = new Set(list(this.document.tags).map((tag) => tag.name));
    for (const [path, reference] of entries(this.document.paths)) {
      const item = path.startsWith("/") ? this.resolve(reference) : undefined;
      for (const method of item ? methods.filter((name) => isObject(item[name])) : []) {
        const file = index.get(`${method} ${path}`);
        if (!file) this.faults.push(`${method} ${path}: no component${this.locale.segment}`);
        index.delete(`${method} ${path}`);
        if (file) this.checkOperation(file, item[method], item);
        for (const place of [sidebar, search]) {
          if (!this.site.files.has(place)) continue;
          this.exact(place, path, "path");
          this.translated(place, item[method].summary, "summary");
        }
        const tag = list(item[method].tags).find((name) => declared.has(name));
        if (this.options.operations !== "separate") this.translated(sidebar, tag, "tag");
      }
    }
    for (const [name, file] of index) this.faults.push(`${file}: ${name} is no operation of the document`);
  }

  checkResources() {
    const schemas = entries(this.document.components?.schemas);
    const files = this.filesIn("schemas");
    if (files.length !== schemas.length)
      this.faults.push(`${files.length} components for ${schemas.length} schemas`);
    const byName = new Map();
    for (const file of files)
      for (const { key, props } of this.site.files.get(file).elements) if (key === "Resource") byName.set(props.name, file);
    const sidebar = ["src/components", this.locale.segment, "sidebar/Resources.astro"].filter(Boolean).join("/");
    for (const [name, schema] of schemas) {
      if (this.site.files.has(sidebar)) this.exact(sidebar, name, "schema");
      const file = byName.get(name);
      if (!file) this.faults.push(`${name}: no component of the schema`);
      if (!file) continue;
      if (typeof schema.$ref !== "string") this.described(file, schema, "the schema");
      this.checkProperties(file, schema);
    }
  }

  checkOverview() {
    const file = ["src/components", this.locale.segment, "Overview.astro"].filter(Boolean).join("/");
    if (!this.site.files.has(file)) return void this.faults.push(`${file} is missing`);
    const { info = {}, tags, servers, components } = this.document;
    this.translated(file, info.title, "title");
    this.translated(file, info.summary, "summary");
    this.exact(file, info.version, "version");
    this.described(file, info, "the document");
    this.within(file, info.contact?.email, "address");
    this.within(file, info.license?.name, "licence");
    for (const server of list(servers)) {
      this.exact(file, server.url, "server");
      this.described(file, server, `server ${server.url}`);
    }
    for (const tag of list(tags)) {
      this.translated(file, tag.name, "tag");
      this.described(file, tag, `tag ${tag.name}`);
    }
    for (const [name, scheme] of entries(components?.securitySchemes)) {
      this.exact(file, name, "security scheme");
      for (const flow of Object.values(this.resolve(scheme)?.flows ?? {}))
        for (const scope of Object.keys(flow?.scopes ?? {})) this.within(file, scope, "scope");
    }
  }

  /** All texts in all locales. */
  check() {
    for (this.locale of this.options.locales) {
      this.checkOverview();
      this.checkOperations();
      this.checkResources();
    }
    return this.faults;
  }
}

module.exports = { TextJudge };
