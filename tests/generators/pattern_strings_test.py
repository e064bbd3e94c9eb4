"""Makes strings for every pattern of the corpora, for those of the JSON Schema test suite, and for patterns that are
drawn. Each string must match for Node.js.

    pattern_strings_test.py WORK-FOLDER GENERATE

GENERATE is the program generate_strings.
"""

import pathlib
import subprocess
import sys

from typescript import HERE, corpora, need, need_node


def main():
    need_node()
    corpus = need(corpora(), "no corpora: set SPECLOOM_CORPORA to their folder")
    strings = pathlib.Path(sys.argv[1]).resolve() / "strings.jsonl"
    documents = [file for folder in ["openapi", "pairs", "formats", "multifile", "json-schema/tests"]
                 for file in sorted((corpus / folder).rglob("*")) if file.suffix in (".json", ".yaml", ".yml")]
    with open(strings, "wb") as out:
        subprocess.run([sys.argv[2], *documents], stdout=out, stderr=subprocess.DEVNULL, check=True)
    return subprocess.run(["node", HERE / "pattern_strings.mjs", strings, ".^", "[]"]).returncode


if __name__ == "__main__":
    sys.exit(main())
