# What the commands ./run, ./test and ./bench share; sourced by them in the project's folder.
# shellcheck shell=bash

# Prints the comment at the top of the command as its help.
show_help() {
  sed -n '2,/^[^#]/{s/^# \{0,1\}//p;}' "$1"
}

# Ends the command with a message and the status of a wrong use.
refuse() {
  echo "$1" >&2
  echo "Try: $2 --help" >&2
  exit 2
}

# Runs a command with its output in a log, which is shown only when it fails. On a terminal one line tells how
# far it is.
#   quietly "Building" build/run.log COMMAND [ARGUMENT...]
quietly() {
  local title=$1 log=$2 ticker='' status=0
  shift 2
  : >"$log"
  if [ -t 2 ]; then
    tell_progress "$title" "$log" &
    ticker=$!
  fi
  "$@" >"$log" 2>&1 </dev/null || status=$?
  if [ -n "$ticker" ]; then
    kill "$ticker" 2>/dev/null
    wait "$ticker" 2>/dev/null || true
    printf '\r\033[K' >&2
  fi
  [ "$status" -eq 0 ] && return
  tail -n 60 "$log" >&2
  echo "$title failed; the whole output is in $log" >&2
  exit "$status"
}

tell_progress() {
  local start=$SECONDS step
  while kill -0 "$$" 2>/dev/null; do
    step=$(tail -c 4096 "$2" | grep -o '^\[[0-9]*/[0-9]*\]' | tail -n 1) || step=
    printf '\r\033[K%s %s %s s' "$1" "$step" "$((SECONDS - start))" >&2
    sleep 0.5
  done
}

# Waits until no other command of this checkout is at work, and keeps others out until the command ends or calls
# let_others_in.
keep_others_out() {
  mkdir -p build
  exec {lock}>build/.lock
  flock --nonblock "$lock" && return
  echo "Another command is at work in this folder; waiting for it." >&2
  flock "$lock"
}

let_others_in() {
  exec {lock}>&-
}

# Installs the Debian packages among the arguments that are not there yet, or says which ones to ask for.
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
      echo "Packages are missing; ask for: apt-get install ${missing[*]}" >&2
      exit 1
    fi
    echo "Packages are missing; sudo may ask for your password to install them: ${missing[*]}" >&2
    sudo true || exit 1
    as_root=(sudo)
  fi
  echo "Installing ${missing[*]}" >&2
  mkdir -p build
  quietly "Reading the list of packages" build/packages.log "${as_root[@]}" apt-get update -q
  quietly "Installing" build/packages.log "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# Fetches the npm packages that a package.json names into a folder, unless they are there.
#   fetch_from_npm "Fetching the browser's driver" PACKAGE_JSON FOLDER
fetch_from_npm() {
  cmp -s "$2" "$3/installed.json" && return
  mkdir -p "$3"
  cp "$2" "$3/package.json"
  quietly "$1" "$3/npm.log" npm install --prefix "$3" --no-audit --no-fund --no-package-lock
  cp "$2" "$3/installed.json"
}

# Configures and builds a preset, in a build folder that belongs to this folder and no other.
#   build_preset PRESET [CMAKE_OPTION...]
build_preset() {
  local preset=$1 folder=build/$1
  shift
  remove_stranger "$folder"
  quietly "Configuring $preset" "build/$preset.log" cmake --preset "$preset" "$@"
  quietly "Building $preset" "build/$preset.log" cmake --build --preset "$preset"
}

# A build folder that was copied or moved with its checkout still builds, and runs, what lies in the old place.
#   remove_stranger FOLDER [SOURCES]
remove_stranger() {
  local cache=$1/CMakeCache.txt home
  [ -f "$cache" ] || return 0
  home=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$cache")
  if [ "$home" = "${2:-$PWD}" ] && [ "$(sed -n 's/^CMAKE_CACHEFILE_DIR:INTERNAL=//p' "$cache")" = "$PWD/$1" ]; then
    return
  fi
  echo "$1 was made for another folder ($home); making it anew." >&2
  rm -rf "$1"
}
