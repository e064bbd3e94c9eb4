"""Generates a Spring server from each document of the corpora, of the examples and of this folder. The compiler must take
all that are written, without an error or a warning; the others must end in a report of known issues.

    spring_compile_test.py WORK-FOLDER GENERATE

GENERATE is the program generate_spring. Prints what became of each document.
"""

import collections
import hashlib
import json
import pathlib
import re
import shutil
import subprocess
import sys

from spring import compile_all, need_java
from typescript import HERE, ROOT, corpora, need

# What a real document may have against a server. All else that ends in a report is a fault of the generator.
REASONS = {
    "More than one operation maps to the '*' method in the controller '*'",
    "More than one operation maps to the '*' method in the service class '*'",
    "More than one operation maps to the '*' method in the service interface '*'",
    "Request body has no schema defined, skipping",
    "Response has no schema defined, skipping",
}
# And one that the documents of this folder are after.
EXPRESSION = "Spring would evaluate the expression in "
LITERALS = re.compile(r'"(?:[^"\\\r\n]|\\.)*"')
COMMENTS = re.compile(r"//[^\r\n]*")
CODE = re.compile(r"[\w$@.,;:(){}<>=\[\]\s]*", re.ASCII)


def documents():
    corpus = need(corpora(), "no corpora: set SPECLOOM_CORPORA to their folder")
    found = [file for source in (corpus / "openapi", corpus / "pairs", HERE / "documents", HERE / "documents" / "java")
             for file in sorted(source.iterdir()) if file.suffix in (".json", ".yaml", ".yml")]
    return found + sorted((ROOT / "examples").glob("bookshop-3*"))


def reasons_of(report):
    """How often which Error stands in a report."""
    errors = re.findall(r"^-?\d+:-?\d+ +(?:Error|Fatal) +(.*)$", report, re.MULTILINE)
    return collections.Counter(EXPRESSION if error.startswith(EXPRESSION) else re.sub(r"'[^']*'", "'*'", error)
                               for error in errors)


def faults_of(file):
    """What stands in a source beside its literals that no text of a document may bring there."""
    text = COMMENTS.sub("", LITERALS.sub("", file.read_bytes().decode()))
    if not CODE.fullmatch(text):
        yield f"{file}: signs that no template has"
    if len(re.findall(r"\b(?:class|interface|record|enum)\b(?!\))", text.replace(".class", ""))) != 1:
        yield f"{file}: not one class"


def digest(folder):
    """The same for two folders with the same files."""
    result = hashlib.sha256()
    for file in sorted(folder.rglob("*.java")):
        result.update(str(file.relative_to(folder)).encode() + b"\0" + file.read_bytes() + b"\0")
    return result.digest()


def main():
    need_java()
    work = pathlib.Path(sys.argv[1]).resolve() / "spring"
    shutil.rmtree(work, ignore_errors=True)
    output = work / "output"
    output.mkdir(parents=True)
    lines = subprocess.run([sys.argv[2], output, HERE / "spring" / "configuration.yaml", *documents()], check=True,
                           stdout=subprocess.PIPE, text=True).stdout.splitlines()
    faults, compiled, read = [], {}, 0
    for run in map(json.loads, lines):
        document = pathlib.Path(run["document"])
        name = document.name
        folder = pathlib.Path(run.get("folder", "none"))
        reasons = reasons_of(run.get("report", ""))
        if "failure" in run:
            print(f"{name}: not read")
            continue
        read += 1
        if reasons:
            print(f"{name}:", *(f"{count} x {reason};" for reason, count in sorted(reasons.items())))
            known = REASONS | ({EXPRESSION} if HERE in document.parents else set())
            faults += [f"{name}: {reason}" for reason in reasons if reason not in known]
            faults += [f"{name}: files beside a report"] if folder.exists() else []
            continue
        sources = sorted(folder.rglob("*.java"))
        print(f"{name}: {len(sources)} classes")
        faults += [] if sources else [f"{name}: neither files nor a report"]
        faults += [fault for source in sources for fault in faults_of(source)]
        compiled.setdefault(digest(folder), folder)  # the JSON of a document gives what its YAML gives
    expected = {output / str(i) for i in range(len(lines))}
    faults += [f"{path}: outside" for path in output.iterdir() if path not in expected]
    faults += [f"{path}: outside" for folder in output.iterdir() for path in folder.iterdir() if path.name != "src"]
    verdicts = compile_all(compiled.values(), work / "classes")
    faults += [line for line in verdicts if not re.fullmatch(r"\S+ \d+ 0", line)]
    faults += [] if len(verdicts) >= len(compiled) else ["the compiler did not come to an end"]
    faults += [] if read * 2 > len(lines) else ["hardly a document was read"]
    print(*faults[:50], sep="\n")
    shutil.rmtree(work)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
