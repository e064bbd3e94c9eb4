// Reads the Astro components of a generated site, in two ways that must agree: by their text, which in these components is that of JSX, and by
// what Astro's compiler makes of it. The components hold data only, so whatever would be evaluated is a fault.
//
// What a component is read as:
//   faults    texts about what is against it
//   imports   a map from symbol to specifier
//   elements  what it renders, in no order: {symbol, props, slot}, props as values of JSON
//   html      what it writes as HTML without escaping
//   texts     the texts between tags
//   ids, links  values of `id` and `href` in its own HTML
"use strict";

/** The text that HTML stands for; of the named references those that generators write. */
function decoded(html) {
  const named = { amp: "&", apos: "'", gt: ">", lcub: "{", lt: "<", quot: '"', rcub: "}" };
  return html.replace(/&(?:#(\d+)|#[xX]([0-9a-fA-F]+)|(\w+));/g, (whole, decimal, hexadecimal, name) => {
    if (name) return named[name] ?? whole;
    return String.fromCodePoint(decimal ? Number(decimal) : Number.parseInt(hexadecimal, 16));
  });
}

/** What both ways share. */
class Reading {
  constructor(ts, name, code, kind) {
    this.ts = ts;
    this.name = name;
    this.source = ts.createSourceFile(`${name}${kind}`, code, ts.ScriptTarget.Latest, true);
    this.result = { faults: [], imports: new Map(), elements: [], html: [], texts: [], ids: [], links: [] };
    for (const { messageText, start } of this.source.parseDiagnostics) {
      const { line } = this.source.getLineAndCharacterOfPosition(start);
      this.fault(`${ts.flattenDiagnosticMessageText(messageText, " ")}: ${code.split("\n")[line].slice(0, 200)}`);
    }
  }

  fault(message) {
    this.result.faults.push(`${this.name}: ${message}`);
  }

  evaluated(node) {
    this.fault(`this would be evaluated: ${node.getText(this.source).slice(0, 200)}`);
  }

  imported(statement) {
    const symbol = statement.importClause?.name?.text;
    if (symbol) this.result.imports.set(symbol, statement.moduleSpecifier.text);
    return symbol !== undefined;
  }

  addText(text) {
    const shown = text.replace(/\r\n?/g, "\n").trim();
    if (shown !== "") this.result.texts.push(shown);
  }

  addOwn(attribute, value) {
    if (attribute === "id") this.result.ids.push(value);
    if (attribute === "href") this.result.links.push(value);
  }

  valueOf(node) {
    const { ts } = this;
    if (ts.isStringLiteralLike(node)) return node.text;
    if (ts.isNumericLiteral(node)) return Number(node.text);
    if (ts.isPrefixUnaryExpression(node) && node.operator === ts.SyntaxKind.MinusToken) return -this.valueOf(node.operand);
    if (node.kind === ts.SyntaxKind.TrueKeyword) return true;
    if (node.kind === ts.SyntaxKind.FalseKeyword) return false;
    if (node.kind === ts.SyntaxKind.NullKeyword) return null;
    if (ts.isParenthesizedExpression(node)) return this.valueOf(node.expression);
    if (ts.isArrayLiteralExpression(node)) return node.elements.map((element) => this.valueOf(element));
    if (ts.isObjectLiteralExpression(node)) return Object.fromEntries(node.properties.map((property) => this.memberOf(property)));
    this.evaluated(node);
    return undefined;
  }

  memberOf(property) {
    if (this.ts.isPropertyAssignment(property) && !this.ts.isComputedPropertyName(property.name))
      return [property.name.text, this.valueOf(property.initializer)];
    this.evaluated(property);
    return ["", undefined];
  }
}

/** A component by its text. */
class ReadingOfText extends Reading {
  constructor(ts, name, text) {
    const [, front, body] = /^---\r?\n([^]*?)^---\r?$([^]*)/m.exec(text) ?? [text, "", text];
    super(ts, name, `${front}\n<>${body}</>`, ".tsx");
    const { statements } = this.source;
    if (this.result.faults.length > 0) return;
    for (const statement of statements.slice(0, -1)) if (!ts.isImportDeclaration(statement) || !this.imported(statement)) this.evaluated(statement);
    this.children(statements.at(-1).expression.children, "");
  }

  children(nodes, slot) {
    const { ts } = this;
    for (const node of nodes) {
      if (ts.isJsxText(node)) this.addText(decoded(node.text));
      else if (ts.isJsxExpression(node)) this.expression(node);
      else if (ts.isJsxFragment(node)) this.children(node.children, slot);
      else this.element(node, slot);
    }
  }

  expression({ expression }) {
    if (expression && this.ts.isStringLiteralLike(expression)) this.addText(expression.text);
    else if (expression) this.evaluated(expression);
  }

  element(node, slot) {
    const opening = node.openingElement ?? node;
    const symbol = opening.tagName.getText(this.source);
    const props = {};
    for (const attribute of opening.attributes.properties) {
      if (!this.ts.isJsxAttribute(attribute)) this.evaluated(attribute);
      else props[attribute.name.getText(this.source)] = this.attribute(attribute.initializer);
    }
    const inner = props.slot ?? slot;
    if ("set:html" in props) this.result.html.push(props["set:html"]);
    if (/^[a-z]/.test(symbol)) for (const [name, value] of Object.entries(props)) this.addOwn(name, value);
    else if (symbol !== "Fragment") this.result.elements.push({ symbol, props, slot: inner });
    this.children(node.children ?? [], symbol === "Fragment" ? inner : "");
  }

