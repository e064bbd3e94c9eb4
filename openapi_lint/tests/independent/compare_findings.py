#!/usr/bin/env python3
"""Finds in the documents of the corpora what lint rules must find, and compares it with what they do find.

    compare_findings.py LIST-FINDINGS CORPORA [LARGEST]

Reads the raw documents with parsers that are not the program's and knows nothing of its code: each rule is written
anew here, from what its page says. LIST-FINDINGS is the program beside this script. The corpora are those of
SPECLOOM_CORPORA where it is set; documents of more than LARGEST bytes are left out. Published documents hardly have some of
the faults, so the faults are planted in copies of those in JSON, and these are compared too. Ends with 77 when they or PyYAML
are not there, unless SPECLOOM_REQUIRE_CORPORA is.
"""

import json
import os
import re
import subprocess
import sys
import tempfile
from collections import Counter
from pathlib import Path

METHODS = ["get", "put", "post", "delete", "options", "head", "patch", "trace"]
BODILESS = ["get", "trace", "head"]


# Where schemas stand: the members of each kind of object that hold objects of another kind, one, a list or a map of them.
PARTS = {
    "root": {"paths": ("map", "pathItem"), "webhooks": ("map", "pathItem"), "components": ("one", "components")},
    "components": {"schemas": ("map", "schema"), "responses": ("map", "response"), "parameters": ("map", "value"),
                   "examples": ("map", "example"), "requestBodies": ("map", "body"), "headers": ("map", "value"),
                   "securitySchemes": ("map", "securityScheme"), "links": ("map", "link"),
                   "callbacks": ("map", "callback"), "pathItems": ("map", "pathItem")},
    "pathItem": {"parameters": ("list", "value"), **{method: ("one", "operation") for method in METHODS}},
    "operation": {"parameters": ("list", "value"), "requestBody": ("one", "body"), "responses": ("map", "response"),
                  "callbacks": ("map", "callback")},
    "response": {"headers": ("map", "value"), "content": ("map", "mediaType"), "links": ("map", "link")},
    "body": {"content": ("map", "mediaType")},
    "mediaType": {"schema": ("one", "schema"), "examples": ("map", "example"), "encoding": ("map", "encoding")},
    "encoding": {"headers": ("map", "value")},
    "value": {"schema": ("one", "schema"), "examples": ("map", "example"), "content": ("map", "mediaType")},
    "schema": {
        **{key: ("one", "schema") for key in [
            "contentSchema", "items", "additionalItems", "contains", "unevaluatedItems", "additionalProperties",
            "propertyNames", "unevaluatedProperties", "not", "if", "then", "else"]},
        **{key: ("list", "schema") for key in ["prefixItems", "allOf", "oneOf", "anyOf"]},
        **{key: ("map", "schema") for key in [
            "properties", "patternProperties", "dependentSchemas", "$defs", "definitions"]},
    },
}


def leave_out(reason):
    print(reason)
    sys.exit(1 if "SPECLOOM_REQUIRE_CORPORA" in os.environ else 77)


try:
    import yaml
except ImportError:
    leave_out("PyYAML is not installed (python3-yaml)")


def load(path):
    """The raw document. All scalars of YAML stay texts, so that a response code is one in either format."""
    with open(path, "rb") as file:
        if path.suffix == ".json":
            return json.load(file)
        return yaml.load(file, Loader=getattr(yaml, "CBaseLoader", yaml.BaseLoader))


def entries(value):
    """The members of an object that are no extensions, in byte-wise order of their names."""
    if not isinstance(value, dict):
        return []
    members = [(key, member) for key, member in value.items() if not key.startswith("x-")]
    return sorted(members, key=lambda member: member[0].encode())


def step(pointer, key):
    return f"{pointer}/{str(key).replace('~', '~0').replace('/', '~1')}"


def objects_below(value, kind="root", pointer=""):
    """All objects and references in their places, as (kind, pointer, object)."""
    if not isinstance(value, dict):
        return
    yield kind, pointer, value
    if isinstance(value.get("$ref"), str):
        return
    if kind == "callback":
        parts = {key: ("one", "pathItem") for key, _ in entries(value)}
    else:
        parts = PARTS.get(kind, {})
    for key, (form, child_kind) in parts.items():
        child, child_pointer = value.get(key), step(pointer, key)
        if form == "one":
            yield from objects_below(child, child_kind, child_pointer)
        elif form == "list" and isinstance(child, list):
            for index, element in enumerate(child):
                yield from objects_below(element, child_kind, f"{child_pointer}/{index}")
        elif form == "map" and isinstance(child, dict):
            named = child_kind not in ("pathItem", "response")  # which have extensions among them
            for name, member in child.items() if named else entries(child):
                yield from objects_below(member, child_kind, step(child_pointer, name))


