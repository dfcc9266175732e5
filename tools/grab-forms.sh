#!/usr/bin/env bash
# Grabs pictures of the program's forms, as they stand after a short road,
# at the scale factors given (default 1 and 1.5), into a folder.
#   tools/grab-forms.sh OUT_DIR [SCALE...]
# Requests for more forms can be given on standard input, one JSON line each,
# in the same manner as below; they run after the built-in road.
set -euo pipefail
cd "$(dirname "$0")/.."
out=${1:?usage: tools/grab-forms.sh OUT_DIR [SCALE...]}
shift || true
scales=("$@")
((${#scales[@]})) || scales=(1 1.5)
mkdir -p "$out"
extra=$( [ -t 0 ] && true || cat )
target=$(mktemp -d)
trap 'rm -rf "$target"' EXIT
for scale in "${scales[@]}"; do
    s=${scale/./_}
    mkdir -p "$target/$s"
    QT_SCALE_FACTOR=$scale build/quillet --automation <<EOF2 | grep -v '"ok":true' || true
{"op":"start"}
{"op":"grab","form":"QLMain","control":"QLMain","path":"$out/QLMain_$s.png"}
{"op":"choose","form":"QLMain","control":"TabStrip1","item":1}
{"op":"grab","form":"QLMain","control":"QLMain","path":"$out/QLMain-text_$s.png"}
{"op":"click","form":"QLMain","control":"mnuEditApplet"}
{"op":"grab","form":"EditAppletForm","control":"EditAppletForm","path":"$out/EditAppletForm_$s.png"}
{"op":"click","form":"EditAppletForm","control":"Command2"}
{"op":"click","form":"QLMain","control":"mnuPreferences"}
{"op":"grab","form":"Options","control":"Options","path":"$out/Options_$s.png"}
{"op":"close","form":"Options","control":"Options"}
{"op":"click","form":"QLMain","control":"Command4"}
{"op":"grab","form":"Swirly","control":"Swirly","path":"$out/Swirly_$s.png"}
{"op":"set_text","form":"Swirly","control":"Text7","text":"Hello"}
{"op":"set_text","form":"Swirly","control":"Text10","text":"300"}
{"op":"set_text","form":"Swirly","control":"Text11","text":"60"}
{"op":"click","form":"Swirly","control":"Command1"}
{"op":"grab","form":"Preview","control":"Preview","path":"$out/Preview-1_$s.png"}
{"op":"click","form":"Preview","control":"Command15"}
{"op":"grab","form":"Preview","control":"Preview","path":"$out/Preview-2_$s.png"}
{"op":"click","form":"Preview","control":"Command15"}
{"op":"grab","form":"Preview","control":"Preview","path":"$out/Preview-3_$s.png"}
{"op":"click","form":"Preview","control":"Command1"}
{"op":"grab","form":"MakeDir","control":"MakeDir","path":"$out/MakeDir_$s.png"}
{"op":"close","form":"MakeDir","control":"MakeDir"}
{"op":"set_path","form":"Preview","control":"Dir1","path":"$target/$s"}
{"op":"click","form":"Preview","control":"Command6"}
{"op":"grab","form":"Preview","control":"Preview","path":"$out/Preview-3failed_$s.png"}
{"op":"click","form":"Preview","control":"mnuAutocopy"}
{"op":"click","form":"Preview","control":"Command15"}
{"op":"grab","form":"Preview","control":"Preview","path":"$out/Preview-finish_$s.png"}
$(printf '%s\n' "$extra" | sed "s/@SCALE@/$s/g")
EOF2
done
echo "pictures in $out"
