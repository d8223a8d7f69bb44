#!/usr/bin/env bash
# Unpacks Debian's libraries for another machine into a folder. Installs nothing on this machine.
#   make_root.sh ARCH FOLDER PACKAGE...
# On Debian, they are of this machine's release. On Ubuntu, and for riscv64 on Debian 12, they are of Debian 13. A source
# package, as in src:icu, is unpacked to usr/src without Debian's changes.
set -euo pipefail
arch=$1 root=$(realpath -m "$2")
shift 2

system=$(. /etc/os-release && echo "$ID:$VERSION_CODENAME")
release=${system#*:}
case $system:$arch in ubuntu:* | debian:bookworm:riscv64) release=trixie ;; esac
wanted="$release $*"
[ "$(cat "$root/.packages" 2>/dev/null)" != "$wanted" ] || exit 0
mirror=$("$(dirname "${BASH_SOURCE[0]}")/../systems/mirror.sh" "$release")

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
archive="[signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $mirror $release main"
echo "deb $archive" >"$work/sources.list"
[ ${#sources[@]} -eq 0 ] || echo "deb-src $archive" >>"$work/sources.list"
# A separate apt configuration, in which no package is installed.
options=(-q -o "APT::Architecture=$arch" -o "APT::Architectures::=$arch" -o APT::Install-Recommends=false
  -o "Dir::State::Lists=$work/lists" -o "Dir::State::status=$work/status" -o "Dir::Cache=$work"
  -o "Dir::Cache::archives=$work/archives" -o "Dir::Etc::SourceList=$work/sources.list" -o Dir::Etc::SourceParts=-
  -o Acquire::Languages=none -o Debug::NoLocking=true)
[ "$(id -u)" -ne 0 ] || options+=(-o APT::Sandbox::User=root)
apt-get "${options[@]}" --error-on=any update ||
  { echo "apt cannot read $release from $mirror; set ZK_MIRROR to an archive that has it" >&2; exit 1; }
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