  attribute(initializer) {
    if (!initializer) return true;
    if (this.ts.isStringLiteral(initializer)) return decoded(initializer.text);
    return this.valueOf(initializer.expression);
  }
}

/** A component by the TypeScript that the compiler made of it. */
class ReadingOfCode extends Reading {
  constructor(ts, name, { code, diagnostics }) {
    super(ts, name, code, ".ts");
    for (const { severity, text } of diagnostics) if (severity === 1) this.fault(`the compiler says: ${text}`);
    if (this.result.faults.length === 0) this.source.statements.forEach((statement) => this.statement(statement));
  }

  isRuntime(node) {
    return this.ts.isIdentifier(node) && node.text.startsWith("$$");
  }

  statement(statement) {
    const { ts } = this;
    if (ts.isExportAssignment(statement)) return;
    if (ts.isImportDeclaration(statement)) {
      if (!this.imported(statement) && statement.moduleSpecifier.text !== "astro/internal") this.evaluated(statement);
    } else if (ts.isVariableStatement(statement)) {
      const [{ name, initializer }] = statement.declarationList.declarations;
      if (ts.isCallExpression(initializer) && initializer.expression.getText(this.source) === "$$createComponent")
        initializer.arguments[0].body.statements.forEach((inner) => this.inComponent(inner));
      else if (name.text !== "Astro" && !name.text.startsWith("$$")) this.evaluated(statement);
    } else {
      this.evaluated(statement);
    }
  }

  inComponent(statement) {
    if (this.ts.isReturnStatement(statement)) this.rendered(statement.expression, "");
    else if (!/^(const Astro = \$\$result\.createAstro\(|Astro\.self = \$\$)/.test(statement.getText(this.source))) this.evaluated(statement);
  }

  rendered(node, slot) {
    const { ts } = this;
    if (ts.isTaggedTemplateExpression(node) && this.isRuntime(node.tag)) this.template(node.template, slot);
    else if (ts.isArrowFunction(node)) this.rendered(node.body, slot);
    else if (ts.isParenthesizedExpression(node)) this.rendered(node.expression, slot);
    else if (ts.isStringLiteralLike(node)) this.addText(node.text);
    else if (ts.isCallExpression(node) && this.isRuntime(node.expression)) this.call(node, slot);
    else this.evaluated(node);
  }

  template(template, slot) {
    if (this.ts.isNoSubstitutionTemplateLiteral(template)) return this.ownHtml(template.text);
    this.ownHtml([template.head, ...template.templateSpans.map((span) => span.literal)].map((part) => part.text).join("\u0000"));
    template.templateSpans.forEach((span) => this.rendered(span.expression, slot));
    return undefined;
  }

  ownHtml(html) {
    for (const [, attribute, quoted] of html.matchAll(/\s(id|href)="([^"]*)"/g)) this.addOwn(attribute, decoded(quoted));
    for (const text of html.split(/<[^>]*>|\u0000/)) this.addText(decoded(text));
  }

  call({ expression, arguments: passed }, slot) {
    switch (expression.text) {
      case "$$renderComponent": return this.component(passed, slot);
      case "$$unescapeHTML": return void this.result.html.push(this.valueOf(passed[0]));
      case "$$addAttribute": return this.addOwn(this.valueOf(passed[1]), this.valueOf(passed[0]));
      case "$$maybeRenderHead": case "$$renderHead": return undefined;
      default: return this.evaluated(expression.parent);
    }
  }

  component([, { text: symbol }, reference, given, slots], slot) {
    const props = this.valueOf(given);
    const inner = props.slot ?? slot;
    if (reference.getText(this.source) !== symbol) this.evaluated(reference);
    if (symbol !== "Fragment") this.result.elements.push({ symbol, props, slot: inner });
    for (const { initializer } of slots?.properties ?? []) this.rendered(initializer, symbol === "Fragment" ? inner : "");
  }
}

/** What both ways must say alike. The order is not theirs. */
function essenceOf({ imports, elements, html, texts, ids, links }) {
  const plain = ({ symbol, props }) => {
    const { "set:html": own, ...others } = props;
    return JSON.stringify([symbol, Object.entries(others).sort()]);
  };
  return JSON.stringify([[...imports], elements.map(plain).sort(), ...[html, texts, ids, links].map((list) => [...list].sort())]);
}

/**
 * `installed` is the `require` of installed packages. Gives a function (text, name, isCompiled) that reads a component and, when isCompiled,
 * holds that to the compiler.
 */
function makeReader(installed) {
  const { transform } = installed("@astrojs/compiler");
  const ts = installed("typescript");
  return async (text, name, isCompiled) => {
    const { result } = new ReadingOfText(ts, name, text);
    if (!isCompiled) return result;
    const options = { filename: name, internalURL: "astro/internal", resolvePath: async (specifier) => specifier };
    const compiled = new ReadingOfCode(ts, name, await transform(text, options)).result;
    result.faults.push(...compiled.faults);
    if (result.faults.length === 0 && essenceOf(result) !== essenceOf(compiled))
      result.faults.push(`${name}: its text says ${essenceOf(result).slice(0, 2000)}, the compiler ${essenceOf(compiled).slice(0, 2000)}`);
    return result;
  };
}

module.exports = { decoded, makeReader };
