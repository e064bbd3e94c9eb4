// Holds sample values to their schemas with Ajv, as JSON Schema of draft 2020-12; those of OpenAPI 3.0 by what that
// version says of its own words.
//
//   judge.js DOCUMENT SAMPLES
//
// reads a document as JSON and the lines that sample_corpora wrote about it, and writes a JSON object with "values",
// "fits", and "faults": texts about values that do not fit, schemas that cannot be compiled, and schemas that were
// refused though no contradiction is found in them.

"use strict";

const fs = require("fs");
const Ajv = require("ajv/dist/2020").default;
const addFormats = require("ajv-formats").default;

const [documentFile, samplesFile] = process.argv.slice(2);
const description = JSON.parse(fs.readFileSync(documentFile, "utf8"));
const isOld = String(description.openapi).startsWith("3.0");

const single = ["additionalProperties", "contains", "else", "if", "items", "not", "propertyNames", "then", "unevaluatedItems",
  "unevaluatedProperties"];
const lists = ["allOf", "anyOf", "oneOf", "prefixItems"];
const maps = ["dependentSchemas", "patternProperties", "properties"];
const plain = ["const", "dependentRequired", "enum", "exclusiveMaximum", "exclusiveMinimum", "format", "maxContains", "maxItems",
  "maxLength", "maxProperties", "maximum", "minContains", "minItems", "minLength", "minProperties", "minimum", "multipleOf", "pattern",
  "required", "type", "uniqueItems"];

const place = "https://example.com/document#/$defs/";
const targets = new Map(Object.keys(description.components?.schemas ?? {}).map((name, index) => [name, `${place}${index}`]));

