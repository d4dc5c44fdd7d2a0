#!/usr/bin/env bash
# The Debian package: its words, what it depends on, and the program run from where it was unpacked.
set -eu
. "$(dirname "$0")/_installed.sh"

# Packed quickly: programs that watch themselves are large.
cpack --config "$BUILD_DIR/CPackConfig.cmake" -G DEB -D CPACK_DEBIAN_COMPRESSION_TYPE=gzip -B "$OUT_DIR/made" \
    >"$OUT_DIR/cpack.log" 2>&1 ||
    fail "no package: $(cat "$OUT_DIR/cpack.log")"
package=$(echo "$OUT_DIR"/made/mirtane_4.00-*.deb)
rm -r "$OUT_DIR/made/_CPack_Packages"

# told FIELD TEXT: the package has that text in that field.
told() { dpkg-deb -f "$package" "$1" | grep -qE -- "$2" || fail "$1: $(dpkg-deb -f "$package" "$1")"; }
told Package '^mirtane$'
told Architecture "^$(dpkg --print-architecture)\$"
told Section '^graphics$'
told Maintainer '^[^<]+ <[^@ ]+@[^ ]+>$'
told Description '^program for drawing plans'
for library in libc6 libstdc++6 libqt6core6 libqt6gui6 libqt6widgets6 libqt6printsupport6 libqt6svg6; do
    told Depends "(^|, )${library//+/\\+} \(>= [0-9]"
done

dpkg-deb -x "$package" "$OUT_DIR/root"
has_all_files "$OUT_DIR/root/usr" .gz
for packed in share/man/man1/mirtane.1 share/doc/mirtane/changelog.Debian; do
    gzip -t "$OUT_DIR/root/usr/$packed.gz" || fail "$packed is not packed"
done
readelf -S "$OUT_DIR/root/usr/bin/mirtane" | grep -q '\.symtab' && fail "the program is not stripped"
[ "$(cd "$OUT_DIR/root" && find . -maxdepth 2 | sort | tr '\n' ' ')" = ". ./usr ./usr/bin ./usr/share " ] ||
    fail "the package puts something elsewhere"

# Nobody who finds a hole in them finds the way to it.
for program in mirtane mirtane-play mirtane-convert; do
    told=$(readelf -hdlW "$OUT_DIR/root/usr/bin/$program")
    for mark in 'Type: *DYN' BIND_NOW GNU_RELRO; do
        grep -qE "$mark" <<<"$told" || fail "$program: no $mark"
    done
    # The sanitizers watch for the rest by themselves; of that hardened.sh asks.
    symbols=$(nm -D "$OUT_DIR/root/usr/bin/$program")
    grep -qE '__asan_init|__[a-z_]+_chk' <<<"$symbols" || fail "$program: nothing is checked"
done

# What Debian itself would say; of a build that watches itself it says more, which is no error.
if command -v lintian >/dev/null; then
    lintian --fail-on error --allow-root "$package" >"$OUT_DIR/lintian.log" 2>&1 ||
        fail "lintian: $(cat "$OUT_DIR/lintian.log")"
fi

runs_from "$OUT_DIR/root/usr"
