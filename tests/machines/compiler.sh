#!/usr/bin/env bash
# Prints the compilers' name of a machine. Fails if the machine is not known.
case "${1:-}" in
  arm64) echo aarch64-linux-gnu ;;
  armhf) echo arm-linux-gnueabihf ;;
  i386) echo i686-linux-gnu ;;
  riscv64) echo riscv64-linux-gnu ;;
  s390x) echo s390x-linux-gnu ;;
  musl) echo x86_64-linux-musl ;;
  windows) echo x86_64-w64-mingw32 ;;
  *) exit 1 ;;
esac