def types_of(schema):
    types = schema.get("type", [])
    nullable = {"null"} if schema.get("nullable") in (True, "true") else set()
    return {types} | nullable if isinstance(types, str) else set(types) | nullable


class Document:
    """The objects that rules look at, each once: (pointer, object), in the order in which rules come by them."""

    def __init__(self, root):
        self.root = root
        self.path_items, self.operations = [], []
        self.references, self.schemas = [], []
        for kind, pointer, value in objects_below(root):
            if isinstance(value.get("$ref"), str):
                self.references.append((pointer, value))
            elif kind == "schema":
                self.schemas.append((pointer, value))
        self.urls = {}  # of the path items that stand in the paths themselves, by pointer
        self.seen = set()
        for url, item in entries(root.get("paths")):
            pointer = step("/paths", url)
            if "$ref" not in item:
                self.urls[pointer] = url
            self.add_path_item(pointer, item)
        for name, item in entries(root.get("webhooks")):
            self.add_path_item(step("/webhooks", name), item)
        components = root.get("components") or {}
        for name, callback in entries(components.get("callbacks")):
            self.add_callback(step("/components/callbacks", name), callback)
        for name, item in entries(components.get("pathItems")):
            self.add_path_item(step("/components/pathItems", name), item)

    def resolve(self, pointer, value):
        """The object, and where it stands, behind any number of references."""
        while isinstance(value, dict) and isinstance(value.get("$ref"), str):
            pointer, value = value["$ref"][1:], self.root
            for token in pointer.split("/")[1:]:
                value = value[token.replace("~1", "/").replace("~0", "~")]
        return pointer, value

    def meet(self, pointer, value):
        pointer, value = self.resolve(pointer, value)
        if not isinstance(value, dict) or pointer in self.seen:
            return pointer, None
        self.seen.add(pointer)
        return pointer, value

    def add_path_item(self, pointer, value):
        pointer, item = self.meet(pointer, value)
        if item is None:
            return
        self.path_items.append((pointer, item))
        for method in METHODS:
            if isinstance(item.get(method), dict):
                self.add_operation(step(pointer, method), item[method])

    def add_operation(self, pointer, operation):
        self.operations.append((pointer, operation))
        for name, callback in entries(operation.get("callbacks")):
            self.add_callback(step(step(pointer, "callbacks"), name), callback)

    def add_callback(self, pointer, value):
        pointer, callback = self.meet(pointer, value)
        for expression, item in entries(callback):
            self.add_path_item(step(pointer, expression), item)

    def parameters(self, pointer, owner):
        """The resolved parameters of the owner's list, as (pointer, parameter)."""
        return [self.resolve(f"{pointer}/parameters/{index}", value)
                for index, value in enumerate(owner.get("parameters") or [])]

    def responses(self, pointer, operation):
        """(code, pointer, response), resolved, in order of the codes."""
        return [(code, *self.resolve(step(f"{pointer}/responses", code), value))
                for code, value in entries(operation.get("responses"))]

    def missing_path_parameters(self, url, owners):
        """The names in a URL for which none of the owners, (pointer, object), has a path parameter."""
        missing = {name[1:-1] for name in re.findall(r"\{[^}]*\}", url)}
        for owner in owners:
            missing -= {p["name"] for _, p in self.parameters(*owner) if p["in"] == "path"}
        return missing


# Each rule takes a Document and yields what it finds: (pointer, message).


def no_content_response_defined(document):
    for pointer, operation in document.operations:
        for code, response_pointer, response in document.responses(pointer, operation):
            if code == "204" and response.get("content"):
                yield response_pointer, "204 response may not have a body defined"


def operation_id_defined(document):
    for pointer, operation in document.operations:
        if not operation.get("operationId"):
            yield pointer, "Operation ID is not defined"


def operation_id_unique(document):
    seen = set()
    for pointer, operation in document.operations:
        name = operation.get("operationId")
        if name and name in seen:
            yield pointer, f"Operation ID is not unique {name}"
        seen.add(name)


