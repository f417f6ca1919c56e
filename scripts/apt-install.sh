# Sourced by the setup scripts: apt_install PACKAGE... installs them with apt-get, through sudo
# when not run as root.
apt_install() {
  [ $# -gt 0 ] || return 0
  echo "Installing: $*"
  local sudo_cmd=()
  if [ "$(id -u)" -ne 0 ]; then sudo_cmd=(sudo); fi
  "${sudo_cmd[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -qq "$@"
}
