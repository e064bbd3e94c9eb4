"""Generates Spring servers, compiles them, and calls each of their routes in Spring's own mock of the dispatcher.

    spring_answers_test.py WORK-FOLDER PROGRAM

PROGRAM is the built program, which also makes the values that are sent. Every argument must reach the service, and the answers be those
of spring/answers.yaml.
"""

import json
import pathlib
import re
import shutil
import subprocess
import sys
import urllib.parse

import yaml

from spring import RUNTIME, compile_all, need_java
from typescript import HERE, ROOT

DOCUMENTS = (ROOT / "examples" / "bookshop-3.1.yaml", HERE / "documents" / "java" / "schemas.yaml")
METHODS = ("get", "put", "post", "delete", "patch")  # for the others Spring has no annotation
PLACES = {"query": "query", "header": "headers", "cookie": "cookies"}
JSON = "application/json"

failures = []


def check(holds, text):
    if not holds:
        failures.append(text)


class Document:
    def __init__(self, program, file, work):
        self.program, self.file, self.work = program, file, work
        self.server = "com." + re.sub(r"\W", "", file.stem)
        self.root = yaml.safe_load(file.read_text(encoding="utf-8"))
        self.count = 0

    def resolved(self, node, pointer):
        """A node and its pointer, behind its references."""
        while "$ref" in node:
            pointer = node["$ref"][1:]
            node = self.root
            for segment in pointer.split("/")[1:]:
                node = node[segment.replace("~1", "/").replace("~0", "~")]
        return node, pointer

    def sample(self, pointer):
        """A value of the schema at the pointer that can be seen to arrive."""
        self.count += 1
        target = self.work / f"{self.count}.json"
        subprocess.run([self.program, "generate", "data", self.file, "--pointer", pointer, "--output", target, "--number", "9",
                        "--config", HERE / "spring" / "configuration.yaml"], check=True, stdout=subprocess.DEVNULL)
        return next(value for value in json.loads(target.read_text(encoding="utf-8")) if value not in (None, []))

    def received(self, value, schema):
        """What a record keeps of a value: the properties that its schema names."""
        if isinstance(schema, bool):
            return value
        schema, _ = self.resolved(schema, "")
        if isinstance(value, list):
            return [self.received(item, schema.get("items", {})) for item in value]
        properties = self.properties(schema)
        if not isinstance(value, dict) or not (properties or schema.get("type") == "object"):
            return value
        return {key: self.received(value[key], properties[key]) for key in value if key in properties}

    def properties(self, schema):
        schema, _ = self.resolved(schema, "")
        found = {}
        for member in schema.get("allOf", []):
            found.update(self.properties(member))
        return {**found, **schema.get("properties", {})}

    def routes(self):
        """Method and path of each, and where in the document the operation and its path item are."""
        for path, item in self.root["paths"].items():
            item, pointer = self.resolved(item, "/paths/" + path.replace("~", "~0").replace("/", "~1"))
            for method in METHODS:
                if method in item:
                    yield method, path, item, pointer


def parameters_of(document, method, item, pointer):
    """The parameters of an operation, their schemas, and the pointers of these."""
    found = {}
    for owner, place in ((item, pointer), (item[method], f"{pointer}/{method}")):
        for index, parameter in enumerate(owner.get("parameters", [])):
            parameter, at = document.resolved(parameter, f"{place}/parameters/{index}")
            holder = parameter["content"][JSON] if "content" in parameter else parameter
            at += "/content/" + JSON.replace("/", "~1") if "content" in parameter else ""
            found[parameter["name"], parameter["in"]] = (parameter, holder["schema"], at + "/schema")
    return found.values()


def text_of(value):
    """A parameter as a client sends it."""
    if isinstance(value, list):
        return ",".join(map(text_of, value))
    return value if isinstance(value, str) else json.dumps(value)


