#!/usr/bin/env bash
# Compiles the locales that the fuzz targets choose from: locales.sh DIRECTORY
# Those of the second list tell of a codeset that no locale of the system has; their characters are those of ISO-8859-1.
set -euo pipefail
to=$1
maps=/usr/share/i18n/charmaps
[ -d "$maps" ] || { echo "locales: the sources of the system's locales are missing: install the package locales" >&2; exit 1; }
rm -rf "$to"
mkdir -p "$to"
compile() { # compile CHARMAP CODESET; warnings count as failures there, so the result is what is looked at
    localedef -c --quiet --no-archive -i POSIX -f "$1" "$to/xx_XX.$2" >/dev/null 2>&1 || true
    [ -e "$to/xx_XX.$2/LC_CTYPE" ] || { echo "locales: $2 could not be compiled" >&2; exit 1; }
}
for codeset in GBK ISO-8859-1 SHIFT_JIS BIG5-HKSCS; do compile "$codeset" "$codeset"; done
for codeset in ISO-2022-CN-EXT NOWHERE-1; do
    gzip -dc "$maps/ISO-8859-1.gz" | sed "s/^<code_set_name>.*/<code_set_name> $codeset/; /^% alias/d" >"$to/charmap.$codeset"
    compile "$to/charmap.$codeset" "$codeset"
done
