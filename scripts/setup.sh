#!/usr/bin/env bash
# Installs the Debian packages that building and testing need and that are missing; says which. The optional ones may be
# missing: without Qt's packages everything but the Qt desktop and the console window is still built, without those of curl
# and net-snmp the alert server sends neither mail nor traps. With the argument "packages", also what making and checking
# Debian packages needs.
set -euo pipefail

required=(g++ cmake ninja-build pkg-config libsqlite3-dev nlohmann-json3-dev libcli11-dev libcsv-dev libgtest-dev
          libgmock-dev libbenchmark-dev)
# The second line is what the checks of the installed tree use.
optional=(libcurl4-openssl-dev libsnmp-dev qt6-base-dev qt6-multimedia-dev libgl1-mesa-dev fonts-dejavu-core ccache
          groff-base appstream desktop-file-utils zsh)
[ "${1:-}" != packages ] || optional+=(dpkg-dev file lintian debootstrap)

missing() {
  for package in "$@"; do
    [ "$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null)" = 'install ok installed' ] || echo "$package"
  done
}

as_root() { if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi; }

install() {
  echo "Installing Debian packages: $*"
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "$@" >/dev/null
}

mapfile -t need < <(missing "${required[@]}")
mapfile -t want < <(missing "${optional[@]}")
[ $((${#need[@]} + ${#want[@]})) -gt 0 ] || exit 0
as_root apt-get update -qq
[ ${#need[@]} = 0 ] || install "${need[@]}"
[ ${#want[@]} = 0 ] || install "${want[@]}" || echo "Going on without: ${want[*]}"
