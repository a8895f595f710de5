#!/usr/bin/env bash
# Builds the Debian packages and tries them in a fresh root: installs, runs, removes, and looks for what is left.
#   scripts/check-package.sh [BUILD-DIRECTORY]    (else build/package, which is configured and built first)
# Needs root, debootstrap and a Debian mirror; ends with 77 where one of them is not there.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/package}
suite=bookworm

skip() { echo "skipped: $*"; exit 77; }
fail() { echo "failed: $*" >&2; exit 1; }
step() { echo "== $* (after $SECONDS s)"; }

[ "$(id -u)" = 0 ] || skip "a root can only be made by root"
scripts/setup.sh packages
command -v debootstrap >/dev/null || skip "there is no debootstrap"
command -v lintian >/dev/null || skip "there is no lintian"

if [ $# = 0 ]; then
  step "build"
  cmake --preset package >/dev/null
  cmake --build --preset package
fi

# The mirror that this machine's own packages come from.
mirror=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' "Codename: $suite" 'Component: main' | sort -u | sed -n 1p)
mirror=${mirror:-http://deb.debian.org/debian}

work=$(mktemp -d "${TMPDIR:-/tmp}/alerting-package.XXXXXX")
root=$work/root
clean_up() {
  for mount in dev/pts dev proc; do umount "$root/$mount" 2>/dev/null || true; done
  rm -rf --one-file-system "$work"
}
trap clean_up EXIT

step "packages"
(cd "$build" && cpack -B "$work/packages" >"$work/cpack.log" 2>&1) || { cat "$work/cpack.log"; fail "cpack"; }
ls -l "$work"/packages/*.deb

step "lintian"
lintian --allow-root --fail-on error --tag-display-limit 0 "$work"/packages/*.deb

step "a fresh root from $mirror"
debootstrap --variant=minbase --include=man-db "$suite" "$root" "$mirror" >"$work/debootstrap.log" 2>&1 ||
  { tail -5 "$work/debootstrap.log"; skip "no root can be made from $mirror"; }
mount --bind /dev "$root/dev" && mount --bind /dev/pts "$root/dev/pts" && mount -t proc proc "$root/proc" || skip "nothing can be mounted here"
cp /etc/resolv.conf "$root/etc/resolv.conf"
inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 "$@"; }
as_user() { inside runuser -u admin-of-site -- env HOME=/home/admin-of-site "$@"; }
files() { (cd "$root" && find . -xdev -path ./proc -prune -o -path ./dev -prune -o -print | sort); }

inside useradd --create-home admin-of-site
inside apt-get update -qq

# What the packages need is there before the first look, so that what it leaves behind is not taken for theirs.
step "what the packages need"
needs=$(for package in "$work"/packages/*.deb; do dpkg-deb -f "$package" Depends; done | sed 's/alerting (=[^)]*)//; s/^, *//' |
  grep . | paste -sd,)
inside apt-get satisfy -y -qq --no-install-recommends "$needs" >"$work/apt.log" 2>&1 || { tail -5 "$work/apt.log"; fail "$needs"; }
files >"$work/before"

step "install"
mkdir "$root/packages"
cp "$work"/packages/*.deb "$root/packages"
inside sh -c 'apt-get install -y -qq --no-install-recommends /packages/*.deb' >"$work/apt.log" 2>&1 ||
  { tail -5 "$work/apt.log"; fail "the packages cannot be installed"; }
rm -r "$root/packages"

step "run"
as_user alertctl init
as_user alertctl service list
as_user alertctl service copy "Wave File" "Second sound"
# There is no such job: the server has read the configuration and looked for it.
as_user alertctl config write
as_user alertserver --once 1 && fail "the alert server answered a test that nobody sent" || [ $? = 3 ] || fail "the alert server"
as_user alertlab <<<quit
program=$(sed -n 's/^ExecStart=//p' "$root/usr/lib/systemd/user/alertserver.service")
[ "$program" = /usr/bin/alertserver ] && [ -x "$root$program" ] || fail "the unit starts \"$program\""
for page in alertctl alertconsole alertserver alertlab alert-managers.json; do
  as_user man "$page" | grep NAME >/dev/null || fail "there is no manual page $page"
done
if [ -e "$root/usr/bin/alertconsole" ]; then
  as_user mkdir -m 700 /home/admin-of-site/runtime
  as_user env QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=/home/admin-of-site/runtime \
    alertconsole --screenshot-dir /home/admin-of-site/pictures >"$work/pictures.log" 2>&1 ||
    { tail -5 "$work/pictures.log"; fail "the window"; }
  [ -s "$root/home/admin-of-site/pictures/console-services.png" ] || fail "the window made no picture"
fi

step "remove"
names=$(for package in "$work"/packages/*.deb; do dpkg-deb -f "$package" Package; done)
# shellcheck disable=SC2086
inside apt-get purge -y -qq $names >"$work/apt.log" 2>&1 ||
  { tail -5 "$work/apt.log"; fail "the packages cannot be removed"; }
files >"$work/after"
left=$(comm -13 "$work/before" "$work/after" | grep -v '^\./home/admin-of-site/' || true)
[ -z "$left" ] || fail "removal left: $left"
[ -s "$root/home/admin-of-site/.local/share/alerting/alerting.db" ] || fail "removal took the data"
gone=$(comm -23 "$work/before" "$work/after")
[ -z "$gone" ] || fail "removal took what it did not bring: $gone"
echo "passed: the packages install, run and go, and leave nothing but data"
