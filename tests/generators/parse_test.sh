#!/usr/bin/env bash
# The TypeScript compiler parses every file that every generator makes of every document of the corpora, and of the
# documents of hostile names beside this script.
set -euo pipefail
program=$1 work=$2
here=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
corpora=${SPECLOOM_CORPORA:-$here/../../../shared/corpora}

shopt -s nullglob
files=("$here"/documents/* "$here"/../../examples/*-3.[01].*)
if [ -d "$corpora" ]; then
    files+=("$corpora"/openapi/* "$corpora"/pairs/*)
elif [ -n "${SPECLOOM_REQUIRE_CORPORA:-}" ]; then
    echo 'The corpora are required: set SPECLOOM_CORPORA to their folder'
    exit 1
else
    echo 'No corpora: set SPECLOOM_CORPORA to their folder'
    exit 77
fi

compiler=$work/compiler
if ! cmp -s "$here/compiler/package-lock.json" "$compiler/installed"; then
    mkdir -p "$compiler"
    cp "$here"/compiler/*.json "$compiler"
    (cd "$compiler" && npm ci --ignore-scripts --no-audit --no-fund)
    cp "$here/compiler/package-lock.json" "$compiler/installed"
fi

output=$work/generated
rm -rf "$output"
mkdir -p "$output"
"$program" "$output" "${files[@]}" >"$output/runs.jsonl"
NODE_PATH=$compiler/node_modules node "$here/parse.js" "$output/runs.jsonl"
rm -rf "$output"
