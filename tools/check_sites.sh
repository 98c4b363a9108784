#!/usr/bin/env bash
# Writes the web site of the sample collection and walks through it in a browser; with OSTRAND_SHARED the sites of real
# collections are looked through for broken links. Usage: check_sites.sh FOLDER-OF-PROGRAMS
set -euo pipefail
programs=$(cd "$1" && pwd)
tools=$(cd "$(dirname "$0")" && pwd)
samples=$tools/../resources/samples
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export HOME=$home LC_ALL=C.UTF-8

# write_site FOLDER COLLECTION [SQL]
write_site() {
    mkdir "$home/$1"
    printf 'createdatabase %s\nimportprofilerdatabase %s\nclose\n' "$home/$1.mdb" "$2" >"$home/make.txt"
    "$programs/ostrand-batch" --yes --quiet "$home/make.txt" >/dev/null || [ $? -eq 1 ] # links of names that are refused
    "$programs/ostrand-batch" --sql "$home/$1.mdb" >/dev/null <<SQL
${3:-}
DELETE FROM DbInfo WHERE InfoName IN ('CoverPath', 'HeadshotPath', 'HTML_SkinEpisode');
INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('CoverPath', '${samples//\'/\'\'}/images/covers/');
INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('HeadshotPath', '${samples//\'/\'\'}/images/headshots/');
INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('HTML_SkinEpisode', 'Episode');
SQL
    printf 'opendatabase %s\nsetskin Modern\ncreatehtmlcollection %s\nclose\n' "$home/$1.mdb" "$home/$1" >"$home/site.txt"
    "$programs/ostrand-batch" --yes --quiet "$home/site.txt"
}

write_site sample "$samples/collection.xml" "$(cat "$samples/additions.sql")"
"$tools/check_site.py" "$home/sample" --times
# The frame pages are valid; what tidy does not know or calls unneeded is told to stay.
for page in index index2 list start iphone; do
    status=0
    tidy -errors -quiet "$home/sample/$page.html" >"$home/tidy.txt" 2>&1 || status=$?
    grep -v 'trimming empty\|<ul> proprietary attribute "selected"' "$home/tidy.txt" >"$home/faults.txt" || true
    [ "$status" -lt 2 ] && [ ! -s "$home/faults.txt" ] || { echo "$page.html:"; cat "$home/tidy.txt"; exit 1; }
done
echo "the frame pages are valid"

if [ -n "${OSTRAND_SHARED:-}" ]; then
    number=0
    for collection in "$OSTRAND_SHARED"/collections/*.xml; do
        number=$((number + 1))
        write_site "real$number" "$collection"
        "$tools/check_site.py" "$home/real$number" --links
        rm -rf "$home/real$number" "$home/real$number.mdb"
    done
fi
