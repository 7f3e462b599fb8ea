#!/usr/bin/env bash
# Builds everything and runs all tests.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

scripts/install_packages.sh test

echo "== Building the program and its tests"
cmake --preset dev
cmake --build --preset dev --parallel "$(nproc)"

echo "== Running the tests"
ctest --preset dev --parallel "$(nproc)" --no-tests=error
