#!/usr/bin/env bash
# Installs the Debian packages that building and testing zerbal need, when missing.
# Sourced by the other scripts; the machines run as root, otherwise sudo is used.
set -euo pipefail

# postgresql is for the tests of the server engine (scripts/pg_server.sh).
zerbal_packages=(cmake g++ make pkg-config libsqlite3-dev sqlite3 libgtest-dev libbenchmark-dev nlohmann-json3-dev
                 libpq-dev postgresql)

zerbal_install_deps() {
  zerbal_install_packages "${zerbal_packages[@]}"
}

# clang with the libFuzzer and sanitizer runtimes of its own version, for the
# fuzz targets.
zerbal_install_fuzz_deps() {
  zerbal_install_packages clang
  zerbal_install_packages "libclang-rt-$(clang -dumpversion | cut -d. -f1)-dev"
}

zerbal_install_packages() {
  local missing=()
  local p
  for p in "$@"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}" >&2
  local sudo=""
  [ "$(id -u)" -eq 0 ] || sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# Configures and builds into build/ (Release unless ZERBAL_BUILD_TYPE says otherwise).
zerbal_build() {
  local root
  root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
  cmake -S "$root" -B "$root/build" -DCMAKE_BUILD_TYPE="${ZERBAL_BUILD_TYPE:-Release}" "$@" >/dev/null
  cmake --build "$root/build" -j"$(nproc)"
}

# Configures and builds the fuzz targets into build-fuzz/ with clang; their
# CTest runs take ZERBAL_FUZZ_SECONDS (30) each.
zerbal_build_fuzz() {
  local root
  root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
  CC=clang CXX=clang++ cmake -S "$root" -B "$root/build-fuzz" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DZERBAL_BUILD_FUZZ=ON -DZERBAL_FUZZ_SECONDS="${ZERBAL_FUZZ_SECONDS:-30}" >/dev/null
  cmake --build "$root/build-fuzz" -j"$(nproc)"
}
