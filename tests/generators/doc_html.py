"""What the tests of generated documentation sites share."""

import concurrent.futures
import json
import subprocess

from documents import write_json
from typescript import HERE, installed_dependencies

HOSTILE = HERE / "documents" / "doc_html" / "hostile.yaml"
TEMPLATE = "doc_html_template"
WORKERS = 2
SECOND = "de"  # the language of a second locale; what it has of a text is the text and SUFFIX
SUFFIX = " (de)"
METHODS = {"get", "put", "post", "delete", "options", "head", "patch", "trace"}


def installed(work):
    return installed_dependencies(work, "doc_html", beside=[TEMPLATE])


def judged(modules, runs, work):
    """What judge_sources.js says of each run. The runs are shared out by their sizes."""
    shares = [[] for _ in range(WORKERS)]
    for run in sorted(runs, key=lambda run: -run.get("size", 0)):
        min(shares, key=lambda share: sum(other.get("size", 0) + 1 for other in share)).append(run)

    def judge(index):
        if not shares[index]:
            return []
        lines = work / f"runs-{index}.jsonl"
        lines.write_text("".join(json.dumps(run) + "\n" for run in shares[index]), encoding="utf-8")
        done = subprocess.run(["node", "--max-old-space-size=4000", HERE / "doc_html" / "judge_sources.js", modules, lines],
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, text=True)
        results = [json.loads(line) for line in done.stdout.splitlines()]
        if done.returncode != 0:
            results.append({"name": shares[index][len(results)]["name"], "faults": [f"the judge ended with {done.returncode}"]})
        return results

    with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
        return [result for results in pool.map(judge, range(WORKERS)) for result in results]


def judged_pages(modules, folder, texts):
    """What judge_pages.js says of built pages."""
    done = subprocess.run(["node", HERE / "doc_html" / "judge_pages.js", modules, folder, *texts],
                          stdin=subprocess.DEVNULL, capture_output=True, text=True)
    return json.loads(done.stdout) if done.returncode == 0 else {"pages": 0, "links": 0, "faults": [f"judge_pages.js: {done.stderr[:2000]}"]}


def values_below(value):
    """Every value of a document, itself first."""
    left = [value]
    while left:
        value = left.pop()
        yield value
        if isinstance(value, dict):
            left.extend(value.values())
        elif isinstance(value, list):
            left.extend(value)


def write_translations(document, target):
    """A locale file that has all texts of a document, and others."""
    texts = {text for value in values_below(document) if isinstance(value, dict)
             for text in map(value.get, ("title", "summary", "description", "name")) if isinstance(text, str)}
    write_json({text: text + SUFFIX for text in sorted(texts)}, target)


def custom_formats(document):
    """How a configuration declares the formats of a document's schemas that the program does not know."""
    found = {}
    for value in values_below(document):
        if isinstance(value, dict) and isinstance(value.get("format"), str):
            types = value.get("type", "string")
            found[value["format"]] = next((kind for kind in types if kind != "null"), "null") if isinstance(types, list) else types
    return [{"name": name, "type": kind} for name, kind in sorted(found.items()) if name not in KNOWN_FORMATS and kind in TYPES]


TYPES = ("null", "boolean", "object", "array", "number", "string", "integer")
KNOWN_FORMATS = set("""date date-time duration email hostname idn-email idn-hostname ipv4 ipv6 iri iri-reference json-pointer password regex
relative-json-pointer time uri uri-reference uri-template uuid double float int32 int64""".split())


def with_server(document):
    """A document in which each operation finds one, for samples of requests are to go somewhere: itself, or a copy."""
    operations = [(item, operation) for item in (document.get("paths") or {}).values() if isinstance(item, dict)
                  for name, operation in item.items() if name in METHODS]
    if document.get("servers") or all(item.get("servers") or operation.get("servers") for item, operation in operations):
        return document
    return document | {"servers": [{"url": "https://server.example"}]}
