"""Generates a project for each document of the corpora and of this folder. The TypeScript compiler must be able to parse
all of their files.

    typescript_syntax_test.py WORK-FOLDER NAME GENERATE...

NAME is that of the generator; "GENERATE... INPUT OUTPUT CONFIGURATION" is run.
"""

import json
import pathlib
import re
import shutil
import subprocess
import sys

from typescript import HERE, corpora, installed_dependencies, need, need_node

UNKNOWN_FORMAT = re.compile(r"Unknown format: (.*) at \(")


def generate(command, file, folder, configuration):
    """Whether the document can be read at all, with all of its formats declared."""
    formats = set()
    while True:
        custom = [{"name": name, "type": "string"} for name in sorted(formats)]
        configuration.write_text(json.dumps({"openapi": {"custom_formats": custom}}))
        run = subprocess.run([*command, file, folder, configuration], capture_output=True, text=True,
                             stdin=subprocess.DEVNULL)
        unknown = set(UNKNOWN_FORMAT.findall(run.stdout)) - formats
        if run.returncode == 0 or not unknown:
            return run.returncode == 0
        formats |= unknown


def main():
    need_node()
    corpus = need(corpora(), "no corpora: set SPECLOOM_CORPORA to their folder")
    work, name, command = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2], sys.argv[3:]
    modules = installed_dependencies(work)
    folder = work / "syntax" / name
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    sources = [corpus / "openapi", corpus / "pairs", HERE / "documents"]
    documents = [file for source in sources for file in sorted(source.iterdir())
                 if file.suffix in (".json", ".yaml", ".yml")]
    generated = sum(generate(command, file, folder / f"{file.parent.name}-{file.name}", folder / "configuration.json")
                    for file in documents)
    parsed = subprocess.run(["node", HERE / "typescript_syntax.js", modules, folder], capture_output=True, text=True,
                            check=True)
    *faults, count = parsed.stdout.splitlines()
    print(f"{len(documents)} documents, {generated} of them can be read; {count} files, {len(faults)} faults")
    print("\n".join(faults[:20]))
    return 1 if faults or generated < len(documents) / 2 else 0


if __name__ == "__main__":
    sys.exit(main())
