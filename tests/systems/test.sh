#!/usr/bin/env bash
# Runs the README's commands in a bare system of another release, as root and then as an ordinary user. Each user starts
# with a new clone of the committed files. Then builds a program with the Debian packages that were made there. The bare
# system is created once, in build/systems/RELEASE, and each run uses a copy. Needs root, debootstrap and the network.
#   test.sh RELEASE
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
release=$1
bare=$PWD/build/systems/$release root=$PWD/build/systems/$release.root log=$PWD/build/systems/$release.log

fail() { echo "$release: $*" >&2; exit 1; }

make_bare_system() {
  local mirror script=/usr/share/debootstrap/scripts components=main
  mirror=$(tests/systems/mirror.sh "$release")
  case $mirror in */ubuntu) script+=/gutsy components="main universe" ;; *) script+=/sid ;; esac
  rm -rf "$bare.new"
  debootstrap --variant=minbase "$release" "$bare.new" "$mirror" "$script" >"$log" ||
    { tail -n 5 "$log" >&2; fail "debootstrap cannot make it from $mirror; set ZK_MIRROR to an archive that has it"; }
  echo "deb $mirror $release $components" >"$bare.new/etc/apt/sources.list"
  cp /etc/hosts "$bare.new/etc"
  # If this machine accepts an outdated archive, so does the bare system.
  apt-config dump Acquire::Check-Valid-Until >"$bare.new/etc/apt/apt.conf.d/90valid"
  mv "$bare.new" "$bare"
}

copy_bare_system() {
  rm -rf --one-file-system "$root"
  cp -a "$bare" "$root"
}

# Runs a command in the copy, with the file systems that a container mounts.
#   inside USER FOLDER COMMAND...
inside() {
  unshare --mount --pid --fork --kill-child bash -ec '
    root=$1; user=$2; folder=$3; shift 3
    mount -t proc proc "$root/proc"
    mount -t devpts -o newinstance,ptmxmode=0666 devpts "$root/dev/pts"
    mount -t tmpfs tmpfs "$root/dev/shm"
    exec chroot --userspec="$user" "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME="/home/of-$user" LANG=C.UTF-8 \
      DEBIAN_FRONTEND=noninteractive DEBFULLNAME=Tester DEBEMAIL=tester@example.org sh -c "cd $folder && $*"' \
    inside "$root" "$@" </dev/null
}

# Runs a command as `inside` does, and prints how long it took. Fails on warnings, too.
step() {
  local start=$SECONDS
  inside "$@" >"$log" 2>&1 || { tail -n 40 "$log" >&2; fail "\"${*:3}\" failed as $1; the system is in $root"; }
  if grep -rnsE 'warning: |CMake.* Warning' "$log" "$root$2"/build/*.log >&2; then fail "\"${*:3}\" warns as $1"; fi
  printf '%-10s %-8s %-60s %4d s\n' "$release" "$1" "${*:3}" "$((SECONDS - start))"
}

mkdir -p build/systems
[ -d "$bare" ] || make_bare_system
copy_bare_system
chroot "$root" useradd tester
for user in root tester; do
  git clone --quiet --no-hardlinks . "$root/home/of-$user/zkstrings"
  chroot "$root" chown -R "$user:" "/home/of-$user"
done
for command in ./run "./run page" ./test ./package; do
  step root /home/of-root/zkstrings "$command"
done
for command in ./run ./test; do
  step tester /home/of-tester/zkstrings "$command"
done

rm -rf "$bare.packages"
mv "$root/home/of-root/zkstrings/build/package" "$bare.packages"
copy_bare_system
mv "$bare.packages" "$root/packages"
cp -r tests/package "$root/consumer"
step root / "apt-get -q update && apt-get -q -y --no-install-recommends install /packages/*.deb g++ cmake make pkg-config"
step root / "cmake -S consumer -B build && cmake --build build && build/consumer | grep -x 'Über uns, 246 countries'"
step root / "g++ -std=c++20 consumer/consumer.cpp -o with-pkg-config \$(pkg-config --cflags --libs zkstrings) && ./with-pkg-config"
step root / "zkstrings --version"
rm -rf --one-file-system "$root"
