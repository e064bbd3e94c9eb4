"""Runs every generator on each document of the corpora, of the examples and of this folder. The TypeScript compiler must
be able to parse all of their files.

    typescript_syntax_test.py WORK-FOLDER PROGRAM

PROGRAM is the built program.
"""

import json
import pathlib
import re
import shutil
import subprocess
import sys

from typescript import HERE, ROOT, corpora, generate, installed_dependencies, need, need_node

GENERATORS = ["client fetch", "server express", "server nestjs"]
UNKNOWN_FORMAT = re.compile(r"^Unknown format: (.*) at \(", re.MULTILINE)
OPERATION_ID = re.compile(r"""\boperationId["']?\s*:\s*(?:"((?:[^"\\\n]|\\.)*)"|'((?:[^'\n]|'')*)'|([^"'\s{][^\n,}]*))""")


def operation_ids(text):
    """All texts that stand as an operationId; escapes are left as they are, for no identifier has one."""
    return [next(filter(None, match.groups()), "").strip() for match in OPERATION_ID.finditer(text)]


def without_formats(document, formats, folder):
    """A copy in which formats of schemas that would have to be declared are extensions: not every generator reads a configuration."""
    names = "|".join(re.escape(name) for name in formats)
    text = re.sub(rf"""(["']?)\bformat\1(\s*:\s*(["']?)(?:{names})\3\s*(?:[,}}\n]))""", r"\1x-format\1\2",
                  document.read_text(encoding="utf-8"))
    copy = folder / "documents" / document.name
    copy.parent.mkdir(exist_ok=True)
    copy.write_text(text, encoding="utf-8")
    return copy


def runs_of(program, document, folder, is_copy=False):
    """What the generators make of a document."""
    failures = {name: generate(program, name, document, folder / name.replace(" ", "_")) for name in GENERATORS}
    formats = UNKNOWN_FORMAT.findall(failures[GENERATORS[0]])
    if formats and not is_copy:
        return runs_of(program, without_formats(document, set(formats), folder), folder, is_copy=True)
    if failures[GENERATORS[0]] and len(set(failures.values())) == 1:  # not the fault of one of them
        return [{"document": str(document), "failure": failures[GENERATORS[0]]}]
    ids = operation_ids(document.read_text(encoding="utf-8"))
    return [{"document": str(document), "generator": name} |
            ({"failure": failure} if failure else
             {"folder": str(folder / name.replace(" ", "_")), "operationIds": ids})
            for name, failure in failures.items()]


def main():
    need_node()
    corpus = need(corpora(), "no corpora: set SPECLOOM_CORPORA to their folder")
    work, program = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2]
    modules = installed_dependencies(work)
    folder = work / "syntax"
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    documents = [file for source in [corpus / "openapi", corpus / "pairs", HERE / "documents"]
                 for file in sorted(source.iterdir()) if file.suffix in (".json", ".yaml", ".yml")]
    documents.append(ROOT / "examples" / "bookshop-3.1.yaml")
    runs = folder / "runs.jsonl"
    with open(runs, "w", encoding="utf-8") as out:
        for number, document in enumerate(documents):
            for run in runs_of(program, document, folder / str(number)):
                out.write(json.dumps(run) + "\n")
    status = subprocess.run(["node", HERE / "typescript_syntax.js", modules, runs]).returncode
    shutil.rmtree(folder)
    return status


if __name__ == "__main__":
    sys.exit(main())