def request_of(document, method, path, item, pointer):
    """What is sent, and the arguments that are to arrive."""
    request = {"server": document.server, "method": method.upper(), "url": path, "query": {}, "headers": {}, "cookies": {}}
    arguments = []
    body, at = document.resolved(item[method].get("requestBody", {}), f"{pointer}/{method}/requestBody")
    if JSON in body.get("content", {}):
        request["body"] = document.sample(f"{at}/content/{JSON.replace('/', '~1')}/schema")
        arguments.append(document.received(request["body"], body["content"][JSON]["schema"]))
    for parameter, schema, at in parameters_of(document, method, item, pointer):
        value = document.sample(at)
        arguments.append(document.received(value, schema))
        if parameter["in"] == "path":
            request["url"] = request["url"].replace("{" + parameter["name"] + "}", urllib.parse.quote(text_of(value), safe=""))
        else:
            request[PLACES[parameter["in"]]][parameter["name"]] = text_of(value)
    return request, arguments


def without_nulls(value):
    """Components for which nothing was sent are null."""
    if isinstance(value, dict):
        return {key: without_nulls(item) for key, item in value.items() if item is not None}
    return [without_nulls(item) for item in value] if isinstance(value, list) else value


def fault_of(told, expected, arguments):
    """What is wrong with an answer; empty when nothing is."""
    if "failure" in told:
        return told["failure"]
    if told["status"] != 200:
        return f"status {told['status']}: {told.get('reason', 'no controller takes it')}"
    if told["answer"] != expected:
        return f"the answer is {json.dumps(told['answer'])}, not {json.dumps(expected)}"
    given = without_nulls(told["arguments"])
    for argument in map(without_nulls, arguments):
        if argument not in given:
            return f"{json.dumps(argument)} was sent and does not reach the service, which gets {json.dumps(given)}"
    return "" if len(given) == len(arguments) else f"the service gets {len(given)} arguments, not {len(arguments)}"


def ask_all(requests, classes):
    """What spring/AskControllers.java tells of each request."""
    command = ["java", "-XX:+UseSerialGC", "-XX:TieredStopAtLevel=1", "-cp", ":".join(map(str, [*RUNTIME, classes])),
               HERE / "spring" / "AskControllers.java", classes]
    run = subprocess.run(command, input="\n".join(map(json.dumps, requests)), capture_output=True, encoding="utf-8")
    lines = run.stdout.splitlines()
    check(len(lines) == len(requests), f"{len(lines)} answers to {len(requests)} requests: {run.stderr[:2000]}")
    return [json.loads(line) for line in lines]


def main():
    need_java()
    program, work = sys.argv[2], pathlib.Path(sys.argv[1]).resolve() / "spring-answers"
    shutil.rmtree(work, ignore_errors=True)
    expected = yaml.safe_load((HERE / "spring" / "answers.yaml").read_text(encoding="utf-8"))
    outputs, calls = [], []
    for file in DOCUMENTS:
        outputs.append(work / file.stem)
        outputs[-1].mkdir(parents=True)
        document = Document(program, file, outputs[-1])
        subprocess.run([program, "generate", "server", "spring", file, "--output", outputs[-1], "--package-name", document.server,
                        "--config", HERE / "spring" / "configuration.yaml"], check=True, stdout=subprocess.DEVNULL)
        routes = {f"{route[0]} {route[1]}": route for route in document.routes()}
        answers = expected[file.name]
        check(set(routes) == set(answers), f"{file.name}: answers.yaml has {sorted(answers)} for the routes {sorted(routes)}")
        calls += [(f"{file.name}: {name}", answers.get(name), *request_of(document, *route)) for name, route in routes.items()]
    failures.extend(line for line in compile_all(outputs, work / "classes") if not line.endswith(" 0"))
    for (name, answer, _, arguments), told in zip(calls, ask_all([request for _, _, request, _ in calls], work / "classes")):
        fault = fault_of(told, answer, arguments)
        check(not fault, f"{name}: {fault}")
    print(f"{len(calls)} routes were called", *failures, sep="\n")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
