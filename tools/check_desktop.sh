#!/usr/bin/env bash
# Runs the desktop program on a virtual screen: a command file that makes a collection and ends the program, then a
# start on that collection which is asked to end. It is asked once (--foreground): a second signal ends it at once. Usage: check_desktop.sh FOLDER-OF-PROGRAMS
set -euo pipefail
programs=$(cd "$1" && pwd)
samples=$(cd "$(dirname "$0")/../resources/samples" && pwd)
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export HOME=$home XDG_RUNTIME_DIR=$home/run LC_ALL=C.UTF-8
mkdir -m 700 "$XDG_RUNTIME_DIR"

# Questions and messages wait for a person, so that the collection's own start is told beforehand.
cat >"$home/make.txt" <<COMMANDS
createdatabase $home/sample.mdb
importprofilerdatabase $samples/collection.xml
close
COMMANDS
"$programs/ostrand-batch" --yes --quiet "$home/make.txt" >/dev/null
"$programs/ostrand-batch" --sql "$home/sample.mdb" >/dev/null \
    <<<"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('ShowLoanDueOnStartUp', '0');"
cat >"$home/again.txt" <<COMMANDS
opendatabase $home/sample.mdb
exportadditionalinfos $home/infos.xml
close
COMMANDS

on_screen() {
    timeout 60 xvfb-run -a "$@"
}

on_screen "$programs/ostrand" "$home/again.txt"
[ -s "$home/infos.xml" ] || { echo "the command file wrote nothing"; exit 1; }
echo "a command file ended the program"

status=0
timeout --signal=TERM 8 xvfb-run -a bash -c "timeout --foreground --preserve-status --signal=TERM 4 '$programs/ostrand' '$home/sample.mdb'" || status=$?
[ "$status" -eq 0 ] || { echo "the program ended with status $status"; exit 1; }
settings=$(find "$home" -name Settings.ini)
grep -q '^Splitter1=[0-9]' "$settings" || { echo "the window's splitters were not kept"; exit 1; }
profiles=$("$programs/ostrand-batch" --sql "$home/sample.mdb" --format csv <<<"SELECT COUNT(*) FROM Profiles;" | tail -n 1 | tr -d '\r')
[ "$profiles" = 60 ] || { echo "$profiles profiles instead of 60"; exit 1; }
echo "a window opened, was asked to end and kept its state"

# Pages of skins: the engine runs their scripts and shows their pictures, and the program's own skins have no fault.
skins=$(find "$home" -type d -name Skins | head -n 1)
[ -s "$skins/Modern/Skin.html" ] || { echo "the skins of the program were not installed"; exit 1; }
mkdir "$skins/Check"
cat >"$skins/Check/Skin.html" <<'PAGE'
<body><DP NAME="IMAGE"><script>
window.onload = function () { console.error('picture ' + (document.images[0].naturalWidth > 0 ? 'shown' : 'missing')); };
</script></body>
PAGE
show_skin() {
    "$programs/ostrand-batch" --sql "$home/sample.mdb" >/dev/null <<SQL
DELETE FROM DbInfo WHERE InfoName IN ('CoverPath', 'CurrentSkin', 'EnableSkin');
INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('CoverPath', '${samples//\'/\'\'}/images/covers/');
INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('CurrentSkin', '$1');
INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('EnableSkin', '1');
SQL
    status=0
    QT_LOGGING_RULES=ostrand.pages.debug=true timeout --signal=TERM 20 xvfb-run -a -e /dev/stderr bash -c \
        "timeout --foreground --preserve-status --signal=TERM 8 '$programs/ostrand' '$home/sample.mdb'" >"$home/page.log" 2>&1 || status=$?
    [ "$status" -eq 0 ] || { echo "the program ended with status $status"; cat "$home/page.log"; exit 1; }
    ! grep 'Expect troubles' "$home/page.log" || { echo "the page outlived its profile"; exit 1; }
}
show_skin Check
grep -q 'picture shown' "$home/page.log" || { echo "the page or its picture was not shown"; cat "$home/page.log"; exit 1; }
for skin in Classic Modern Episode Script; do
    show_skin "$skin"
    ! grep 'Temp\.html' "$home/page.log" || { echo "the skin $skin has a fault"; exit 1; }
done
echo "pages of skins were shown"

# A link of a page into the program, with characters that URLs escape.
"$programs/ostrand-batch" --sql "$home/sample.mdb" >/dev/null \
    <<<"INSERT INTO Profiles (ProfileID, Title, ColType) VALUES ('Key_O''Hale & Söhne+100%', 'Linked', 'Owned');"
mkdir "$skins/Links"
cat >"$skins/Links/Skin.html" <<'PAGE'
<script>
const key = "<DP NAME="UPC" Formatted="NO">", linked = "O'Hale & S\u00f6hne+100%";
console.error('page of ' + (key === linked ? 'the link' : 'another'));
if (key !== linked) { location.href = 'blank.html?profileid=' + linked; }
</script>
PAGE
show_skin Links
grep -q 'page of another' "$home/page.log" || { echo "no page was shown"; cat "$home/page.log"; exit 1; }
grep -q 'page of the link' "$home/page.log" || { echo "a link led nowhere"; cat "$home/page.log"; exit 1; }
echo "a link led to its title"

# What a script may reach: its skin's files, and nothing of the data folder, the computer or the network.
data=$(dirname "$skins")
mkdir -p "$skins/Guest/Images"
echo "image" >"$skins/Guest/Images/own.txt"
echo "secret" >"$data/secret.txt"
ln -s "$data/secret.txt" "$skins/Guest/Images/link.txt"
cat >"$skins/Guest/Skin.html" <<PAGE
<DP NAME="SKIN_NAME"><iframe src="https://example.invalid/"></iframe><script>
async function reach(name, url) {
    await new Promise(function (resolve) {
        const request = new XMLHttpRequest();
        request.onload = function () { if (request.response) { console.error('reached ' + name); } resolve(); };
        request.onerror = resolve;
        try { request.open('GET', url); request.send(); } catch (error) { resolve(); }
    });
}
window.onload = async function () {
    await reach('own', '\$DPIMAGES.own.txt');
    await reach('settings', 'file://$data/Settings.ini');
    await reach('secret', 'file://$data/secret.txt');
    await reach('parent', '\$DPIMAGES.../../../secret.txt');
    await reach('link', '\$DPIMAGES.link.txt');
    await reach('system', 'file:///etc/passwd');
    await reach('network', 'http://127.0.0.1:1/');
    if (window.RTCPeerConnection) { console.error('reached peers'); }
    console.error('tried all');
};
</script>
PAGE
show_skin Guest
grep -q 'tried all' "$home/page.log" || { echo "the script did not run to its end"; cat "$home/page.log"; exit 1; }
grep -q 'reached own' "$home/page.log" || { echo "a skin does not reach its own files"; cat "$home/page.log"; exit 1; }
! grep 'reached' "$home/page.log" | grep -v 'reached own' || { echo "a page left its folders"; exit 1; }
echo "a page stayed in its folders"
