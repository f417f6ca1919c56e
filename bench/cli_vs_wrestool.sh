#!/usr/bin/env bash
# vexlo-cli against wrestool (icoutils) on the extraction of every icon group of one large
# resource DLL: "vexlo-cli extract DLL DIR" against "wrestool -x -t 14 -o DIR/ DLL", each into
# a fresh folder. The two tools take turns, round by round, in the same run. Prints the median
# seconds of each over the rounds and the ratio (wrestool / vexlo-cli) as the median of each
# round's ratio, so that a machine whose speed drifts during the run moves both tools alike.
# Each tool's files are counted, so that neither wins by writing less. For scale: a loop in
# which the shell itself creates as many empty files (what the file system charges for the
# files alone, which both tools pay).
#
# The outputs stay until the end: on ext4, creating files soon after many were deleted costs
# far more (the search for inodes not recently deleted), which would be charged to whichever
# tool runs next. The outputs go under $TMPDIR (default /tmp); TMPDIR=/dev/shm measures on
# tmpfs.
#
#   usage: bench/cli_vs_wrestool.sh [VEXLO_CLI] [DLL] [ROUNDS]
#   VEXLO_CLI   default: build/vexlo-cli
#   DLL         default: Wine's shell32.dll (apt-get install libwine)
#   ROUNDS      default: 15
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
cli="$(realpath -m "${1:-$root/build/vexlo-cli}")"
dll="${2:-/usr/lib/x86_64-linux-gnu/wine/x86_64-windows/shell32.dll}"
rounds="${3:-15}"
command -v wrestool >/dev/null || { echo "wrestool is missing (apt-get install icoutils)" >&2; exit 1; }
[ -x "$cli" ] || { echo "no program at $cli (build the vexlo-cli target)" >&2; exit 1; }
[ -f "$dll" ] || { echo "no DLL at $dll (apt-get install libwine, or name a resource DLL)" >&2; exit 1; }

work="$(mktemp -d -p "${TMPDIR:-/tmp}")"
trap 'rm -rf "$work"' EXIT

# One extraction into the fresh folder $2; prints its seconds.
run() {
  local start end
  mkdir -p "$2"
  start=$EPOCHREALTIME
  case "$1" in
    vexlo)    "$cli" extract "$dll" "$2" >/dev/null ;;
    wrestool) wrestool -x -t 14 -o "$2/" "$dll" ;;
    create)   for ((k = 0; k < count; k++)); do : >"$2/$k.ico"; done ;;
  esac
  end=$EPOCHREALTIME
  echo "$start $end" | awk '{ printf "%.6f\n", $2 - $1 }'
}

median() { sort -g | awk '{ v[NR] = $1 } END { print (NR % 2) ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'; }

declare -A times=([vexlo]="" [wrestool]="" [create]="")
declare -A made
run vexlo "$work/warm-v" >/dev/null; run wrestool "$work/warm-w" >/dev/null  # warm the caches
count="$(find "$work/warm-v" -name '*.ico' | wc -l)"
for ((r = 0; r < rounds; r++)); do
  if ((r % 2)); then order="wrestool vexlo create"; else order="vexlo wrestool create"; fi
  for tool in $order; do
    out="$work/out-$tool-$r"
    times[$tool]+="$(run "$tool" "$out")"$'\n'
    made[$tool]="$(find "$out" -name '*.ico' | wc -l)"
  done
done
[ "${made[vexlo]}" -eq "${made[wrestool]}" ] ||
  { echo "vexlo-cli wrote ${made[vexlo]} icon files, wrestool ${made[wrestool]}" >&2; exit 1; }

secs() { printf '%s' "${times[$1]}" | median | awk '{ printf "%.1f", $1 * 1000 }'; }
ratio=$(paste <(printf '%s' "${times[wrestool]}") <(printf '%s' "${times[vexlo]}") |
  awk '{ print $1 / $2 }' | median | awk '{ printf "%.1f", $1 }')
echo "$dll: ${made[vexlo]} icon groups, $(stat -c %s "$dll") bytes; median of $rounds rounds;" \
  "load average $(cut -d' ' -f1 /proc/loadavg) on $(nproc) cores at the end"
printf '%-34s %8s ms\n' "vexlo-cli extract" "$(secs vexlo)" "wrestool -x -t 14" "$(secs wrestool)" \
  ": >FILE.ico, as many (scale)" "$(secs create)"
echo "ratio (wrestool / vexlo-cli): ${ratio}x"
