#!/usr/bin/env bash
# Builds and runs the benchmarks. Options go to Google Benchmark, such as --benchmark_filter=Hit.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh

need_packages "${BUILD_PACKAGES[@]}" libbenchmark-dev
echo "Building into build/bench."
cmake --preset release -B build/bench -DKXXLATE_BENCHMARKS=ON >/dev/null
cmake --build build/bench | tail -n 1
# The first miss of each key is logged, under an ancestor of the program; let that be a scratch one.
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir -p "$scratch/a/b/c"
cp build/bench/bench/kxxlate_bench "$scratch/a/b/c/"
"$scratch/a/b/c/kxxlate_bench" "$@"