function schemaOf(source) {
  if (typeof source !== "object" || source === null) return source;
  const schema = {};
  if (typeof source.$ref === "string") {
    schema.$ref = targets.get(source.$ref.replace(/^#\/components\/schemas\//, ""));
    if (isOld) return schema;
  }
  for (const key of plain) if (key in source) schema[key] = source[key];
  for (const key of single) if (key in source) schema[key] = schemaOf(source[key]);
  for (const key of lists) if (Array.isArray(source[key]) && source[key].length > 0) schema[key] = source[key].map(schemaOf);
  for (const key of maps) {
    if (!(key in source)) continue;
    schema[key] = Object.fromEntries(Object.entries(source[key]).map(([name, value]) => [name, schemaOf(value)]));
  }
  if (Array.isArray(schema.enum) && schema.enum.length === 0) {
    delete schema.enum; // Ajv does not compile it
    schema.allOf = [...(schema.allOf ?? []), false];
  }
  if ("required" in schema && !Array.isArray(schema.required)) delete schema.required;
  if (isOld) translate(schema, source);
  return schema;
}

function translate(schema, source) {
  if (source.nullable === true && "type" in schema) schema.type = [].concat(schema.type, "null");
  for (const [limit, exclusive] of [["minimum", "exclusiveMinimum"], ["maximum", "exclusiveMaximum"]]) {
    if (typeof schema[exclusive] !== "boolean") continue;
    if (schema[exclusive] && limit in schema) {
      schema[exclusive] = schema[limit];
      delete schema[limit];
    } else {
      delete schema[exclusive];
    }
  }
}

function resolved(schema) {
  while (typeof schema === "object" && "$ref" in schema && Object.keys(schema).length === 1) {
    schema = definitions[schema.$ref.slice(place.length)];
  }
  return schema;
}

function at(pointer) {
  return pointer.split("/").slice(1).reduce((value, token) => value[token.replace(/~1/g, "/").replace(/~0/g, "~")], description);
}

const lines = fs.readFileSync(samplesFile, "utf8").split("\n").filter((line) => line !== "").map((line) => JSON.parse(line));
const definitions = {};
for (const [name, reference] of targets) definitions[reference.slice(place.length)] = schemaOf(description.components.schemas[name]);
const samples = lines.filter((line) => "values" in line);

// The definition of a schema: compiling takes most of the time, so that equal ones are compiled once.
const names = new Map();
for (const [name, schema] of Object.entries(definitions)) names.set(JSON.stringify(schema), name);
function nameOf(schema) {
  const text = JSON.stringify(resolved(schema));
  if (!names.has(text)) {
    names.set(text, `s${names.size}`);
    definitions[names.get(text)] = schema;
  }
  return names.get(text);
}
for (const line of samples) line.name = nameOf(schemaOf(at(line.pointer)));

// ---- contradictions

const allTypes = ["array", "boolean", "integer", "null", "number", "object", "string"];
const deepestContradiction = 12;

function typesOf(schema) {
  const types = "type" in schema ? [].concat(schema.type) : allTypes;
  return types.includes("number") ? [...types, "integer"] : types;
}

// All that holds at once for one value: the schemas, and what they refer to and require.
function together(schemas) {
  const result = [];
  for (const open = [...schemas]; open.length > 0;) {
    const schema = open.pop();
    if (result.includes(schema)) continue;
    result.push(schema);
    if (typeof schema !== "object") continue;
    if ("$ref" in schema) open.push(definitions[schema.$ref.slice(place.length)]);
    open.push(...(schema.allOf ?? []));
  }
  return result;
}

// Of `oneOf`, those that are not there twice: what fits one of two equal ones fits both.
function distinct(alternatives) {
  const texts = alternatives.map((schema) => JSON.stringify(resolved(schema)));
  return alternatives.filter((_, index) => texts.indexOf(texts[index]) === texts.lastIndexOf(texts[index]));
}

// Whether no value fits all of some schemas, as far as can be shown: by types, by trying each value of an `enum`, by
// each alternative, and by the properties that are required, which a value has without end if they lead back to one of
// the `outer` ones.
function contradict(schemas, depth, isTried, outer) {
  const all = together(schemas);
  if (all.includes(false)) return true;
  if (depth > deepestContradiction) return false;
  const parts = all.filter((schema) => typeof schema === "object");
  const types = allTypes.filter((type) => parts.every((schema) => typesOf(schema).includes(type)));
  if (types.length === 0) return true;
  const choices = parts.filter((schema) => Array.isArray(schema.enum) || "const" in schema);
  if (choices.length > 0) {
    const values = choices[0].enum ?? [choices[0].const];
    const validate = ajv.compile({ allOf: parts });
    return values.every((value) => !validate(value));
  }
  for (const keyword of ["anyOf", "oneOf"]) {
    for (const list of parts.map((schema) => schema[keyword]).filter((other) => Array.isArray(other) && !isTried.has(other))) {
      const tried = new Set(isTried).add(list);
      const alternatives = keyword === "oneOf" ? distinct(list) : list;
      if (alternatives.every((schema) => contradict([...parts, schema], depth + 1, tried, outer))) return true;
    }
  }
  if (types.some((type) => type !== "object")) return false;
  const required = new Set(parts.flatMap((schema) => schema.required ?? []));
  return [...required].some((name) => {
    const properties = parts.map((schema) => schema.properties?.[name]).filter((schema) => schema !== undefined);
    const text = JSON.stringify(properties);
    return properties.length > 0 && (outer.includes(text) || contradict(properties, depth + 1, new Set(), [...outer, text]));
  });
}

const ajv = new Ajv({ strict: false, allErrors: false, validateSchema: false, logger: false, inlineRefs: false });
addFormats(ajv);
ajv.addSchema({ $id: "https://example.com/document", $defs: definitions });

const result = { values: 0, fits: 0, faults: [] };
for (const line of samples) {
  let validate;
  try {
    validate = ajv.getSchema(`${place}${line.name}`);
  } catch (error) {
    result.faults.push(`${line.pointer}: ${error.message}`);
    continue;
  }
  for (const value of line.values) {
    ++result.values;
    if (validate(value)) ++result.fits;
    else result.faults.push(`${line.pointer}: ${ajv.errorsText(validate.errors)}: ${JSON.stringify(value).slice(0, 200)}`);
  }
}
for (const line of lines.filter((other) => "refusal" in other)) {
  if (!contradict([schemaOf(at(line.pointer))], 0, new Set(), [])) result.faults.push(`no contradiction is found: ${line.refusal}`);
}
process.stdout.write(JSON.stringify(result) + "\n");
