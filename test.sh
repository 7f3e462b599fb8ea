#!/usr/bin/env bash
# Builds everything and runs all tests.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

scripts/prepare.sh test dev

echo "== Running the tests"
ctest --preset dev --parallel "$(nproc)" --no-tests=error
