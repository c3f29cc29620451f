#!/usr/bin/env bash
# The main job on the sample drawings: numbers of each, pictures and drawings into build/demo, and the Windows
# program's table beside the native one.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
out="$root/build/demo"
rm -rf "$out"
mkdir -p "$out"
different=0
for drawing in "$root"/examples/data/*.dxf; do
    name=$(basename "$drawing" .dxf)
    "$root/build/native/bin/section" "$drawing" --output "$out/$name" | tee "$out/$name.txt"
    "$root/tests/wine/run_under_wine" "$root/build/windows/bin/section.exe" "$drawing" --output "$out/$name" \
        >"$out/$name-windows.txt"
    if ! cmp -s "$out/$name.txt" "$out/$name-windows.txt"; then
        echo "The Windows program's table for $name differs:" >&2
        diff "$out/$name.txt" "$out/$name-windows.txt" >&2 || true
        different=1
    fi
done
[ $different -eq 0 ] || exit 1
"$root/build/native/bin/sheet" "$out/sheet"
echo "The Windows program printed the same tables, byte for byte."
echo "Tables, pictures (.png, .svg, .pdf, .bmp) and drawings are in $out"
