#!/usr/bin/env bash
# Builds and runs the benchmarks and prints their table. --plot draws the growth curves into
# docs/performance instead; other options go to Google Benchmark, such as --benchmark_filter=hit.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/common.sh
show_help "$@"

filter=-growth/
options=()
plot=
for option in "$@"; do
  case $option in
    --plot) plot=yes filter='growth/|acquire_among/|^load/.*(ours|floor|simdjson)' ;;
    *) options+=("$option") ;;
  esac
done

need_packages "${BUILD_PACKAGES[@]}" "${BENCH_PACKAGES[@]}" ${plot:+gnuplot-nox}
echo "Building into build/bench."
quietly cmake --preset release -B build/bench -DKXXLATE_BENCHMARKS=ON
quietly cmake --build build/bench
# The library finds the generated catalogues by this, and logs each first miss there.
export TAVI_XLATE_ROOT=$PWD/build/bench/catalogues
unset KXXLATE_LOG
rm -rf "$TAVI_XLATE_ROOT/log"
echo "Measuring; all that is measured goes to build/bench/results.txt."
# Repetitions of all benchmarks are mixed, so that what disturbs the machine disturbs all alike.
build/bench/bench/kxxlate_bench --benchmark_filter="$filter" --benchmark_min_time=0.05 \
  --benchmark_repetitions=9 --benchmark_enable_random_interleaving=true \
  --benchmark_out=build/bench/results.json --benchmark_out_format=json \
  ${options[@]+"${options[@]}"} >build/bench/results.txt 2>build/bench/errors.txt ||
  { cat build/bench/errors.txt; exit 1; }
if [ -n "$plot" ]; then
  bench/plot.py build/bench/results.json docs/performance
else
  bench/report.py bench/targets.txt build/bench/results.json | tee build/bench/table.md
fi
