#!/usr/bin/env bash
# Installs what is missing, builds everything with warnings as errors and runs every test:
# the core and window suites, then the core suites again under AddressSanitizer and
# UndefinedBehaviorSanitizer.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
jobs="$(nproc)"
"$root/scripts/setup-deps.sh"

echo "== build and test =="
cmake -S "$root" -B "$root/build-test" -G Ninja -DCMAKE_BUILD_TYPE=Release -DVEXLO_WERROR=ON
cmake --build "$root/build-test" -j "$jobs"
QT_QPA_PLATFORM=offscreen ctest --test-dir "$root/build-test" -j "$jobs" --output-on-failure

echo "== core under AddressSanitizer and UndefinedBehaviorSanitizer =="
cmake -S "$root" -B "$root/build-asan" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DVEXLO_CORE_ONLY=ON \
  -DVEXLO_SANITIZE=ON -DVEXLO_BENCH=OFF -DVEXLO_WERROR=ON
cmake --build "$root/build-asan" -j "$jobs"
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
  ctest --test-dir "$root/build-asan" -j "$jobs" --output-on-failure
