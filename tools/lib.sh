# shellcheck shell=bash
# What ./test, ./demo, ./dev and .ci/run share. It is sourced by a script that has said `set -euo pipefail`; it goes to
# the top folder of the tree, so that every path in the scripts is relative to it.

unset CDPATH
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
cd "$root" || exit 1

build_packages=(g++ cmake ninja-build pkg-config qt6-base-dev qt6-svg-dev libgl-dev libcanberra-dev libcurl4-openssl-dev
  libzip-dev)
# The offscreen platform and Xvfb draw text only when there is a font.
font_packages=(fontconfig fonts-dejavu-core fonts-liberation)
# shellcheck disable=SC2034 # used by the scripts that source this file
test_packages=("${build_packages[@]}" libgtest-dev libgmock-dev libbenchmark-dev dbus-daemon "${font_packages[@]}")

say() { printf '==> %s\n' "$*"; }

die() {
  printf 'error: %s\n' "$*" >&2
  exit 1
}

is_installed() {
  [[ $(dpkg-query -W -f='${db:Status-Abbrev}' "$1" 2>/dev/null) =~ ^.i ]]
}

# Installs those of the named Debian packages that are missing, or ends with what to do by hand.
need() {
  local package log missing=() rights=()
  if [[ -n ${VANTREL_SKIP_INSTALL:-} ]]; then return; fi
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  if ((${#missing[@]} == 0)); then return; fi

  command -v apt-get >/dev/null || die "there is no apt-get here to install the Debian packages: ${missing[*]}." \
    "Install what they hold in your system's way, then set VANTREL_SKIP_INSTALL=1."
  if ((EUID != 0)); then
    command -v sudo >/dev/null || die "packages are missing and only root can install them:" \
      "apt-get install --no-install-recommends ${missing[*]}"
    rights=(sudo)
    # Without a terminal nobody can type a password, so do not wait for one.
    [[ -t 0 ]] || rights+=(-n)
  fi
  local apt=("${rights[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=120)

  log=$(mktemp)
  say "fetching the lists of packages"
  "${apt[@]}" update </dev/null >"$log" 2>&1 || say "the lists could not be fetched; trying with those at hand"
  say "installing with apt-get, which can take some minutes: ${missing[*]}"
  if ! "${apt[@]}" install -y --no-install-recommends "${missing[@]}" </dev/null >>"$log" 2>&1; then
    tail -n 15 "$log" >&2
    rm -f "$log"
    die "apt-get could not install ${missing[*]}. Is there a network, and may you install packages?"
  fi
  rm -f "$log"
}

# Configures and builds build/<preset>.
build_preset() {
  local preset=$1 cache=build/$1/CMakeCache.txt
  if [[ -e build && ! -w build ]] || [[ -e build/$preset && ! -w build/$preset ]]; then
    die "build/ belongs to another user; remove it first."
  fi
  if [[ -f $cache ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$cache"; then
    say "build/$preset was made when this tree lay elsewhere; removing it"
    rm -rf "build/$preset"
  fi
  say "configuring preset $preset"
  cmake --preset "$preset"
  say "building preset $preset"
  # Building may run the test programs, to list their tests.
  QT_QPA_PLATFORM=offscreen cmake --build --preset "$preset" --parallel "$(nproc)"
}

# The C++ files of the tree, tracked or new but not ignored, each ended by a zero byte.
list_sources() {
  local path
  {
    if [[ -e .git ]] && command -v git >/dev/null; then
      git -c safe.directory="$root" ls-files -z --cached --others --exclude-standard -- '*.h' '*.cpp'
    else
      find . \( -path ./build -o -name '.?*' \) -prune -o -type f \( -name '*.h' -o -name '*.cpp' \) -print0
    fi
  } | while IFS= read -r -d '' path; do
    if [[ -f $path ]]; then printf '%s\0' "$path"; fi
  done
}
