#!/bin/sh
# The turntable as a user runs it: rigid_motion_test.sh PROGRAM DATA_FOLDER.
. "$(dirname "$0")/program.sh"

for mesh in bunny teapot; do
    draws "$data/$mesh.obj" $mesh.png
    # Five comparisons, all of them of something: rounding leaves a difference, but a small one.
    awk '/^Largest differences/ { counting = 1; next }
         counting && /^  / { if (!($NF > 0 && $NF < 64)) exit 1; ++good }
         END { exit good != 5 }' out || fail "$mesh: $(cat out)"
    # A line for each frame; the first one is lifted by 0.25, so is its bounding box.
    [ "$(grep -c ' to ' out)" -eq 12 ] || fail "$mesh: frames are missing"
done

# A single triangle is a scan too.
printf 'v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n' > triangle.obj
"$program" triangle.obj triangle.png > out || fail "triangle: exit code $?"
# Its box is centred, so that the first frame is the triangle of edge 2, turned by 30 degrees and lifted.
grep -q '^ *1 .* -0\.846 -0\.750 -0\.520 to  *0\.886  *1\.250  *0\.480$' out || fail "triangle: $(cat out)"

refusesBadFiles
exit $((failures > 0))
