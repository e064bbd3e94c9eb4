#!/usr/bin/env bash
# scripts/fuzz with stand-ins for the targets: it tells of each that ended, and fails when one of them did.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
mkdir "$tree/bin"

stand_in() { # NAME, with its body on standard input
    { echo '#!/bin/sh' && cat; } >"$tree/bin/fuzz_$1"
    chmod +x "$tree/bin/fuzz_$1"
}
expect() { # STATUS TEXT ARGUMENT...; the text may hold wildcards
    local expected=$1 text=$2 output status=0
    shift 2
    output=$(scripts/fuzz --build "$tree" "$@" 2>&1) || status=$?
    # shellcheck disable=SC2053 # wildcards
    [[ $status = "$expected" && $output == $text ]] || {
        printf 'scripts/fuzz %s: status %s and\n%s\n' "$*" "$status" "$output"
        exit 1
    }
}

expect 1 'fuzz: there are no fuzz targets in *' --runs 1
stand_in json <<'EOS'
echo "$@"
echo '#200	DONE   cov: 12 ft: 34 corp: 1/1b'
echo 'stat::number_of_executed_units: 200'
echo 'stat::average_exec_per_sec:     100'
EOS
stand_in number <<'EOS'
echo 'first line'
sleep 1
echo "artifact_prefix='./'; Test unit written to ./crash-1"
exit 77
EOS
expect 0 'fuzz_json:  *200 inputs,  *100 a second, coverage 12 (features: 34)' --runs 200 json
for argument in -runs=200 -seed=1 fuzz/seeds/json fuzz/seeds/openapi "-artifact_prefix=$tree/fuzzing/json/"; do
    grep -qF -- "$argument" "$tree/fuzzing/json/log" || { echo "json was not given $argument" && exit 1; }
done
[ ! -e "$tree/fuzzing/json/corpus" ] || { echo 'a corpus was kept' && exit 1; }
expect 0 'fuzz_json: *' --seconds 1 fuzz_json
grep -qF -- "-max_total_time=1 " "$tree/fuzzing/json/log" && [ -d "$tree/fuzzing/json/corpus" ]
for jobs in 1 2; do # a target that fails ends no other one
    expect 1 $'*FAILED with status 77*first line\n*FAILED, its input is in ./crash-1*' --jobs $jobs --runs 1 number json
    grep -qF 'DONE' "$tree/fuzzing/json/log"
    rm "$tree/fuzzing/json/log"
done
expect 1 'fuzz: there is no */bin/fuzz_lint' --runs 1
expect 1 'fuzz: no such target: xml *' --runs 1 xml
expect 1 'fuzz: either --seconds or --runs' --runs 1 --seconds 1
expect 1 'fuzz: --jobs needs a number above 0' --jobs 0
stand_in xml </dev/null
expect 1 'fuzz: fuzz_xml is missing from the table in scripts/fuzz' --runs 1 json
