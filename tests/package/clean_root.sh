#!/usr/bin/env bash
# Installs the Debian packages in a bare system of this machine's own release, made for it from this machine's own package
# sources, and there builds and runs the consumer: found by CMake and by pkg-config. Needs root and debootstrap.
#   clean_root.sh SOURCE_DIRECTORY PACKAGE...
set -euo pipefail
fail() { echo "$*" >&2; exit 1; }
source=$1
shift

[ "$(id -u)" -eq 0 ] || fail "The packages are tried in a clean root, which only root can make: run ./test --packages as root"
# shellcheck source=/dev/null
release=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
mirror=$(apt-get indextargets --format '$(RELEASE) $(SITE)' 'Created-By: Packages' | awk -v release="$release" '$1 == release {print $2; exit}')
[ -n "$mirror" ] || fail "The packages are tried in a clean root, for which apt knows no source of the release \"$release\""

root=$(mktemp -d)
trap 'rm -rf --one-file-system "$root"' EXIT
debootstrap --variant=minbase "$release" "$root" "$mirror" >"$root.log" ||
  { tail -n 5 "$root.log" >&2; fail "debootstrap cannot make a clean root of $release"; }
rm "$root.log"
for settings in sources.list sources.list.d apt.conf.d keyrings trusted.gpg.d; do
  if [ -e "/etc/apt/$settings" ]; then
    rm -rf "$root/etc/apt/$settings"
    cp -r "/etc/apt/$settings" "$root/etc/apt"
  fi
done

inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
quietly() { "$@" >"$root/log" 2>&1 || { tail -n 30 "$root/log" >&2; fail "In the clean root failed: $*"; }; }
mkdir "$root/packages"
cp "$@" "$root/packages"
cp -r "$source/tests/package" "$root/consumer"
quietly inside apt-get update
quietly inside sh -c 'apt-get install -y --no-install-recommends /packages/*.deb g++ cmake make pkg-config'
quietly inside cmake -S /consumer -B /build
quietly inside cmake --build /build
quietly inside sh -c 'g++ -std=c++20 /consumer/consumer.cpp -o /build/with-pkg-config $(pkg-config --cflags --libs zkstrings)'
for program in consumer with-pkg-config; do
  output=$(inside "/build/$program") || fail "$program ended with $?"
  [ "$output" = "Über uns, 246 countries" ] || fail "$program says: $output"
done
quietly inside zkstrings --version
echo "The packages serve programs in a clean root of $release."
