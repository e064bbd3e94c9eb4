"""Runs every generator on each document of the corpora, of the examples and of this folder. The TypeScript compiler must
be able to parse all of their files.

    typescript_syntax_test.py WORK-FOLDER GENERATE

GENERATE is the program generate_corpora.
"""

import pathlib
import shutil
import subprocess
import sys

from typescript import HERE, ROOT, corpora, installed_dependencies, need, need_node


def main():
    need_node()
    corpus = need(corpora(), "no corpora: set SPECLOOM_CORPORA to their folder")
    work, generate = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2]
    modules = installed_dependencies(work)
    folder = work / "syntax"
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    documents = [file for source in [corpus / "openapi", corpus / "pairs", HERE / "documents"]
                 for file in sorted(source.iterdir()) if file.suffix in (".json", ".yaml", ".yml")]
    documents.append(ROOT / "examples" / "bookshop-3.1.yaml")
    runs = folder / "runs.jsonl"
    with open(runs, "wb") as out:
        subprocess.run([generate, folder, *documents], stdout=out, stderr=subprocess.DEVNULL, check=True)
    status = subprocess.run(["node", HERE / "typescript_syntax.js", modules, runs]).returncode
    shutil.rmtree(folder)
    return status


if __name__ == "__main__":
    sys.exit(main())
