#!/bin/sh
# Installs what is missing, builds, and runs all benchmarks. Arguments go to each of them, as in
# --benchmark_filter=drawShape; with --peers first, whole processes in every installed style are
# compared instead, and the arguments go to that (--help tells). Times are of this machine and this moment: compare within one run.
set -eu
cd "$(dirname "$0")/.."

./scripts/install-dependencies.sh libbenchmark-dev >&2
cmake --preset release -DVARN_BUILD_BENCHMARKS=ON >&2
cmake --build --preset release --parallel --target varn_benchmarks >&2
if [ "${1:-}" = --peers ]; then
    shift
    exec build/release/bin/varn-peers "$@"
fi
export QT_QPA_PLATFORM="${QT_QPA_PLATFORM:-offscreen}"
for program in build/release/bin/bench_*; do
    # Not every program has benchmarks that match a filter.
    if "$program" --benchmark_list_tests=true "$@" 2>/dev/null | grep -v "^Failed to match" | grep -q .; then
        "$program" "$@"
    fi
done
