#!/usr/bin/env bash
# The program as cmake installs it into an empty root, run from there.
set -eu
. "$(dirname "$0")/_installed.sh"

DESTDIR=$OUT_DIR/root cmake --install "$BUILD_DIR" --prefix /usr >"$OUT_DIR/install.log"
prefix=$OUT_DIR/root/usr
has_all_files "$prefix"

# What a catalogue of programs reads.
appstreamcli validate --no-net "$prefix/share/metainfo/org.mirtane.Mirtane.metainfo.xml" >"$OUT_DIR/appstream.log" ||
    fail "the catalogue's entry: $(cat "$OUT_DIR/appstream.log")"
grep -q '<release version="4.00"' "$prefix/share/metainfo/org.mirtane.Mirtane.metainfo.xml" || fail "no release is told of"

# What a desktop reads.
desktop=$prefix/share/applications/mirtane.desktop
desktop-file-validate "$desktop" || fail "the desktop entry is wrong"
grep -qx 'Exec=mirtane %f' "$desktop" || fail "the desktop entry hands on no file"
xmllint --noout "$prefix/share/mime/packages/mirtane.xml" "$prefix"/share/metainfo/*.xml \
    "$prefix"/share/icons/hicolor/scalable/*/*.svg || fail "no XML"
update-mime-database "$prefix/share/mime" 2>"$OUT_DIR/mime.log"
for row in mtd:drawing mta:associate mth:hatch mtm:multiple-lines; do
    grep -q ":application/x-mirtane-${row#*:}:\*\.${row%:*}\$" "$prefix/share/mime/globs2" ||
        fail "no file type of .${row%:*}"
done
grep -q '^MimeType=application/x-mirtane-drawing;$' "$desktop" || fail "drawings are not the program's"

runs_from "$prefix"
