#!/usr/bin/env bash
# Builds and runs the benchmarks. Options go to Google Benchmark, such as --benchmark_filter=Hit.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/common.sh

need_packages "${BUILD_PACKAGES[@]}" libbenchmark-dev
echo "Building into build/bench."
quietly cmake --preset release -B build/bench -DKXXLATE_BENCHMARKS=ON
quietly cmake --build build/bench
# The first miss of each key is logged, under an ancestor of the program; let that be a scratch one.
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir -p "$scratch/a/b/c"
cp build/bench/bench/kxxlate_bench "$scratch/a/b/c/"
"$scratch/a/b/c/kxxlate_bench" "$@"
