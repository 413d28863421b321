#!/bin/sh
# Installs the build tree into a temporary prefix, then builds and runs the
# consumer against it. Arguments: the cmake program, the build tree, this folder.
set -eu
cmake="$1"; build="$2"; here="$3"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$cmake" --install "$build" --prefix "$work/prefix" >/dev/null
"$cmake" -S "$here" -B "$work/build" -DCMAKE_PREFIX_PATH="$work/prefix" >/dev/null
"$cmake" --build "$work/build" >/dev/null
"$work/build/consumer" "$work/data"
