#!/usr/bin/env bash
# Installs what is missing, builds Vexlo and starts it. An optional file path is passed on
# as the editor's command line: scripts/run.sh [FILE]
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/setup-deps.sh"
cmake -S "$root" -B "$root/build-release" -G Ninja -DCMAKE_BUILD_TYPE=Release \
  -DVEXLO_TESTS=OFF -DVEXLO_BENCH=OFF >/dev/null
cmake --build "$root/build-release" --target vexlo
exec "$root/build-release/vexlo" "$@"
