#!/bin/sh
# Installs what is missing, builds, and runs all tests. The argument names the preset: dev (default), release or asan.
set -eu
cd "$(dirname "$0")/.."
preset=${1:-dev}

./scripts/install-dependencies.sh
cmake --preset "$preset"
cmake --build --preset "$preset" --parallel
ctest --preset "$preset"
