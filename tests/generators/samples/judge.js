// Holds sample values to their schemas with Ajv, as JSON Schema of draft 2020-12; those of OpenAPI 3.0 by what that
// version says of its own words.
//
//   judge.js DOCUMENT SAMPLES
//
// reads a document as JSON and the lines that sample_corpora wrote about it, and writes a JSON object with "values",
// "fits", and "faults": texts about values that do not fit and schemas that cannot be compiled.

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

const targets = new Map(Object.keys(description.components?.schemas ?? {}).map((name, index) => [name, `#/$defs/${index}`]));

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

function at(pointer) {
  return pointer.split("/").slice(1).reduce((value, token) => value[token.replace(/~1/g, "/").replace(/~0/g, "~")], description);
}

const lines = fs.readFileSync(samplesFile, "utf8").split("\n").filter((line) => line !== "").map((line) => JSON.parse(line));
const definitions = {};
for (const [name, reference] of targets) definitions[reference.slice("#/$defs/".length)] = schemaOf(description.components.schemas[name]);
const samples = lines.filter((line) => "values" in line);
samples.forEach((line, index) => { definitions[`s${index}`] = schemaOf(at(line.pointer)); });

const ajv = new Ajv({ strict: false, allErrors: false, validateSchema: false, logger: false, inlineRefs: false });
addFormats(ajv);
ajv.addSchema({ $id: "https://example.com/document", $defs: definitions });

const result = { values: 0, fits: 0, faults: [] };
samples.forEach((line, index) => {
  let validate;
  try {
    validate = ajv.getSchema(`https://example.com/document#/$defs/s${index}`);
  } catch (error) {
    result.faults.push(`${line.pointer}: ${error.message}`);
    return;
  }
  for (const value of line.values) {
    ++result.values;
    if (validate(value)) ++result.fits;
    else result.faults.push(`${line.pointer}: ${ajv.errorsText(validate.errors)}: ${JSON.stringify(value).slice(0, 200)}`);
  }
});
process.stdout.write(JSON.stringify(result) + "\n");
