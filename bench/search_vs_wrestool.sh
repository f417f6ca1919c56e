#!/usr/bin/env bash
# vexlo-cli search against a wrestool (icoutils) loop over the same folder of real program
# files: "vexlo-cli search DIR OUT --max 10000" against
# "for f in DIR/*.exe; do wrestool -x -t 14 -o OUT/ $f; done", each into a fresh folder, the
# two taking turns round by round in the same run. Prints the median seconds of each, the
# files per second, and the ratio (wrestool / vexlo-cli) as the median of each round's ratio.
#
# The folder: every program file (a file that starts with "MZ") under SOURCE, copied COPIES
# times as NAME_K.exe, so that the run is long enough to time. By default SOURCE is Wine's
# Windows folder when libwine is installed, else NSIS's (nsis-common: installer stubs,
# plug-in DLLs and sample installers, 75 files).
#
# The two do different work per icon: wrestool copies each icon group out as it stands,
# vexlo-cli decodes the 32x32 picture and writes it as the editor saves an icon. The files
# per second are what a user of either sees for the whole folder.
#
#   usage: bench/search_vs_wrestool.sh [VEXLO_CLI] [SOURCE] [COPIES] [ROUNDS]
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
cli="$(realpath -m "${1:-$root/build/vexlo-cli}")"
if [ -n "${2:-}" ]; then source_dir="$2"
elif [ -d /usr/lib/x86_64-linux-gnu/wine/x86_64-windows ]; then source_dir=/usr/lib/x86_64-linux-gnu/wine/x86_64-windows
else source_dir=/usr/share/nsis; fi
copies="${3:-10}"
rounds="${4:-7}"
command -v wrestool >/dev/null || { echo "wrestool is missing (apt-get install icoutils)" >&2; exit 1; }
[ -x "$cli" ] || { echo "no program at $cli (build the vexlo-cli target)" >&2; exit 1; }
[ -d "$source_dir" ] || { echo "no folder at $source_dir" >&2; exit 1; }

work="$(mktemp -d -p "${TMPDIR:-/tmp}")"
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/exe"
n=0
while IFS= read -r -d '' f; do
  [ "$(head -c 2 "$f" | od -An -c | tr -d " ")" = "MZ" ] || continue
  base="$(basename "$f")"; base="${base%.*}"
  for ((k = 0; k < copies; k++)); do cp "$f" "$work/exe/${base}_${n}_${k}.exe"; done
  n=$((n + 1))
done < <(find "$source_dir" -type f -print0)
files=$((n * copies))
[ "$files" -gt 0 ] || { echo "no program files under $source_dir" >&2; exit 1; }

run() {
  local start end
  mkdir -p "$2"
  start=$EPOCHREALTIME
  case "$1" in
    vexlo)    "$cli" search "$work/exe" "$2" --max 10000 >/dev/null ;;
    wrestool) for f in "$work"/exe/*.exe; do wrestool -x -t 14 -o "$2/" "$f" 2>/dev/null || true; done ;;
  esac
  end=$EPOCHREALTIME
  echo "$start $end" | awk '{ printf "%.6f\n", $2 - $1 }'
}

median() { sort -g | awk '{ v[NR] = $1 } END { print (NR % 2) ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'; }

declare -A times=([vexlo]="" [wrestool]="")
declare -A made
run vexlo "$work/warm-v" >/dev/null; run wrestool "$work/warm-w" >/dev/null  # warm the caches
for ((r = 0; r < rounds; r++)); do
  if ((r % 2)); then order="wrestool vexlo"; else order="vexlo wrestool"; fi
  for tool in $order; do
    out="$work/out-$tool-$r"
    times[$tool]+="$(run "$tool" "$out")"$'\n'
    made[$tool]="$(find "$out" -name '*.ico' | wc -l)"
  done
done

secs() { printf '%s' "${times[$1]}" | median; }
rate() { secs "$1" | awk -v f="$files" '{ printf "%.0f", f / $1 }'; }
ratio=$(paste <(printf '%s' "${times[wrestool]}") <(printf '%s' "${times[vexlo]}") |
  awk '{ print $1 / $2 }' | median | awk '{ printf "%.1f", $1 }')
echo "$source_dir: $n program files x $copies copies = $files files; median of $rounds rounds;" \
  "load average $(cut -d' ' -f1 /proc/loadavg) on $(nproc) cores at the end"
printf '%-28s %8.1f ms %7s files/s %6s icon files\n' \
  "vexlo-cli search" "$(secs vexlo | awk '{ print $1 * 1000 }')" "$(rate vexlo)" "${made[vexlo]}" \
  "wrestool -x -t 14 loop" "$(secs wrestool | awk '{ print $1 * 1000 }')" "$(rate wrestool)" "${made[wrestool]}"
echo "ratio (wrestool / vexlo-cli): ${ratio}x"
