#!/usr/bin/env bash
# How what is sent out is compiled: it lies at another place in each run, and a copy into what is too small ends it.
# Which calls of the library are checked so is the compiler's choice, so a copy of our own is compiled by the same words.
set -eu
. "$(dirname "$0")/../window/_window.sh"

source=$(cd "$(dirname "$0")/../.." && pwd)
cmake --preset release -S "$source" -B "$OUT_DIR/sent_out" -DCMAKE_EXPORT_COMPILE_COMMANDS=ON >"$OUT_DIR/cmake.log" 2>&1 ||
    fail "$(cat "$OUT_DIR/cmake.log")"

# The commands of our own files; what the toolkit's tools have made is not read from outside.
grep '"command"' "$OUT_DIR/sent_out/compile_commands.json" | grep -v _autogen >"$OUT_DIR/commands"
[ "$(wc -l <"$OUT_DIR/commands")" -gt 100 ] || fail "few files are compiled: $(wc -l <"$OUT_DIR/commands")"
for word in -fPIE -fstack-protector-strong -D_FORTIFY_SOURCE=2 '-O[123]'; do
    ! grep -vE -- "$word" "$OUT_DIR/commands" || fail "compiled without $word"
done

cat >"$OUT_DIR/copy.cpp" <<'END'
#include <cstring>
void take(const char*);
void copy(const char* from, std::size_t size)
{
    char small[8];
    std::memcpy(small, from, size);
    take(small);
}
END
words=$(grep -m1 'programs/mirtane\.cpp' "$OUT_DIR/commands" | grep -oE -- ' -(O[0-9]|f[a-zA-Z=-]+|D_FORTIFY_SOURCE=[0-9])' | tr -d '\n')
# shellcheck disable=SC2086 # they are several
c++ $words -c "$OUT_DIR/copy.cpp" -o "$OUT_DIR/copy.o"
for check in __memcpy_chk __stack_chk_fail; do
    nm -u "$OUT_DIR/copy.o" | grep -q "$check" || fail "$words: no $check"
done
