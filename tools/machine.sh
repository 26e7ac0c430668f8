# What ./play and ./check share: installing what is missing, and building. Sourced by both.

# Debian packages by what they are for. A machine that can't install builds what it has.
build_packages="g++ cmake ninja-build"
desktop_packages="qt6-base-dev qt6-svg-dev libsdl2-mixer-dev timgm6mb-soundfont xdg-utils
  fonts-dejavu-core"
display_packages="xvfb xauth"
test_packages="python3 xdotool x11-utils imagemagick openbox"

say() { printf '%s\n' "$*"; }

missing_of() {
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || printf '%s ' "$package"
  done
}

as_root() {
  if [ "$(id -u)" = 0 ]; then
    "$@"
  elif command -v sudo >/dev/null && sudo -n true 2>/dev/null; then
    sudo "$@"
  else
    return 1
  fi
}

# Installs those of the packages that are missing. Never fails: the build uses what is there.
install_packages() {
  missing=$(missing_of "$@")
  [ -n "$missing" ] || return 0
  say "Installing with apt-get: $missing"
  if as_root true && as_root apt-get update -qq &&
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
      $missing >/dev/null; then
    return 0
  fi
  say "Could not install them here; going on with what this machine has."
}

generator() {
  if command -v ninja >/dev/null; then say Ninja; else say "Unix Makefiles"; fi
}

# build_in DIRECTORY [CMAKE-OPTION...]: configures if need be, and builds what has changed.
build_in() {
  directory=$1
  shift
  cache=
  command -v ccache >/dev/null && cache=-DCMAKE_CXX_COMPILER_LAUNCHER=ccache
  log=$(mktemp)
  if ! cmake -S . -B "$directory" -G "$(generator)" $cache "$@" >"$log" 2>&1; then
    cat "$log"
    rm -f "$log"
    return 1
  fi
  grep -o 'No Qt.*' "$log" || true
  rm -f "$log"
  cmake --build "$directory" --parallel "$(nproc)"
}

# test_if_changed DIRECTORY: runs its tests, unless they have passed since programs and scripts were
# last changed.
test_if_changed() {
  passed=$1/passed
  if [ -e "$passed" ] && [ -z "$(find "$1" -type f -perm -u+x -newer "$passed" -print -quit)" ] &&
    [ -z "$(find tests assets -type f -newer "$passed" -print -quit)" ]; then
    say "Nothing has changed since these tests last passed."
    return 0
  fi
  rm -f "$passed"
  ctest --test-dir "$1" --output-on-failure --parallel "$(nproc)" || return 1
  touch "$passed"
}
