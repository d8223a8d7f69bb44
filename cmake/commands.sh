# Functions that the commands in the project's folder share.
# shellcheck shell=bash

# Prints the comment at the top of the command as its help.
show_help() {
  sed -n '2,/^[^#]/{s/^# \{0,1\}//p;}' "$1"
}

# Prints a message about wrong usage and exits with status 2.
refuse() {
  echo "$1" >&2
  echo "Try: $2 --help" >&2
  exit 2
}

# Runs a command and writes its output to a log. If it fails, prints the last lines of the log that match a pattern
# and exits. On a terminal, shows the progress in one line.
#   quietly "Building" build/run.log COMMAND [ARGUMENT...]
#   quietly_matching PATTERN "Building" build/run.log COMMAND [ARGUMENT...]
quietly() {
  quietly_matching '' "$@"
}

quietly_matching() {
  local pattern=$1 title=$2 log=$3 status=0
  shift 3
  need_writable "$log"
  : >"$log"
  if [ -t 2 ]; then
    show_progress "$title" "$log" &
    ticker=$!
    trap 'stop_progress; exit 130' INT
  fi
  "$@" >"$log" 2>&1 </dev/null || status=$?
  stop_progress
  trap - INT
  [ "$status" -eq 0 ] && return
  grep -- "$pattern" "$log" | tail -n 60 >&2
  echo "$title failed; the whole output is in $log" >&2
  exit "$status"
}

ticker=
stop_progress() {
  [ -n "$ticker" ] || return 0
  kill "$ticker" 2>/dev/null
  wait "$ticker" 2>/dev/null || true
  ticker=
  printf '\r\033[K' >&2
}

show_progress() {
  local start=$SECONDS step
  while kill -0 "$$" 2>/dev/null; do
    step=$(tail -c 4096 "$2" | grep -o '^\[[0-9]*/[0-9]*\]' | tail -n 1) || step=
    printf '\r\033[K%s %s %s s' "$1" "$step" "$((SECONDS - start))" >&2
    sleep 0.5
  done
}

# Installs the packages that the command needs, and takes the lock of this checkout.
#   begin PACKAGE...
begin() {
  mkdir -p build 2>/dev/null || true
  need_writable build/.lock
  need_cmake
  need_packages "$@"
  take_lock
}

# Exits with an explanation if the file cannot be written.
need_writable() {
  { : >>"$1"; } 2>/dev/null && return
  echo "Cannot write $PWD/$1. If another user has built here, remove the folder build; otherwise copy the project to a" \
    "folder that you can write." >&2
  exit 1
}

# Exits if CMake is too old, whether it is installed or about to be installed.
need_cmake() {
  local needed version
  needed=$(sed -n 's/^cmake_minimum_required(VERSION \(.*\))$/\1/p' CMakeLists.txt)
  version=$({ cmake --version || apt-cache policy cmake; } 2>/dev/null | sed -nE 's/^(cmake version|  Candidate:) ([0-9.]+).*/\2/p')
  [ "$(printf '%s\n' "$needed" "${version:-$needed}" | sort -V | head -n 1)" = "$needed" ] && return
  echo "ZKStrings needs CMake $needed or newer; this is $version" >&2
  exit 1
}

# Waits until no other command is running in this checkout. Keeps the lock until the command ends or calls
# release_lock.
take_lock() {
  exec {lock}>build/.lock
  flock --nonblock "$lock" && return
  echo "Another command is running in this folder; waiting for it to end." >&2
  flock "$lock"
}

release_lock() {
  exec {lock}>&-
}

# Installs the given Debian packages that are missing. If it cannot, prints the command that installs them and exits.
need_packages() {
  command -v dpkg-query >/dev/null || return 0
  local package missing=()
  for package in "$@"; do
    dpkg-query --show --showformat='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed ||
      missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return

  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null || { ! [ -t 0 ] && ! sudo -n true 2>/dev/null; }; then
      echo "Packages are missing; install them with: apt-get install ${missing[*]}" >&2
      exit 1
    fi
    echo "Packages are missing; sudo may ask for your password to install them: ${missing[*]}" >&2
    sudo true || exit 1
    as_root=(sudo)
  fi
  local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o Acquire::Retries=0
    -o Acquire::http::Timeout=10 -o Acquire::https::Timeout=10 -o DPkg::Lock::Timeout=120)
  quietly_matching '^E: [^F]' "Reading the list of packages" build/packages.log "${apt[@]}" update
  need_cmake
  echo "Installing ${missing[*]}" >&2
  quietly_matching '^E: [^F]' "Installing packages" build/packages.log "${apt[@]}" install -y --no-install-recommends "${missing[@]}"
}

# Installs the npm packages of a package.json into a folder, unless they are installed there.
#   fetch_from_npm "Fetching the browser's driver" PACKAGE_JSON FOLDER
fetch_from_npm() {
  cmp -s "$2" "$3/installed.json" && return
  mkdir -p "$3"
  cp "$2" "$3/package.json"
  quietly "$1" "$3/npm.log" npm install --prefix "$3" --no-audit --no-fund --no-package-lock
  cp "$2" "$3/installed.json"
}

# Configures and builds a preset in build/PRESET.
#   build_preset PRESET [CMAKE_OPTION...]
build_preset() {
  local preset=$1 folder=build/$1
  shift
  remove_moved_build "$folder"
  quietly "Configuring $preset" "build/$preset.log" cmake --preset "$preset" "$@"
  quietly "Building $preset" "build/$preset.log" cmake --build --preset "$preset"
}

# Removes a build folder that was configured for another place. If a checkout is copied or moved, its build folders
# still use the files in the old place.
#   remove_moved_build FOLDER [SOURCES]
remove_moved_build() {
  local cache=$1/CMakeCache.txt home
  [ -f "$cache" ] || return 0
  home=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$cache")
  if [ "$home" = "${2:-$PWD}" ] && [ "$(sed -n 's/^CMAKE_CACHEFILE_DIR:INTERNAL=//p' "$cache")" = "$PWD/$1" ]; then
    return
  fi
  echo "$1 was configured for another folder ($home); building it again." >&2
  rm -rf "$1"
}
