#!/usr/bin/env bash
# Installs the Debian packages that building and testing need and that are missing; says which. The optional ones may be
# missing: without Qt's packages everything but the Qt desktop and the console window is still built, without those of curl
# and net-snmp the alert server sends neither mail nor traps. With the argument "tests", also the counterparts: without them
# the tests that speak to them are skipped. With "packages", also what making and checking Debian packages needs.
set -euo pipefail

required=(g++ cmake ninja-build pkg-config libsqlite3-dev nlohmann-json3-dev libcli11-dev libcsv-dev libgtest-dev
          libgmock-dev libbenchmark-dev)
# The second line is what the checks of the installed tree use.
optional=(libcurl4-openssl-dev libsnmp-dev qt6-base-dev qt6-multimedia-dev libgl1-mesa-dev fonts-dejavu-core ccache
          groff-base appstream desktop-file-utils zsh)
# A mail server and a trap daemon, which tests start for themselves, without privileges; and the units that come with them.
counterparts=(exim4-daemon-light snmptrapd)
declare -A units=([exim4-daemon-light]='exim4.service exim4-base.timer'
                  [snmptrapd]='snmpd.service snmptrapd.service snmptrapd.socket')
[ "${1:-}" != packages ] || optional+=(dpkg-dev file lintian debootstrap)

missing() {
  for package in "$@"; do
    [ "$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null)" = 'install ok installed' ] || echo "$package"
  done
}

as_root() { if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi; }

apt_options=(-y --no-install-recommends)
install() {
  echo "Installing Debian packages: $*"
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install "${apt_options[@]}" "$@" >/dev/null
}

# Nobody asked for daemons that run: they are not started, now or with the machine. Units that the machine has are left
# alone, and so is its mail server: --no-remove refuses a second one in its place.
install_counterpart() {
  local unit masks=()
  for unit in ${units[$1]}; do
    [ -e "/lib/systemd/system/$unit" ] || [ -e "/etc/systemd/system/$unit" ] ||
      [ -e "/etc/init.d/${unit%.*}" ] || masks+=("/etc/systemd/system/$unit")
  done
  [ ${#masks[@]} = 0 ] || as_root mkdir -p /etc/systemd/system
  for unit in "${masks[@]}"; do as_root ln -sf /dev/null "$unit"; done
  apt_options+=(--no-remove)
  install "$1" && return
  [ ${#masks[@]} = 0 ] || as_root rm -f "${masks[@]}"
  echo "Going on without: $1"
}

install_counterparts() {
  local policy=/usr/sbin/policy-rc.d package
  if [ ! -e "$policy" ]; then
    trap 'as_root rm -f /usr/sbin/policy-rc.d' EXIT
    printf '#!/bin/sh\nexit 101\n' | as_root tee "$policy" >/dev/null
    as_root chmod 755 "$policy"
  fi
  for package; do install_counterpart "$package"; done
}

mapfile -t need < <(missing "${required[@]}")
mapfile -t want < <(missing "${optional[@]}")
test_with=()
[ "${1:-}" != tests ] || mapfile -t test_with < <(missing "${counterparts[@]}")
[ $((${#need[@]} + ${#want[@]} + ${#test_with[@]})) -gt 0 ] || exit 0
as_root apt-get update -qq || [ ${#need[@]} = 0 ]
[ ${#need[@]} = 0 ] || install "${need[@]}"
[ ${#want[@]} = 0 ] || install "${want[@]}" || echo "Going on without: ${want[*]}"
[ ${#test_with[@]} = 0 ] || install_counterparts "${test_with[@]}"