def operation_document_not_primitive(document):
    def primitives(pointer, body):
        for name, media in entries(body.get("content")):
            _, schema = document.resolve("", media.get("schema"))
            types = schema.get("type", []) if isinstance(schema, dict) else []
            if not {"object", "array"} & set([types] if isinstance(types, str) else types):
                yield (step(step(pointer, "content"), name),
                       "Operation request or response body is not an object or array")

    for pointer, operation in document.operations:
        if "requestBody" in operation:
            yield from primitives(*document.resolve(f"{pointer}/requestBody", operation["requestBody"]))
        for _, response_pointer, response in document.responses(pointer, operation):
            yield from primitives(response_pointer, response)


def operation_rate_limiting_defined(document):
    for pointer, operation in document.operations:
        for code, response_pointer, response in document.responses(pointer, operation):
            headers = response.get("headers") or {}
            if code in ("429", "503") and "Retry-After" not in headers:
                yield response_pointer, "Missing Retry-After header"
            limits = {"RateLimit-Limit", "X-RateLimit-Limit", "X-Rate-Limit-Limit"}
            if code[0] in "24" and not limits & set(headers):
                yield response_pointer, "Missing rate limiting header"


def operation_security_defined(document):
    for pointer, operation in document.operations:
        if not document.root.get("security") and not operation.get("security"):
            yield pointer, "Security requirement is not defined"


def operation_success_response(document):
    for pointer, operation in document.operations:
        if not any(re.match("[23]|default$", code) for code, *_ in document.responses(pointer, operation)):
            yield pointer, "Operation must have at least one success response"


def operation_tags_defined(document):
    declared = {tag["name"] for tag in document.root.get("tags") or []}
    for pointer, operation in document.operations:
        if not declared & set(operation.get("tags") or []):
            yield pointer, "Operation has no tags defined"


def parameters_unique(document):
    for pointer, owner in document.path_items + document.operations:
        seen = set()
        for parameter_pointer, parameter in document.parameters(pointer, owner):
            key = (parameter["name"], parameter["in"])
            if key in seen:
                yield parameter_pointer, f"Duplicate parameter name '{key[0]}' in location '{key[1]}'"
            seen.add(key)


def path_parameters_defined(document):
    items = dict(document.path_items)
    for pointer, operation in document.operations:
        item_pointer = pointer.rpartition("/")[0]
        if item_pointer not in document.urls:
            continue
        owners = [(pointer, operation), (item_pointer, items[item_pointer])]
        if document.missing_path_parameters(document.urls[item_pointer], owners):
            yield pointer, "One or more path parameters are missing"


def path_parameters_on_items(document):
    for pointer, item in document.path_items:
        if pointer in document.urls and document.missing_path_parameters(document.urls[pointer], [(pointer, item)]):
            yield pointer, "One or more path parameters are missing or not defined in path item"


def paths_max_count(document):
    count = len(entries(document.root.get("paths")))
    if count > 8:
        yield "/paths", f"Too many paths found ({count}), maximum number is 8"


def paths_max_depth(document):
    for url, _ in entries(document.root.get("paths")):
        if len(url.split("/")) > 4:
            yield step("/paths", url), f"Path URL is too much nested ({url})"


def paths_sorted(document):
    previous = b""
    for url in document.root.get("paths") or {}:
        if url.startswith("x-"):
            continue
        if previous and previous >= url.encode():
            yield step("/paths", url), f"Paths are not sorted: {url}"
        previous = url.encode()


def paths_unique(document):
    forms = set()
    for url, _ in entries(document.root.get("paths")):
        form = re.sub("/$", "", re.sub("/+", "/", re.sub(r"\{[^}]*\}", "{}", url)))
        if form in forms:
            yield step("/paths", url), "Duplicate path found"
        forms.add(form)


def paths_well_formed(document):
    for url, _ in entries(document.root.get("paths")):
        nameless = re.sub(r"\{[^}]*\}", "", url)
        if url[:1] != "/" or url[-1:] == "/" or "//" in url or re.search("[A-Z]", nameless):
            yield step("/paths", url), f"Path is not well-formed {url}"


