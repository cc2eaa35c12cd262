#!/usr/bin/env bash
# Fuzzes what parses, with clang's engine under the address and undefined-behaviour sanitizers.
#
#   scripts/fuzz.sh [SECONDS]    for each input format; 10 unless told otherwise
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/common.sh
show_help "$@"

seconds=${1:-10}
need_packages "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
echo "Building into build/fuzz."
quietly cmake --preset clang -B build/fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKXXLATE_FUZZ=ON \
  -DKXXLATE_SANITIZE=fuzzer-no-link,address,undefined
inputs=(positional_insertion variable_insertion properties_file lang_file locale)
quietly cmake --build build/fuzz --target "${inputs[@]/%/_fuzzer}"
# New inputs go to a scratch folder; what is worth keeping is copied by hand.
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
for input in "${inputs[@]}"; do
  echo "Fuzzing $input for $seconds seconds."
  mkdir "$scratch/$input"
  if ! "build/fuzz/tests/${input}_fuzzer" -max_total_time="$seconds" -timeout=5 \
    -rss_limit_mb=2048 -max_len=20000 -verbosity=0 -print_final_stats=1 \
    -artifact_prefix="build/fuzz/" "$scratch/$input" "tests/fuzz/corpus/$input" \
    >"$scratch/output" 2>&1; then
    cat "$scratch/output"
    echo "The input lies in build/fuzz."
    exit 1
  fi
  grep executed_units "$scratch/output"
done
