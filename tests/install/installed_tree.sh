#!/usr/bin/env bash
# Checks the tree that `cmake --install` makes: installed_tree.sh CHECK, with what tests/CMakeLists.txt says in the
# environment. The check install_tree makes the tree for the others. Exit code 77 is a check that cannot be made here.
set -euo pipefail
unset ALERTING_RESOURCES ALERTING_LIBRARY LD_LIBRARY_PATH
export ALERTING_DATA=$WORK/data

# A tree that was configured for the loader's own directories does not tell it where its libraries are.
use_prefix() {
  PREFIX=$1 alertctl=$1/bin/alertctl
  [ -n "$RUNPATH" ] || export LD_LIBRARY_PATH=$1/$LIBDIR
}
use_prefix "$PREFIX"

# No reader leaves a pipe early (grep -q): its writer would fail of it now and then.
fail() { echo "$*" >&2; exit 1; }
skip() { echo "skipped: $*"; exit 77; }
needs() { command -v "$1" >/dev/null || skip "there is no $1"; }
equal() { diff <(echo "$2") <(echo "$3") || fail "$1: expected on the left, found on the right"; }

# What every site starts with, from the file that it starts from.
starter_names() { sed -n 's/^ *"name": "\(.*\)",$/\1/p' "$SOURCE/resources/starter/services.json"; }

# The one block of that language in the document.
code_block() { sed -n "/^\`\`\`$1\$/,/^\`\`\`\$/{/^\`\`\`/!p}" "$SOURCE/docs/small-console.md"; }

# The nouns, or a noun's verbs, as the program's own help lists them.
verbs_of() { "$alertctl" "$@" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z-]*\) .*/\1/p'; }

install_tree() {
  rm -rf "$PREFIX" "$WORK"
  mkdir -p "$WORK"
  cmake --install "$BUILD" --prefix "$PREFIX" >/dev/null
  "$alertctl" init
}

# No link without a number is there, and nothing of the build tree but what was installed.
programs_alone() {
  use_prefix "$WORK/programs"
  ALERTING_DATA=$WORK/programs-data
  rm -rf "$PREFIX" "$ALERTING_DATA"
  cmake --install "$BUILD" --prefix "$PREFIX" --component alerting >/dev/null
  [ ! -e "$PREFIX/$LIBDIR/libalerting.so" ] || fail "the link for building is among the programs"
  "$alertctl" init >/dev/null
  "$alertctl" service copy "Wave File" "Installed copy" >/dev/null
  "$alertctl" service show "Installed copy" >/dev/null
  equal "services" "$(starter_names | wc -l)" "$(($("$alertctl" service list | wc -l) - 2))"
}

# The unit starts the program where the tree was configured to stand.
server_and_laboratory() {
  local unit=$PREFIX/lib/systemd/user/alertserver.service
  equal "program" "$FULL_BINDIR/alertserver" "$(sed -n 's/^ExecStart=//p' "$unit")"
  "$alertctl" config write >/dev/null
  equal "jobs" "" "$("$PREFIX/bin/alertserver" --list)"
  equal "no such job" 3 "$("$PREFIX/bin/alertserver" --once 1 2>/dev/null && echo 0 || echo $?)"
  equal "devices" 1 "$("$PREFIX/bin/alertlab" --json <<<quit | grep -c '"what":"ready"')"
}

# systemd checks its own grammar, and whether the program is there.
unit() {
  needs systemd-analyze
  mkdir -p "$WORK/units"
  sed "s#^ExecStart=.*/#ExecStart=$PREFIX/bin/#" "$PREFIX/lib/systemd/user/alertserver.service" >"$WORK/units/alertserver.service"
  equal "unit" "" "$(XDG_RUNTIME_DIR=$WORK/units systemd-analyze --user --man=no verify \
    "$WORK/units/alertserver.service" 2>&1)"
}

# As where /lib is a link to /usr/lib.
library_behind_a_link() {
  ln -sfn "$PREFIX/$LIBDIR" "$WORK/link"
  LD_LIBRARY_PATH=$WORK/link "$alertctl" init --data "$WORK/link-data"
}

small_console() {
  rm -rf "$WORK/console"
  mkdir "$WORK/console"
  code_block cmake >"$WORK/console/CMakeLists.txt"
  code_block cpp >"$WORK/console/main.cc"
  cmake -S "$WORK/console" -B "$WORK/console/build" -DCMAKE_PREFIX_PATH="$PREFIX" -DCMAKE_CXX_COMPILER="$CXX" \
    -DCMAKE_CXX_FLAGS="$CXXFLAGS" >/dev/null
  cmake --build "$WORK/console/build" >/dev/null
  ldd "$WORK/console/build/small_console" | grep "libalerting.so.$SOVERSION => $PREFIX/" >/dev/null ||
    fail "the console does not use the installed library"
  equal "services" "$(starter_names)" "$("$WORK/console/build/small_console")"
}

pkg_config() {
  needs pkg-config
  export PKG_CONFIG_PATH=$PREFIX/$LIBDIR/pkgconfig
  equal "version" "$VERSION" "$(pkg-config --modversion alerting)"
  code_block cpp >"$WORK/main.cc"
  # shellcheck disable=SC2046,SC2086
  "$CXX" $CXXFLAGS -std=c++20 "$WORK/main.cc" $(pkg-config --cflags --libs alerting) -o "$WORK/console_by_pkg_config" \
    -Wl,-rpath,"$PREFIX/$LIBDIR"
  equal "services" "$(starter_names)" "$("$WORK/console_by_pkg_config")"
}

