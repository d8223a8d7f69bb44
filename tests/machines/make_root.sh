#!/usr/bin/env bash
# Unpacks Debian's libraries for another machine into a folder. Installs nothing on this machine.
#   make_root.sh ARCH FOLDER PACKAGE...
# They are of this machine's release if its archive has ARCH, and otherwise of Debian's trixie. A source package, as in
# src:icu, is unpacked to usr/src without Debian's changes.
set -euo pipefail
arch=$1 root=$(realpath -m "$2")
shift 2

wanted=$(sort -u <<<"$*")
[ "$(cat "$root/.packages" 2>/dev/null)" != "$wanted" ] || exit 0

own=$(. /etc/os-release && echo "$ID:$VERSION_CODENAME")
release=${own#*:}
case $own:$arch in
  ubuntu:*:amd64) ;;
  ubuntu:* | debian:bookworm:riscv64) release=trixie ;;
esac
mirror=$("$(dirname "${BASH_SOURCE[0]}")/../systems/mirror.sh" "$release")
case $mirror in
  */ubuntu) keyring=ubuntu-archive-keyring.gpg components="main universe" ;;
  *) keyring=debian-archive-keyring.gpg components=main ;;
esac

rm -rf "$root"
work=$root/.apt
mkdir -p "$work"/{lists,archives}/partial
touch "$work/status"
binaries=() sources=()
for package in "$@"; do
  case $package in
    src:*) sources+=("${package#src:}") ;;
    *) binaries+=("$package") ;;
  esac
done
archive="[signed-by=/usr/share/keyrings/$keyring] $mirror $release $components"
echo "deb $archive" >"$work/sources.list"
[ ${#sources[@]} -eq 0 ] || echo "deb-src $archive" >>"$work/sources.list"
# A separate apt configuration, in which no package is installed.
options=(-q -o "APT::Architecture=$arch" -o "APT::Architectures::=$arch" -o APT::Install-Recommends=false
  -o "Dir::State::Lists=$work/lists" -o "Dir::State::status=$work/status" -o "Dir::Cache=$work"
  -o "Dir::Cache::archives=$work/archives" -o "Dir::Etc::SourceList=$work/sources.list" -o Dir::Etc::SourceParts=-
  -o Acquire::Languages=none -o Debug::NoLocking=true)
[ "$(id -u)" -ne 0 ] || options+=(-o APT::Sandbox::User=root)
apt-get "${options[@]}" update ||
  { echo "$mirror does not have $release for $arch; set ZK_MIRROR to an archive that does"; exit 1; }
apt-get "${options[@]}" --yes --download-only install "${binaries[@]}"
for package in "$work"/archives/*.deb; do
  case $package in
    # The compiler has its own headers of the C library, which may be of another version.
    */libc6-dev_* | */linux-libc-dev_*) dpkg --fsys-tarfile "$package" | tar -x -C "$root" --exclude=./usr/include ;;
    *) dpkg -x "$package" "$root" ;;
  esac
done
for source in "${sources[@]}"; do
  (cd "$work" && apt-get "${options[@]}" --download-only --tar-only source "$source")
  mkdir -p "$root/usr/src/$source"
  tar -x -C "$root/usr/src/$source" --strip-components=1 -f "$work/${source}_"*.orig.tar.*z
done
[ -e "$root/lib" ] || ln -s usr/lib "$root/lib"
rm -rf "$work"
echo "$wanted" >"$root/.packages"