def schema_constraints(document):
    def unlimited(schema):
        has = schema.keys().__contains__
        ranged = (has("minimum") or has("exclusiveMinimum")) and (has("maximum") or has("exclusiveMaximum"))
        closed = schema.get("additionalProperties") in (False, "false", {"not": {}})
        yield "integer", "Integer", ranged, "range"
        yield "number", "Numeric", ranged, "range"
        yield ("string", "String", has("maxLength") or has("format") or has("pattern") or schema.get("enum")
               or has("const"), "length")
        yield "array", "Array", has("maxItems"), "size"
        yield "object", "Object", has("maxProperties") or closed, "size"

    for pointer, schema in document.schemas:
        for kind, name, limited, what in unlimited(schema):
            if kind in types_of(schema) and not limited:
                yield pointer, f"{name} schema does not define constraints restricting its {what}"


def schema_datetime_suffix(document):
    for pointer, schema in document.schemas:
        for name, value in (schema.get("properties") or {}).items():
            _, target = document.resolve("", value)
            if isinstance(target, dict) and target.get("format") == "date-time" and not name.endswith("_at"):
                yield pointer, f"Property name {name} should end with _at"


def schema_discriminator_defined(document):
    for pointer, schema in document.schemas:
        if schema.get("oneOf") and "discriminator" not in schema:
            yield pointer, "Schema with oneOf clause does not have a discriminator"


def schema_enum_no_duplicates(document):
    for pointer, schema in document.schemas:
        seen = set()
        for value in schema.get("enum") or []:
            text = json.dumps(value, sort_keys=True)
            if text in seen:
                yield pointer, "Duplicate enum value"
            seen.add(text)


def schema_format_defined(document):
    proper = {"integer": ("int32", "int64"), "number": ("double", "float")}
    for pointer, schema in document.schemas:
        for name, formats in proper.items():
            if types_of(schema) == {name} and schema.get("format") not in formats:
                yield pointer, f"Schema with {name} type does not define proper format"


def schema_no_additional_properties(document):
    for pointer, schema in document.schemas:
        if "object" in types_of(schema) and "additionalProperties" not in schema:
            yield pointer, "Object schema does not disable additional properties"


def standard_response_codes(document):
    for pointer, operation in document.operations:
        for code, _ in entries(operation.get("responses")):
            if code != "default" and not re.fullmatch("[1-5]([0-9]{2}|XX)", code):
                yield f"{pointer}/responses", f"Operation uses non-standard response code ({code})"


def tags_sorted(document):
    previous = b""
    for index, tag in enumerate(document.root.get("tags") or []):
        if tag["name"].encode() < previous:
            yield f"/tags/{index}", f"Tags are not sorted: {tag['name']}"
        previous = tag["name"].encode()


def unambiguous_response_codes(document):
    for pointer, operation in document.operations:
        codes = {code for code, _ in entries(operation.get("responses"))}
        if any(f"{code[0]}XX" in codes for code in codes if re.fullmatch("[1-5][0-9][0-9]", code)):
            yield f"{pointer}/responses", "Operation response codes are ambiguous"


def unused_shared_component(document):
    places = {}  # of references, by what they refer to
    for pointer, reference in document.references:
        places.setdefault(document.resolve("", reference)[0], []).append(pointer)
    components = document.root.get("components") or {}
    sections = {name: dict(entries(section)) for name, section in entries(components)}
    owners = [document.root] + [operation for _, operation in document.operations]
    schemes = {name for owner in owners for requirement in owner.get("security") or [] for name in requirement}
    mapped = {schema.rpartition("/")[2] for _, value in document.schemas
              for schema in ((value.get("discriminator") or {}).get("mapping") or {}).values()}
    for section, members in sections.items():
        for name, value in members.items():
            pointer = step(step("/components", section), name)
            bases = [document.resolve("", base)[1] for base in value.get("allOf") or []]
            if ("$ref" not in value
                    and all(place.startswith(pointer + "/") for place in places.get(pointer, []))
                    and not (section == "securitySchemes" and name in schemes)
                    and not (section == "schemas" and (name in mapped or any("discriminator" in b for b in bases)))):
                yield pointer, "Unused shared component"


def unused_request_body(document):
    for pointer, operation in document.operations:
        if pointer.rpartition("/")[2] in BODILESS and "requestBody" in operation:
            yield pointer, "Unused request body"


