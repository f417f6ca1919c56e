#!/usr/bin/env bash
# Installs the build into a temporary prefix and checks what the desktop sees of it: the
# menu entry and the metainfo pass their validators, the help pages stand where the program
# looks for them with every picture they name, the thumbnailer entry runs vexlo-cli,
# ICO files open with Vexlo by default under a private XDG home, and the installed editor
# starts (offscreen) and keeps running until stopped.
# usage: install_test.sh BUILD_DIR CMAKE FIXTURES_DIR
set -euo pipefail
build="$1" cmake="$2" fixtures="$3"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
prefix="$work/prefix"
"$cmake" --install "$build" --prefix "$prefix" >/dev/null

fail() { echo "FAIL: $*" >&2; exit 1; }
share="$prefix/share"
for f in bin/vexlo bin/vexlo-cli share/applications/org.vexlo.Vexlo.desktop \
         share/metainfo/org.vexlo.Vexlo.metainfo.xml share/thumbnailers/vexlo.thumbnailer \
         share/icons/hicolor/16x16/apps/org.vexlo.Vexlo.png share/icons/hicolor/32x32/apps/org.vexlo.Vexlo.png \
         share/icons/hicolor/48x48/apps/org.vexlo.Vexlo.png share/icons/hicolor/scalable/apps/org.vexlo.Vexlo.svg; do
  [ -e "$prefix/$f" ] || fail "not installed: $f"
done

# The help where the installed program looks for it (share/vexlo/help beside its bin), with
# every picture and page its pages name.
help_dir="$prefix/bin/../share/vexlo/help"
[ -f "$help_dir/VexloHelp.html" ] || fail "help not installed where vexlo looks: $help_dir/VexloHelp.html"
for page in "$help_dir"/*.html; do
  for ref in $(grep -o '\(src\|href\)="[^"#:]\+[#"]' "$page" | sed 's/^[a-z]*="//; s/[#"]$//'); do
    [ -e "$help_dir/$ref" ] || fail "help page $(basename "$page") names a missing $ref"
  done
done

desktop-file-validate "$share/applications/org.vexlo.Vexlo.desktop" || fail "desktop-file-validate"
appstreamcli validate --no-net "$share/metainfo/org.vexlo.Vexlo.metainfo.xml" >/dev/null || fail "appstreamcli validate"

# The thumbnailer's command line, with its %i %o %s filled in as a file manager does.
exec_line="$(sed -n 's/^Exec=//p' "$share/thumbnailers/vexlo.thumbnailer")"
cmd="${exec_line//%i/$fixtures/ico/icotool_multi.ico}"
cmd="${cmd//%o/$work/thumb.png}"
cmd="${cmd//%s/128}"
PATH="$prefix/bin:$PATH" bash -c "$cmd" || fail "thumbnailer: $cmd"
[ -s "$work/thumb.png" ] || fail "thumbnailer wrote nothing"

# With only this prefix's applications known, ICO files open with Vexlo.
update-desktop-database "$share/applications"
mkdir -p "$work/home" "$work/config"
default="$(env -i PATH="$PATH" HOME="$work/home" XDG_DATA_DIRS="$share" XDG_DATA_HOME="$work/home/share" \
  XDG_CONFIG_HOME="$work/config" XDG_CONFIG_DIRS="$work/none" xdg-mime query default image/vnd.microsoft.icon)"
[ "$default" = "org.vexlo.Vexlo.desktop" ] || fail "xdg-mime default is '$default'"

# The installed editor finds its libraries and runs until it is stopped (124 from timeout).
if ldd "$prefix/bin/vexlo" | grep -q "not found"; then fail "vexlo misses a library"; fi
set +e
QT_QPA_PLATFORM=offscreen HOME="$work/home" timeout 3 "$prefix/bin/vexlo" >/dev/null 2>"$work/err"
status=$?
set -e
[ "$status" -eq 124 ] || { cat "$work/err" >&2; fail "vexlo ended with status $status"; }
echo "installed and checked under $prefix"
