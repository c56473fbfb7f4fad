#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Kelmora as a citizen of the desktop: the desktop entry and the AppStream
# metadata pass their validators; a file manager that sniffs each of the nine
# kinds of audio file (with Kelmora's MIME type installed) finds a type the
# entry claims; and `cmake --install` puts every piece where the desktop looks.
#
# Usage: desktop_files_test.sh SOURCE_DIR BUILD_DIR FIXTURE_DIR
set -euo pipefail

src="$1"
build="$2"
fixtures="$3"
id=com.kelmora.Kelmora
entry="$src/resources/desktop/$id.desktop"
fail() { echo "FAIL: $*" >&2; exit 1; }

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

out="$(desktop-file-validate "$entry" 2>&1)" || fail "desktop-file-validate: $out"
if grep -qE "error|warning" <<< "$out"; then fail "desktop-file-validate: $out"; fi
echo "desktop entry valid"

appstreamcli validate --no-net "$src/resources/desktop/$id.metainfo.xml" > "$work/as.log" 2>&1 ||
  fail "appstreamcli: $(cat "$work/as.log")"
echo "AppStream metadata valid"

# The MIME database a file manager would use, with Kelmora's addition.
mkdir -p "$work/share/mime/packages"
cp /usr/share/mime/packages/*.xml "$work/share/mime/packages/"
cp "$src/resources/desktop/kelmora-mime.xml" "$work/share/mime/packages/kelmora.xml"
update-mime-database "$work/share/mime" > /dev/null 2>&1
claimed=";$(sed -n 's/^MimeType=//p' "$entry")"
for file in speech.mp3 speech_aac.m4a speech.m4r speech.aac speech.wav speech.aif speech.aiff \
            speech.caf speech.flac; do
  type="$(XDG_DATA_HOME="$work/share" XDG_DATA_DIRS="$work/share" \
    gio info -a standard::content-type "$fixtures/$file" | sed -n 's/.*content-type: //p')"
  case "$claimed" in *";$type;"*) echo "$file: $type claimed" ;;
    *) fail "$file is $type, which the entry does not claim ($claimed)" ;; esac
done

cmake --install "$build" --prefix "$work/usr" > "$work/install.log" || fail "cmake --install failed"
for path in bin/kelmora bin/kelmora-cli share/applications/$id.desktop \
            share/metainfo/$id.metainfo.xml share/mime/packages/kelmora.xml \
            share/icons/hicolor/scalable/apps/$id.svg share/icons/hicolor/48x48/apps/$id.png \
            share/icons/hicolor/256x256/apps/$id.png share/kelmora/help.html \
            share/doc/kelmora/copyright share/doc/kelmora/changelog.Debian.gz \
            share/man/man1/kelmora.1.gz share/man/man1/kelmora-cli.1.gz; do
  [ -s "$work/usr/$path" ] || fail "cmake --install left out $path"
done
for size in 48 256; do
  file "$work/usr/share/icons/hicolor/${size}x${size}/apps/$id.png" | grep -q "$size x $size" ||
    fail "the ${size} px icon is not ${size} px"
done
echo "cmake --install puts every piece in place"
