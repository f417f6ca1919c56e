#!/usr/bin/env bash
# vexlo-cli against icotool (icoutils) as a script uses them: one process per file over a
# folder of icons, "vexlo-cli info" against "icotool -l" and "vexlo-cli export FILE 0 OUT.png"
# against "icotool -x". The two tools take turns, round by round, in the same run; each
# round's loop is run by /bin/sh. Prints the median files per second of each tool over the
# rounds, and the ratio (vexlo-cli / icotool) as the median of each round's ratio, so that a
# machine whose speed drifts during the run moves both tools of a round alike. For scale: a
# loop of /bin/true (starting any small process here), and a loop in which the shell itself
# creates each output file (what the file system charges for extraction, without a process).
#
#   usage: bench/cli_vs_icotool.sh [VEXLO_CLI] [ICON_FOLDER] [ROUNDS]
#   VEXLO_CLI     default: build/vexlo-cli
#   ICON_FOLDER   single-image icon files; default: 100 made by bench/make_bench_icons.py
#   ROUNDS        default: 15
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
cli="$(realpath -m "${1:-$root/build/vexlo-cli}")"
rounds="${3:-15}"
command -v icotool >/dev/null || { echo "icotool is missing (apt-get install icoutils)" >&2; exit 1; }
[ -x "$cli" ] || { echo "no program at $cli (build the vexlo-cli target)" >&2; exit 1; }

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
icons="${2:-}"
if [ -z "$icons" ]; then
  icons="$work/icons"
  python3 "$root/bench/make_bench_icons.py" "$icons" 100
fi
icons="$(realpath "$icons")"
count="$(find "$icons" -maxdepth 1 -name '*.ico' | wc -l)"
[ "$count" -gt 0 ] || { echo "no .ico files in $icons" >&2; exit 1; }

# One loop over the folder, one process per file, in /bin/sh; prints its seconds. $1 names
# the command: list-vexlo, list-icotool, extract-vexlo, extract-icotool, floor, create.
# Extraction writes into a fresh folder, $2, so neither tool pays for replacing files.
run_loop() {
  local start end
  start=$EPOCHREALTIME
  ICONS="$icons" CLI="$cli" OUT="${2:-}" /bin/sh -c '
    case "$0" in
      list-vexlo)      for f in "$ICONS"/*.ico; do "$CLI" info "$f"; done >/dev/null ;;
      list-icotool)    for f in "$ICONS"/*.ico; do icotool -l "$f"; done >/dev/null ;;
      extract-vexlo)   for f in "$ICONS"/*.ico; do n=${f##*/}; "$CLI" export "$f" 0 "$OUT/${n%.ico}.png"; done ;;
      extract-icotool) for f in "$ICONS"/*.ico; do icotool -x -o "$OUT" "$f"; done ;;
      floor)           for f in "$ICONS"/*.ico; do /bin/true "$f"; done ;;
      create)          for f in "$ICONS"/*.ico; do n=${f##*/}; : >"$OUT/${n%.ico}.png"; done ;;
    esac' "$1"
  end=$EPOCHREALTIME
  echo "$start $end" | awk '{ printf "%.6f\n", $2 - $1 }'
}

median() { sort -g | awk '{ v[NR] = $1 } END { print (NR % 2) ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'; }

declare -A times
for kind in list-vexlo list-icotool extract-vexlo extract-icotool floor create; do times[$kind]=""; done
run_loop list-vexlo >/dev/null; run_loop list-icotool >/dev/null  # warm the caches
for ((r = 0; r < rounds; r++)); do
  # Alternate which tool goes first, so that neither always meets the other's leftovers.
  if ((r % 2)); then order="icotool vexlo"; else order="vexlo icotool"; fi
  for tool in $order; do
    times[list-$tool]+="$(run_loop "list-$tool")"$'\n'
    out="$work/out-$tool-$r"
    mkdir -p "$out"
    times[extract-$tool]+="$(run_loop "extract-$tool" "$out")"$'\n'
    made="$(find "$out" -name '*.png' | wc -l)"
    [ "$made" -eq "$count" ] || { echo "$tool extracted $made of $count images" >&2; exit 1; }
    rm -rf "$out"
  done
  times[floor]+="$(run_loop floor)"$'\n'
  mkdir -p "$work/out-create"
  times[create]+="$(run_loop create "$work/out-create")"$'\n'
  rm -rf "$work/out-create"
done

rate() { printf '%s' "${times[$1]}" | median | awk -v n="$count" '{ printf "%.0f", n / $1 }'; }
# The median over the rounds of icotool's seconds over vexlo-cli's in the same round.
ratio() {
  paste <(printf '%s' "${times[$1-icotool]}") <(printf '%s' "${times[$1-vexlo]}") |
    awk '{ print $1 / $2 }' | median | awk '{ printf "%.2f", $1 }'
}
echo "$count icons, one process per file, median of $rounds rounds (loops run by /bin/sh);" \
  "load average $(cut -d' ' -f1 /proc/loadavg) on $(nproc) cores at the end"
printf '%-8s %-26s %8s   %-16s %8s   %s\n' "" "" "files/s" "" "files/s" "ratio"
for job in list extract; do
  ours="$(rate "$job-vexlo")"
  theirs="$(rate "$job-icotool")"
  if [ "$job" = list ]; then a="vexlo-cli info"; b="icotool -l"; else a="vexlo-cli export"; b="icotool -x"; fi
  printf '%-8s %-26s %8s   %-16s %8s   %sx\n' "$job" "$a" "$ours" "$b" "$theirs" "$(ratio "$job")"
done
printf '%-8s %-26s %8s   (a dynamically linked program that does nothing)\n' "scale" "/bin/true" "$(rate floor)"
printf '%-8s %-26s %8s   (the shell creating each output file, no process: the file system'"'"'s share)\n' \
  "" ": >FILE.png" "$(rate create)"
