#!/usr/bin/env bash
# Builds the libFuzzer targets of fuzz/ with clang (fuzzer, AddressSanitizer and
# UndefinedBehaviorSanitizer) in build-fuzz/ and runs each for SECONDS (default 60).
# Corpora live in build-fuzz/corpus/<target>/, seeded from tests/fixtures/ico/ (and the ANI
# target from tests/fixtures/ani/, the PE reader's from tests/fixtures/pe/); an input that crashes is written to
# build-fuzz/artifacts/<target>/ and the script exits non-zero. Keep such inputs as regression
# fixtures in tests/fixtures/ico/hostile/.
#   scripts/fuzz.sh [SECONDS]
set -euo pipefail

seconds="${1:-60}"
root="$(cd "$(dirname "$0")/.." && pwd)"
build="$root/build-fuzz"

# clang and its libFuzzer runtime, when missing.
need=()
command -v clang++ >/dev/null 2>&1 || need+=(clang)
if ! ls /usr/lib/llvm-*/lib/clang/*/lib/linux/libclang_rt.fuzzer-x86_64.a >/dev/null 2>&1 &&
   ! ls /usr/lib/llvm-*/lib/clang/*/lib/*/libclang_rt.fuzzer.a >/dev/null 2>&1; then
  need+=(libclang-rt-14-dev)
fi
source "$(dirname "${BASH_SOURCE[0]}")/apt-install.sh"
apt_install "${need[@]}"

CC=clang CXX=clang++ cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DVEXLO_CORE_ONLY=ON -DVEXLO_TESTS=OFF -DVEXLO_BENCH=OFF -DVEXLO_SANITIZE=ON -DVEXLO_FUZZ=ON
cmake --build "$build" -j2

status=0
for source in "$root"/fuzz/*_fuzz.cpp; do
  target="$(basename "$source" .cpp)"
  corpus="$build/corpus/$target"
  artifacts="$build/artifacts/$target"
  mkdir -p "$corpus" "$artifacts"
  find "$root/tests/fixtures/ico" -name '*.ico' -exec cp -n {} "$corpus/" \;
  if [[ "$target" == ani_* ]]; then
    find "$root/tests/fixtures/ani" -name '*.ani' -exec cp -n {} "$corpus/" \;
  fi
  if [[ "$target" == pe_* ]]; then
    find "$root/tests/fixtures/pe" -type f ! -name '*.md' -exec cp -n {} "$corpus/" \;
  fi
  echo "== $target for ${seconds}s"
  if ! "$build/fuzz/$target" "$corpus" -max_total_time="$seconds" -max_len=32768 -timeout=10 \
      -rss_limit_mb=1024 -print_final_stats=1 -artifact_prefix="$artifacts/"; then
    echo "$target: found a failing input, see $artifacts/" >&2
    status=1
  fi
done
exit $status
