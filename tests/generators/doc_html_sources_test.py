"""Generates documentation sites from the documents of the corpora, of the examples and of this folder, and judges their sources: Astro's
compiler and the parser of TypeScript take them, their imports and links lead somewhere, and what the document says is in them.

    doc_html_sources_test.py WORK-FOLDER PROGRAM

PROGRAM is the built program. A document is tried with some of the combinations of settings, the larger it is the fewer, each of which some
documents are tried with, and a part of each site is compiled; SPECLOOM_DOC_HTML_ALL=1 tries all and compiles all.
"""

import concurrent.futures
import itertools
import json
import os
import pathlib
import shutil
import sys

from doc_html import HOSTILE, SECOND, SUFFIX, WORKERS, custom_formats, installed, judged, with_server, write_translations
from documents import documents_of_corpora, read_document, write_json
from typescript import HERE, ROOT, corpora, generate, need, need_node

LOCALES = {
    "none": {},
    "one": {"locales": ["en"]},
    "two": {"locales": ["en", SECOND], "default_locale": "en"},
    "prefixed": {"locales": ["en", SECOND], "default_locale": "en", "prefix_default_locale": True},
}
COMBINATIONS = list(itertools.product(("merge", "group", "separate"), ("merge", "separate"), LOCALES))
ALL = bool(os.environ.get("SPECLOOM_DOC_HTML_ALL"))
# The compiler takes some 2 ms for 1 KB, so of a large site it gets a part. The others are read by their text alone.
COMPILED_BYTES = None if ALL else 60_000


def combinations_of(number, file):
    """Those that a document is tried with: they go round, so that each has its documents. The largest get one language."""
    size = file.stat().st_size
    count = len(COMBINATIONS) if ALL else 4 if size < 20_000 else 2 if size < 300_000 else 1
    choice = [combination for combination in COMBINATIONS if ALL or size < 1_500_000 or SECOND not in LOCALES[combination[2]].get("locales", [])]
    # A stride that shares no factor with their count meets all of them.
    return [choice[(7 * (number + step)) % len(choice)] for step in range(count)]


def locales_of(kind):
    """The folder of each locale, and what its texts have behind them."""
    folders = {"none": [""], "one": [""], "two": ["", SECOND], "prefixed": ["en", SECOND]}[kind]
    return [{"segment": folder, "suffix": SUFFIX if folder == SECOND else ""} for folder in folders]


def sites_of(program, number, file, folder):
    """Generates what a document is tried with. Returns runs for the judge, or one with a failure."""
    folder.mkdir(parents=True)
    try:
        document = read_document(file)
    except Exception as error:  # whatever the reader has against it
        return [{"name": file.name, "unreadable": str(error)}]
    label = file.name
    write_json(with_server(document), folder / "document.json")
    if with_server(document) is not document:
        file = folder / "document.json"
    write_translations(document, folder / "de.json")
    runs = []
    for operations, resources, locales in combinations_of(number, file):
        name = "-".join((operations, resources, locales))
        settings = {"operations": operations, "resources": resources, "changelog": True, "i18n": LOCALES[locales]}
        configuration = {"version": "1.0", "openapi": {"custom_formats": custom_formats(document)},
                         "commands": {"generate": {"doc_html": {key: value for key, value in settings.items() if value != {}}}}}
        write_json(configuration, folder / "configuration.json")
        arguments = ["--config", folder / "configuration.json"]
        if SECOND in LOCALES[locales].get("locales", []):
            arguments += ["--i18n", f"{SECOND}={folder / 'de.json'}"]
        failure = generate(program, "doc html", file, folder / name, *arguments)
        if failure and failure == generate(program, "server express", file, folder / "express", *arguments[:2]):
            return [{"name": label, "unreadable": failure}]
        run = {"name": f"{label} {name}", "folder": str(folder / name), "document": str(folder / "document.json"),
               "locales": locales_of(locales), "operations": operations, "bytes": COMPILED_BYTES,
               "size": file.stat().st_size * len(locales_of(locales))}
        runs.append(run | {"failure": failure} if failure else run)
    return runs


def main():
    need_node()
    corpus = need(corpora(), "no corpora: set SPECLOOM_CORPORA to their folder")
    work, program = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2]
    modules = installed(work)
    work /= "doc_html_sources"
    shutil.rmtree(work, ignore_errors=True)
    work.mkdir()
    own = sorted((ROOT / "examples").glob("bookshop-[3n]*")) + sorted((HERE / "documents").glob("*.*")) + [HOSTILE]
    files = documents_of_corpora(corpus) + own
    with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
        jobs = [pool.submit(sites_of, program, number, file, work / str(number)) for number, file in enumerate(files)]
        runs = [run for job in jobs for run in job.result()]
    sites = [run for run in runs if "unreadable" not in run]
    results = judged(modules, [run for run in sites if "failure" not in run], work)
    results += [{"name": run["name"], "faults": [run["failure"]]} for run in sites if "failure" in run]
    columns = ("files", "compiled", "bytes", "links", "texts")
    print(f"{'site':60}", *(f"{column:>9}" for column in columns))
    for result in sorted(results, key=lambda result: result["name"]):
        print(f"{result['name']:60}", *(f"{result.get(column, ''):>9}" for column in columns))
        for fault in result["faults"][:20]:
            print("   ", fault[:300])
    for run in runs:
        if "unreadable" in run:
            print(f"{run['name']}: not read: {run['unreadable'].splitlines()[0]}")
    need(len(sites) > len(files), "hardly a document was read")
    shutil.rmtree(work)
    return 1 if any(result["faults"] for result in results) else 0


if __name__ == "__main__":
    sys.exit(main())
