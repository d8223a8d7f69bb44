#!/usr/bin/env bash
# Prints the address of a package archive that has a release of Debian or Ubuntu: $ZK_MIRROR, or the archive that this
# machine's own packages come from. For the other distribution this is the archive next to it, since many hosts serve both.
#   mirror.sh RELEASE
set -euo pipefail
# shellcheck source=/dev/null
own=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
address=${ZK_MIRROR:-$(apt-get indextargets --format '$(RELEASE) $(SITE)' 'Created-By: Packages' |
  awk -v own="$own" '$1 == own {print $2; exit}')}
[ -n "$address" ] || { echo "apt has no archive of this machine's release \"$own\"; set ZK_MIRROR" >&2; exit 1; }
[ -z "${ZK_MIRROR:-}" ] || { echo "$address"; exit; }
case $1 in
  noble) echo "${address%/*}/ubuntu" ;;
  *) echo "${address%/*}/debian" ;;
esac
