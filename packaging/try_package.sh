#!/bin/sh
# Makes the Debian package, installs it, tries what it brought, and removes it without a trace.
# Usage: packaging/try_package.sh [BUILD-FOLDER]
#
# Root installs it on this machine, for the moment of the trial; anyone else, and whoever has it
# installed already, into an empty folder. What a machine has no tool for is left out, and said.
set -eu
cd "$(dirname "$0")/.."
build=$(realpath "${1:-build}")
work=$(mktemp -d)
server=
root=
installed=

say() { printf '%s\n' "$*"; }
fail() { say "FAIL: $*"; exit 1; }
has() { command -v "$1" >/dev/null || { say "  (without $1)"; false; }; }
leave() {
  [ -z "$server" ] || kill "$server" 2>/dev/null || true
  [ -z "$installed" ] || remove >/dev/null 2>&1 || true
  rm -rf "$work"
}
trap leave EXIT

install_package() {
  if [ -n "$root" ]; then
    mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates"
    touch "$root/var/lib/dpkg/status"
    $as_owner dpkg --root="$root" --log=/dev/null --force-depends --force-not-root -i "$package" \
      >"$work/log" 2>&1 || { cat "$work/log"; fail "the package can't be unpacked"; }
    # What the triggers of other packages do where those are installed.
    update-mime-database "$root/usr/share/mime" >/dev/null 2>&1 || true
    update-desktop-database "$root/usr/share/applications" >/dev/null 2>&1 || true
  else
    dpkg -i "$package" >"$work/log" 2>&1 || {
      cat "$work/log"
      dpkg --purge pastimo >/dev/null 2>&1 || true
      fail "the package can't be installed"
    }
  fi
  installed=yes
}

remove() {
  if [ -n "$root" ]; then
    $as_owner dpkg --root="$root" --log=/dev/null --force-not-root --purge pastimo 2>&1
  else
    dpkg --purge pastimo
  fi
  installed=
}

# Plays a script of the program at $1, which must find the data beside itself.
play_from() {
  rm -rf "$work/played"
  printf '%s\n' 'click cmdQuindle' 'click cmdPlay' 'get lblCardCount text' quit |
    "$1/bin/pastimo-script" --home "$work/played" | grep -q 'lblCardCount.text = "Cards: 30"' ||
    fail "a script isn't played by $1/bin/pastimo-script"
  cmp -s "$1/share/pastimo/Readme.txt" "$work/played/Readme.txt" || fail "the data isn't taken from $1"
}

say "== cmake --install into a folder of its own"
DESTDIR=$work/staged cmake --install "$build" --prefix /opt/pastimo >/dev/null
printf 'moved\r\n' >>"$work/staged/opt/pastimo/share/pastimo/Readme.txt"
play_from "$work/staged/opt/pastimo"

say "== The package"
(cd "$work" && cpack --config "$build/CPackConfig.cmake" -B "$work" >"$work/log" 2>&1) ||
  { cat "$work/log"; fail "cpack"; }
package=$(ls "$work"/pastimo_*.deb)
dpkg-deb -f "$package" Package Version Depends Recommends Installed-Size
as_owner=
if [ "$(id -u)" != 0 ] || dpkg-query -W pastimo >/dev/null 2>&1; then
  root=$work/root
  [ "$(id -u)" = 0 ] || as_owner=fakeroot
fi
install_package
usr=$root/usr
# An entry whose program isn't in the path is none to the desktop.
export PATH="$usr/bin:$PATH"
export XDG_DATA_DIRS="$usr/share:/usr/share" XDG_DATA_HOME="$work/data" XDG_CONFIG_HOME="$work/config"

say "== Both programs"
"$usr/bin/pastimo" --version | grep -q '^pastimo [0-9]' || fail "pastimo --version"
"$usr/bin/pastimo" --help | grep -q '^Usage:' || fail "pastimo --help"
"$usr/bin/pastimo-script" --version | grep -q '^pastimo-script [0-9]' || fail "pastimo-script --version"
"$usr/bin/pastimo-script" --help | grep -q '^Usage:' || fail "pastimo-script --help"
play_from "$usr"

say "== What the desktop is told"
if has desktop-file-validate; then desktop-file-validate "$usr/share/applications/pastimo.desktop"; fi
if has appstreamcli; then
  appstreamcli validate --no-net "$usr/share/metainfo/pastimo.metainfo.xml" >"$work/log" ||
    { cat "$work/log"; fail "the metainfo isn't valid"; }
fi
if has man; then
  for page in pastimo pastimo-script; do
    MANWIDTH=80 man -l --warnings "$usr/share/man/man6/$page.6" >/dev/null 2>"$work/log"
    [ ! -s "$work/log" ] || { cat "$work/log"; fail "warnings about the page of $page"; }
  done
fi
for size in 16 22 24 32 48 64 128 256 512; do
  [ -f "$usr/share/icons/hicolor/${size}x$size/apps/pastimo.png" ] || fail "no icon of $size pixels"
done
game="$work/A saved game.qdl"
printf '[Card Goal]\r\n11\r\n' >"$game"
if has gio && has update-mime-database && has update-desktop-database; then
  gio info -a standard::content-type "$game" | grep -q 'application/x-pastimo-quindle' ||
    fail "a saved game isn't known by its name"
  gio mime application/x-pastimo-quindle | grep -q pastimo.desktop ||
    fail "no file manager would open a saved game with the program"
fi

say "== The desktop program"
if has Xvfb && has xdotool && has gio; then
  Xvfb -displayfd 3 -screen 0 1024x768x24 3>"$work/display" 2>/dev/null &
  server=$!
  for _ in 1 2 3 4 5 6 7 8 9 10; do [ -s "$work/display" ] || sleep 0.3; done
  DISPLAY=:$(cat "$work/display")
  export DISPLAY QT_QPA_PLATFORM=xcb PASTIMO_HOME="$work/home"
  # As a file manager starts it, with a file.
  gio launch "$usr/share/applications/pastimo.desktop" "$game" >/dev/null 2>&1 &
  window=$(timeout 20 xdotool search --sync --onlyvisible --class '^pastimo$') ||
    fail "no window is shown"
  program=$(xdotool getwindowpid "${window%%
*}")
  tr '\0' '\n' <"/proc/$program/cmdline" | grep -qxF "$game" || fail "the file isn't handed over"
  kill "$program"
  [ -f "$work/home/Corvane.mid" ] || fail "the data isn't put into the program's directory"
fi

say "== Removed"
dpkg-deb --fsys-tarfile "$package" | tar -tf - | sed -n 's|^\./\(.*[^/]\)$|\1|p' >"$work/files"
remove >/dev/null
while read -r file; do
  [ ! -e "$root/$file" ] || fail "left behind: $root/$file"
done <"$work/files"
[ ! -e "$usr/share/pastimo" ] || fail "left behind: $usr/share/pastimo"
[ -n "$root" ] || ! grep -qs pastimo "$usr/share/mime/globs" ||
  fail "the type of saved games is still known"
say "All is well: $(wc -l <"$work/files") files installed, tried and removed."
