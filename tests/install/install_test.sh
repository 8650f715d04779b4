# install_test.sh BUILD COMPILER GENERATOR: installs a build, moves it, and uses it as a stranger would, by pkg-config and
# by CMake.
set -euo pipefail
build=$1 compiler=$2 generator=$3
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
scratch=$build/tests/install/scratch
prefix=$scratch/prefix
expected='INVITE sip:bob@example.com'

fail() { printf '%s\n' "$*"; exit 1; }

rm -rf "$scratch"
mkdir -p "$scratch"
cmake --install "$build" --prefix "$scratch/first" > /dev/null
mv "$scratch/first" "$prefix"

if grep -rl '^#pragma once' "$prefix/include"; then fail 'Headers that are not for C were installed'; fi

export PKG_CONFIG_PATH
PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name sipsn.pc)")
"$compiler" -std=c11 -Wall -Wextra -pedantic -Werror "$here/consumer/consumer.c" -o "$scratch/by_pkg_config" \
    $(pkg-config --cflags --libs sipsn) -Wl,-rpath,"$(pkg-config --variable=libdir sipsn)"
[ "$("$scratch/by_pkg_config")" = "$expected" ] || fail 'A program built by pkg-config does not work'

cmake -G "$generator" -S "$here/consumer" -B "$scratch/build" -D CMAKE_C_COMPILER="$compiler" -D CMAKE_PREFIX_PATH="$prefix" > /dev/null
cmake --build "$scratch/build" > /dev/null
[ "$("$scratch/build/by_cmake")" = "$expected" ] || fail 'A program built by CMake does not work'

"$prefix/bin/sipsn" --version
rm -rf "$scratch"