headers() {
  local header
  for header in alerting.h alert_page.h; do
    echo "#include <alerting/$header>" | "$CXX" -std=c++20 -fsyntax-only -x c++ -Wall -Wextra -Wpedantic -Werror \
      -I"$PREFIX/include" -I"$PREFIX/include/alerting" - || fail "$header does not stand alone"
  done
}

# Every verb that the program has, in order.
manual() {
  local page noun verb verbs=
  for noun in $(verbs_of); do
    [ -n "$(verbs_of "$noun")" ] || verbs+="alertctl $noun"$'\n'
    for verb in $(verbs_of "$noun"); do verbs+="alertctl $noun $verb"$'\n'; done
  done
  page=$(sed 's/\\-/-/g' "$PREFIX/share/man/man1/alertctl.1")
  equal "verbs" "${verbs%$'\n'}" "$(sed -n 's/^\.SS //p' <<<"$page")"
  needs groff
  for page in "$PREFIX"/share/man/man*/*; do
    equal "$page" "" "$(groff -ww -man -z -Tutf8 "$page" 2>&1)"
  done
}

# Completes the last of the words as bash would.
completed() {
  COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
  _alertctl
  [ ${#COMPREPLY[@]} = 0 ] || printf '%s\n' "${COMPREPLY[@]}"
}

bash_completion() {
  # shellcheck disable=SC1091
  source "$PREFIX/share/bash-completion/completions/alertctl"
  equal "noun" service "$(completed alertctl ser)"
  equal "nouns" "$(verbs_of)" "$(completed alertctl "")"
  equal "verbs" "$(verbs_of service)" "$(completed alertctl service "")"
  equal "behind an option" "$(verbs_of service)" "$(completed alertctl service --json "")"
  equal "option" "--manager" "$(completed alertctl service copy "Wave File" --man)"
  equal "no data" "" "$(completed alertctl service show Wave)"
  rm -rf "$WORK/files"
  mkdir -p "$WORK/files/a directory"
  cd "$WORK/files"
  touch "a backup.db"
  equal "files" "$(printf 'a backup.db\na directory')" "$(completed alertctl restore a | sort)"
  equal "directories" "a directory" "$(completed alertctl init --data a)"
  equal "joined" "a directory" "$(completed alertctl init --data = a)"
  equal "second operand" "" "$(completed alertctl restore "a backup.db" a)"
}

zsh_completion() {
  needs zsh
  zsh -n "$PREFIX/$ZSH_DIR/_alertctl"
}

libraries() {
  local name file
  for name in alertplatform alertcompanions alerting; do
    file=$PREFIX/$LIBDIR/lib$name.so
    equal "link" "lib$name.so.$SOVERSION" "$(readlink "$file")"
    readelf -d "$file" | grep "SONAME.*\[lib$name.so.$SOVERSION\]" >/dev/null || fail "$name has another SONAME"
  done
  for file in "$PREFIX"/bin/* "$PREFIX/$LIBDIR"/*.so; do
    equal "paths of $file" "" "$(readelf -d "$file" | sed -n 's/.*\(RUNPATH\|RPATH\).*\[\(.*\)\]/\2/p' |
      tr : '\n' | grep -v '^\$ORIGIN')"
  done
}

# The versions that the exports stand in are symbols, too.
symbols() {
  local listed
  listed=$(sed 's#//.*##' "$SOURCE/include/alerting/exports.def" | tr '\n' ' ' | sed 's/ALERTING_/\n&/g' | sed -n \
    -e 's/^ALERTING_EXPORT([^,]*, *\([A-Za-z]*\),.*[ ,]\([0-9]*\)) *$/_\1@@ARGS_\2/p' \
    -e 's/^ALERTING_PLAIN_EXPORT([^,]*, *\([A-Za-z]*\),.*/\1/p' | sort)
  [ "$(wc -l <<<"$listed")" -gt 50 ] || fail "the list of exports cannot be read"
  equal "symbols" "$listed" "$(nm -D --defined-only "$PREFIX/$LIBDIR/libalerting.so" | sed -n \
    's/^[0-9a-f]* [B-Zb-z] //p' | sort)"
}

# Of text files; what a debugger needs names the sources.
no_source_paths() { equal "files" "" "$(grep -rIlF -e "$SOURCE" -e "$BUILD" "$PREFIX" || true)"; }

desktop() {
  [ -x "$PREFIX/bin/alertconsole" ] || skip "the window is not built"
  "$PREFIX/bin/alertconsole" --help >/dev/null
  [ -s "$PREFIX/share/icons/hicolor/scalable/apps/alertconsole.svg" ] || fail "there is no icon"
  [ -s "$PREFIX/share/alerting/resources/guide/README.md" ] || fail "there is no guide"
  needs desktop-file-validate
  equal "desktop file" "" "$(desktop-file-validate "$PREFIX/share/applications/alertconsole.desktop" 2>&1)"
  needs appstreamcli
  appstreamcli validate --no-net "$PREFIX"/share/metainfo/*.xml
}

"$1"
