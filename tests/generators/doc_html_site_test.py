"""Generates documentation sites, builds them whole with Astro and the stand-in for their template, and judges the pages.

    doc_html_site_test.py WORK-FOLDER PROGRAM

PROGRAM is the built program. What the sites depend on is installed once for each state of the lockfile and of the stand-in, below
WORK-FOLDER, and shared by them.
"""

import concurrent.futures
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys

from doc_html import HOSTILE, TEMPLATE, WORKERS, installed, judged_pages, with_server, write_translations
from documents import read_document, write_json
from typescript import HERE, ROOT, generate, need_node

BOOKSHOP = ROOT / "examples" / "bookshop-3.1.yaml"
EVERYTHING = HERE / "documents" / "everything.yaml"
# What an expression of the hostile document comes to, and how it looks as a text.
EVALUATED, WRITTEN = "42042", "{7007+35035}"
HOSTILE_TEXTS = [f"!{EVALUATED}"] + [f"{text} {WRITTEN}" for text in (
    "title", "1", "licence", "expression", "table", "server", "operation", "operation text", "parameter text", "body text",
    "response text", "schema text", "property text", "enum", "inner", "tag text")]
TWO_LOCALES = {"locales": ["en", "de"], "default_locale": "en"}
# Document, settings, texts that pages have or, behind a "!", have not.
SITES = {
    "bookshop": (BOOKSHOP, {}, ["The shop.", "getOrder", "Newest first, unless a sorting is asked for."]),
    "bookshop-languages": (BOOKSHOP, {"operations": "separate", "resources": "separate", "changelog": True, "html_title_prefix": "Shop",
                                      "html_meta": {name: f"The {name}" for name in ("author", "description", "generator", "keywords")},
                                      "i18n": TWO_LOCALES | {"prefix_default_locale": True}}, ["Look an order up (de)", "List books"]),
    "everything": (EVERYTHING, {"operations": "group", "i18n": TWO_LOCALES}, ["petOfOwnerHead"]),
    "hostile": (HOSTILE, {"changelog": True}, HOSTILE_TEXTS),
    "hostile-apart": (HOSTILE, {"operations": "separate", "resources": "separate"}, HOSTILE_TEXTS),
}


def faults_of(name, program, modules, work):
    document, settings, texts = SITES[name]
    folder = work / name
    (work / "settings").mkdir(exist_ok=True)
    configuration, locale = (work / "settings" / f"{name}.{kind}.json" for kind in ("configuration", "locale"))
    copy = work / "settings" / f"{name}.json"
    content = with_server(read_document(document))
    write_json(content, copy)
    write_json({"version": "1.0", "commands": {"generate": {"doc_html": settings}}}, configuration)
    write_translations(content, locale)
    failure = generate(program, "doc html", copy, folder, "--config", configuration,
                       *(["--i18n", f"de={locale}"] if "i18n" in settings else []))
    if failure:
        return [failure]
    wanted = json.loads((folder / "package.json").read_text())["dependencies"]
    pinned = json.loads((HERE / "doc_html" / "package.json").read_text())["dependencies"]
    faults = [f"the lockfile does not pin {dependency} of package.json" for dependency, version in wanted.items()
              if pinned.get(dependency) != version and not pinned.get(dependency, "").endswith(TEMPLATE)]
    (folder / "node_modules").symlink_to(modules)
    built = subprocess.run(["npm", "run", "build"], cwd=folder, capture_output=True, text=True, stdin=subprocess.DEVNULL,
                           env={**os.environ, "ASTRO_TELEMETRY_DISABLED": "1", "NO_COLOR": "1"})
    if built.returncode != 0:
        # Among hints by the dozen.
        errors = re.findall(r"^.*error.*\n(?:.*\n){0,4}", built.stdout + built.stderr, re.MULTILINE | re.IGNORECASE)
        return faults + [f"npm run build: {text}" for text in errors or [built.stdout[-2000:]]]
    result = judged_pages(modules, folder / "dist", texts)
    print(f"{name}: {result['pages']} pages, {result['links']} links")
    return faults + result["faults"] + ([] if result["pages"] and result["links"] else ["hardly a page"])


def main():
    need_node()
    work, program = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2]
    modules = installed(work)
    work /= "doc_html_site"
    shutil.rmtree(work, ignore_errors=True)
    work.mkdir()
    with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
        faults = dict(zip(SITES, pool.map(lambda name: faults_of(name, program, modules, work), SITES)))
    for name, texts in faults.items():
        print(*(f"{name}: {text}" for text in texts[:30]), sep="\n", end="\n" if texts else "")
    return 1 if any(faults.values()) else 0


if __name__ == "__main__":
    sys.exit(main())
