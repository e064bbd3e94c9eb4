"""Generates Express servers, compiles and runs them, and asks each of its routes.

    express_server_test.py WORK-FOLDER PROGRAM

PROGRAM is the built program. What the generated projects depend on is installed once for each state of the lockfile, below
WORK-FOLDER, and shared by them.
"""

import http.client
import json
import os
import pathlib
import re
import shutil
import signal
import socket
import subprocess
import sys
import urllib.parse

import yaml

from typescript import HERE, IS_REQUIRED, ROOT, corpora, generate, installed_dependencies, need_node

METHODS = ["get", "put", "post", "delete", "options", "head", "patch", "trace"]  # in the order of their routes
PARAMETER = re.compile(r"\{([^}]+)\}")
VALUE = "zz9"  # of each parameter: no document has it in a path of its own
# What clients send as it is in a path (URL Standard, the path percent-encode set).
UNENCODED = "!$%&'()*+,-./:;=@[]^_|~"

failures = []


def check(holds, text):
    if not holds:
        failures.append(text)


class Route:
    """An operation as the document has it, and the routes that answer for it."""

    def __init__(self, tag, path, method, item):
        self.tag, self.method = tag, method
        # The documents of this folder say themselves what becomes of their strange paths.
        self.id = item.get("x-route", PARAMETER.sub(r":\1", path))
        self.url = self.encoded(PARAMETER.sub(VALUE, path))
        literals = [re.escape(self.encoded(part)) for part in PARAMETER.sub("\0\0", path).split("\0\0")]
        body = "[^/]+".join(literals) if PARAMETER.search(path) else re.escape(self.encoded(path))
        # Express minds neither case nor a slash at the end.
        self.pattern = re.compile(body + ("?" if path.endswith("/") else "/?"), re.IGNORECASE)

    @staticmethod
    def encoded(text):
        return urllib.parse.quote(text, safe=UNENCODED)

    def answers(self, other):
        takes_method = self.method == other.method or (self.method, other.method) == ("get", "head")
        return takes_method and self.pattern.fullmatch(other.url)


def routes_of(file):
    """The routes of a document in the order in which the server has them."""
    with open(file, encoding="utf-8") as source:
        document = json.load(source) if file.suffix == ".json" else yaml.load(source, yaml.CSafeLoader)
    declared = {tag["name"] for tag in document.get("tags", [])}
    routes = []
    for path, item in sorted(document["paths"].items(), key=lambda entry: entry[0].encode()):
        if "$ref" in item:
            item = document["components"]["pathItems"][item["$ref"].rpartition("/")[2]]
        for method in METHODS:
            tags = [tag for tag in item.get(method, {}).get("tags", []) if tag in declared]
            if tags:
                routes.append(Route(tags[0], path, method, item))
    return sorted(routes, key=lambda route: route.tag.encode())


def generate_and_compile(program, file, folder, dependencies):
    shutil.rmtree(folder, ignore_errors=True)
    failure = generate(program, "server express", file, folder, "--config", HERE / "express" / "configuration.yaml")
    check(not failure, f"{file.name}: {failure}")
    if failure:
        return False
    package = json.loads((folder / "package.json").read_text())
    lock = json.loads((HERE / "express" / "package-lock.json").read_text())["packages"][""]
    for kind in ("dependencies", "devDependencies"):
        check(package[kind] == lock[kind], f"{file.name}: the lockfile does not pin the {kind} of package.json")
    (folder / "node_modules").symlink_to(dependencies)
    compiled = subprocess.run(["node", "node_modules/typescript/bin/tsc"], cwd=folder, capture_output=True, text=True)
    check(compiled.returncode == 0, f"{file.name}: tsc: {compiled.stdout[:2000]}")
    return compiled.returncode == 0


def free_port():
    with socket.socket() as listener:
        listener.bind(("127.0.0.1", 0))
        return listener.getsockname()[1]


def ask_all(name, routes, port):
    """Asks each route for what it or, where an earlier one is in its way, that one says. Returns how many are so."""
    shadowed = 0
    connection = http.client.HTTPConnection("127.0.0.1", port, timeout=30)
    for route in routes:
        first = next(other for other in routes if other.answers(route))
        shadowed += first is not route
        connection.request(route.method.upper(), route.url)
        response = connection.getresponse()
        body = response.read()
        text = f"{name}: {route.method} {route.url}: status {response.status}, body {body[:200]}"
        if route.method == "head":
            check((response.status, body) == (200, b""), text)
            continue
        expected = json.dumps({"status": "ok", "id": first.id}, separators=(",", ":"), ensure_ascii=False)
        check((response.status, body) == (200, expected.encode()), f"{text}, not {expected}")
    connection.close()
    return shadowed


def run_server(name, routes, folder):
    port = free_port()
    server = subprocess.Popen(["node", "dist/server.js"], cwd=folder, env={**os.environ, "PORT": str(port)},
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    try:
        started = server.stdout.readline()
        check(started == f"Server is running on port {port}\n", f"{name}: the server began with {started!r}")
        if started:
            shadowed = ask_all(name, routes, port)
            print(f"{name}: {len(routes)} routes, {shadowed} of them behind an earlier one")
        server.send_signal(signal.SIGTERM)
        out, errors = server.communicate(timeout=30)
        check(out == "SIGTERM signal received: closing HTTP server\nHTTP server closed\n",
              f"{name}: the server ended with {out!r}")
        check((server.returncode, errors) == (0, ""), f"{name}: status {server.returncode}: {errors[:2000]}")
    finally:
        server.kill()
        server.wait()


def documents():
    yield ROOT / "examples" / "bookshop-3.1.yaml"
    for name in ("everything.yaml", "hostile.json"):  # the others have no declared tags, and so no routes
        yield HERE / "documents" / name
    if corpora():
        yield corpora() / "openapi" / "github-3.0.json"
    else:
        check(not IS_REQUIRED, "the corpora are required: set SPECLOOM_CORPORA to their folder")


def main():
    work, program = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2]
    need_node()
    dependencies = installed_dependencies(work)
    for file in documents():
        routes = routes_of(file)
        folder = work / "express" / file.stem
        check(routes, f"{file.name}: no routes to ask for")
        if not generate_and_compile(program, file, folder, dependencies):
            continue
        written = sum(text.read_text().count(", (req: Request, res: Response) => {")
                      for text in folder.glob("src/modules/*/routes.ts"))
        check(written == len(routes), f"{file.name}: {written} routes were generated, not {len(routes)}")
        run_server(file.stem, routes, folder)
    print("\n".join(failures))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
