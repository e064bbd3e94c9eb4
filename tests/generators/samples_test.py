"""Makes sample values for all schemas of the corpora, and holds them to their schemas by two validators.

    samples_test.py WORK-FOLDER SAMPLE

SAMPLE is the program sample_corpora, which judges them by jv_schema; samples/judge.js judges the same values by Ajv. A schema may be
refused only for a contradiction in it.
"""

import concurrent.futures
import json
import os
import pathlib
import subprocess
import sys

from documents import as_json, documents_of_corpora
from typescript import HERE, corpora, installed_dependencies, need, need_node

# Values for each schema: SPECLOOM_SAMPLES=10 makes ten.
COUNT = int(os.environ.get("SPECLOOM_SAMPLES", "3"))
# How a refusal begins that tells of a contradiction, after which come its kind and its place.
CONTRADICTION = "No value fits the schema at "
# How many schemas of a document contradict themselves. In cloudflare mostly a required `result` or `success` on which the parts of an
# `allOf` cannot agree.
CONTRADICTORY = {"cloudflare-3.0-compact.json": 797, "discord-3.1.json": 1, "github-3.0.json": 2}


def judge(sample, file, work, modules):
    """What became of a document: its name, schemas, values, fits by both, refusals, faults; None when it cannot be read."""
    lines = work / f"{file.name}.jsonl"
    with open(lines, "wb") as output:
        subprocess.run([sample, str(COUNT), file], check=True, stdout=output, stdin=subprocess.DEVNULL)
    samples = [json.loads(line) for line in lines.read_text(encoding="utf-8").splitlines()]
    if not samples or "failure" in samples[0]:
        return None
    as_json(file, work / f"{file.name}.document")
    command = ["node", "--stack-size=4000", "--max-old-space-size=4000", HERE / "samples" / "judge.js", work / f"{file.name}.document", lines]
    process = subprocess.run(command, capture_output=True, text=True, stdin=subprocess.DEVNULL,
                             env={**os.environ, "NODE_PATH": str(modules)})
    if process.returncode != 0:
        return {"name": file.name, "faults": [process.stderr[:2000]], "schemas": 0, "values": 0, "ours": 0, "theirs": 0, "refusals": []}
    theirs = json.loads(process.stdout)
    made = [line for line in samples if "values" in line]
    return {
        "name": file.name,
        "schemas": len(samples),
        "values": sum(len(line["values"]) for line in made),
        "ours": sum(line["fits"] for line in made),
        "theirs": theirs["fits"],
        "refusals": [line["refusal"] for line in samples if "refusal" in line],
        "faults": theirs["faults"],
    }


def main():
    work, sample = pathlib.Path(sys.argv[1]), sys.argv[2]
    need_node()
    folder = need(corpora(), "the corpora are missing")
    modules = installed_dependencies(work, "samples")
    work = work / "samples"
    work.mkdir(exist_ok=True)
    files = documents_of_corpora(folder)
    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        results = [result for result in pool.map(lambda file: judge(sample, file, work, modules), files) if result]
    failed = False
    print(f"{'document':40} {'schemas':>8} {'values':>8} {'jv_schema':>10} {'ajv':>8} {'refused':>8}")
    for result in results:
        print(f"{result['name']:40} {result['schemas']:8} {result['values']:8} {result['ours']:10} {result['theirs']:8} "
              f"{len(result['refusals']):8}")
        refused = [text for text in result["refusals"] if not text.startswith(CONTRADICTION)]
        failed |= result["ours"] != result["values"] or result["theirs"] != result["values"] or bool(refused) or bool(result["faults"])
        failed |= len(result["refusals"]) != CONTRADICTORY.get(result["name"], 0)
        for text in sorted(set(result["refusals"])) + result["faults"][:20]:
            print("   ", text[:300])
    need(results, "no document could be read")
    sys.exit(1 if failed else 0)


main()
