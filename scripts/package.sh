#!/usr/bin/env bash
# Installs what is missing, builds the programs for a package (vexlo-cli linked with the
# system's shared libpng, as Debian wants), makes the Debian package build-deb/vexlo_*.deb
# and checks it with lintian.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/setup-deps.sh"
cmake -S "$root" -B "$root/build-deb" -G Ninja -DCMAKE_BUILD_TYPE=Release -DVEXLO_TESTS=OFF \
  -DVEXLO_BENCH=OFF -DVEXLO_CLI_STATIC=OFF
cmake --build "$root/build-deb" -j "$(nproc)"
(cd "$root/build-deb" && cpack -G DEB)
command -v lintian >/dev/null || { source "$root/scripts/apt-install.sh"; apt_install lintian; }
lintian --fail-on error "$root"/build-deb/vexlo_*.deb