RULES = [
    no_content_response_defined, operation_document_not_primitive, operation_id_defined, operation_id_unique,
    operation_rate_limiting_defined, operation_security_defined, operation_success_response, operation_tags_defined,
    parameters_unique, path_parameters_defined, path_parameters_on_items, paths_max_count, paths_max_depth,
    paths_sorted, paths_unique, paths_well_formed, schema_constraints, schema_datetime_suffix,
    schema_discriminator_defined, schema_enum_no_duplicates, schema_format_defined, schema_no_additional_properties,
    standard_response_codes, tags_sorted, unambiguous_response_codes,
    unused_request_body, unused_shared_component,
]


def plant_faults(root):
    """Makes a document fail rules that hardly a published one fails."""
    document = Document(root)
    for _, schema in document.schemas[::2]:
        if isinstance(schema.get("enum"), list):
            schema["enum"] += schema["enum"][:2]
    for _, item in document.path_items[::2]:
        inherited = [p for method in METHODS for p in item.get(method, {}).get("parameters", [])][:2]
        item["parameters"] = item.get("parameters", []) + inherited + inherited[:1]
    for number, (_, operation) in enumerate(document.operations):
        responses = operation.get("responses", {})
        if number % 3 == 0:
            operation["parameters"] = [p for p in operation.get("parameters", [])
                                       if document.resolve("", p)[1]["in"] != "path"]
        if number % 5 == 0 and "200" in responses:
            responses["204"] = responses["200"]
        if number % 7 == 0:
            operation["responses"] = {code: response for code, response in responses.items() if code[0] == "4"}
        if number % 11 == 0 and responses:
            responses["60X"] = next(iter(responses.values()))
        if number % 13 == 0:
            operation.pop("operationId", None)


def rule_id(rule):
    return rule.__name__.replace("_", "-")


def differences(path, list_findings):
    """Prints what one side finds and the other does not; how often that is so, and how much of each rule both find.
    None for a document that is refused."""
    run = subprocess.run([list_findings, str(path), *map(rule_id, RULES)], capture_output=True, check=False)
    if run.returncode != 0:
        sys.exit(f"{path}: {run.stderr.decode()}")
    found = json.loads(run.stdout)
    if found is None:
        print(f"{path.name}: refused")
        return None
    document = Document(load(path))
    wrong, findings = 0, Counter()
    for rule in RULES:
        expected = Counter(rule(document))
        actual = Counter(tuple(finding) for finding in found[rule_id(rule)])
        findings[rule_id(rule)] += sum((expected & actual).values())
        for text, side in (("not found", expected - actual), ("should not be found", actual - expected)):
            for pointer, message in list(side)[:5]:
                print(f"{path.name}: {rule_id(rule)}: {text}: {pointer}: {message}")
            wrong += sum(side.values())
    return wrong, findings


def main():
    list_findings, corpora = sys.argv[1], Path(os.environ.get("SPECLOOM_CORPORA", sys.argv[2]))
    if not corpora.is_dir():
        leave_out("No corpora: set SPECLOOM_CORPORA to their folder")
    largest = int(sys.argv[3]) if len(sys.argv) > 3 else sys.maxsize
    paths = sorted(path for folder in ("openapi", "pairs") for path in (corpora / folder).rglob("*")
                   if path.suffix in (".json", ".yaml") and path.stat().st_size <= largest)
    documents, wrong, findings = 0, 0, Counter()
    with tempfile.TemporaryDirectory() as folder:
        for path in [path for path in paths if path.suffix == ".json"]:
            root = load(path)
            plant_faults(root)
            paths.append(Path(folder) / f"faulty-{path.name}")
            paths[-1].write_text(json.dumps(root), encoding="utf-8")
        for path in paths:
            if b"lint-disable" in path.read_bytes():
                sys.exit(f"{path}: rules are disabled in it, which is not looked at here")
            result = differences(path, list_findings)
            if result is not None:
                documents += 1
                wrong += result[0]
                findings += result[1]
    for rule in RULES:
        print(f"{findings[rule_id(rule)]:7} {rule_id(rule)}")
    print(f"{documents} documents, {sum(findings.values())} findings, {wrong} differences")
    uncompared = [rule_id(rule) for rule in RULES if not findings[rule_id(rule)]]
    if uncompared:
        print("No document fails", *uncompared)
    # Where documents are left out, some rules may have nothing to find.
    sys.exit(wrong > 0 or documents < 20 or bool(uncompared and largest == sys.maxsize))


main()
