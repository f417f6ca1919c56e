#!/usr/bin/env bash
# Installs the Debian packages that building, running and testing Vexlo need, when missing.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config
  qt6-base-dev qt6-qpa-plugins libgl-dev libxkbcommon-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  xvfb xauth fonts-dejavu-core xdg-utils poppler-utils adwaita-icon-theme
  icoutils libpng-dev
  # nsis-common (1 MB): real PE32 and PE32+ programs with icons, which the extraction tests
  # compare with wrestool (Wine's DLLs are used too when libwine is installed).
  nsis-common
  desktop-file-utils appstream
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$p")
  fi
done

source "$(dirname "${BASH_SOURCE[0]}")/apt-install.sh"
apt_install "${missing[@]}"
