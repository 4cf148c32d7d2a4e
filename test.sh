#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test: once as the product is built, once with the address and
# undefined-behaviour sanitizers, and a short run of each fuzzer. Ends with "N passed, N failed".
set -euo pipefail
cd "$(dirname "$0")"
scripts/install-packages build test
export TESSERA_ALL_INSTALLED=1

status=0
logs=()
for preset in dev asan; do
  echo "== $preset"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset"
  ctest --test-dir "build/$preset" --output-on-failure || status=1
  logs+=("build/$preset/Testing/Temporary/LastTest.log")
done

# Each test program tells its own totals; one that tells none (a check, a fuzzer, a crash) counts as one.
awk '
  /^[0-9]+\/[0-9]+ Testing: / { told = 0; wrong = 0 }
  /^Totals: / { told = 1; passed += $2; failed += $4; wrong += $4 }
  /^Test Passed\.$/ { if (!told) passed++ }
  /^Test Failed\.$/ { if (!wrong) failed++ }
  END { printf "%d passed, %d failed\n", passed, failed; exit failed > 0 }
' "${logs[@]}" || status=1
exit $status
