#!/usr/bin/env bash
# Makes the small pictures of the web site anew from the drawings beside this file. Usage: draw.sh PATH-OF-render_icon
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
html=$here/../../resources/html
for name in upsimple downsimple blank twisty-clsd twisty-open boxchild boxchild2 reset; do
    "$1" "$here/$name.svg" "$html/images/$name.png" 32
done
for name in iPhoneArrow iPhoneBackButton iPhoneButton iPhoneGoButton; do
    "$1" "$here/$name.svg" "$html/common/$name.png" 48
done
"$1" "$here/iPhoneToolbar.svg" "$html/common/iPhoneToolbar.png" 8 48
"$1" "$here/pinstripes.svg" "$html/common/pinstripes.png" 8
"$1" "$here/../../resources/icons/ostrand.svg" "$html/images/OSVicon.ico" 32
