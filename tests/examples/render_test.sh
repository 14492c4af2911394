#!/bin/sh
# The scene and its camera as a user sees them: render_test.sh PROGRAM DATA_FOLDER.
. "$(dirname "$0")/program.sh"

# Four checks, all of them of something, and a frame for each place of the camera, the first and the last at the ends
# of its path. The teapot is in view always, so is nearly all of the mesh with that many vertices.
seen()
{
    awk -v vertices="$2" '
        /\(at most / { good += $(NF - 3) <= $NF + 0; found += $(NF - 3) > 0 }
        /^Rays through/ { good += $(NF - 2) > 200 }
        /^ *[1-8] .* and 792$/ { frames += $(NF - 2) >= vertices - 1 }
        /^ *1 +-5\.200 +0\.900 +1\.700 / || /^ *8 +4\.700 +1\.800 +1\.700 / { ++ends }
        /^Picked/ { good += $(NF - 1) >= 20 }
        END { exit good != 6 || found < 3 || frames != 8 || ends != 2 }' out || fail "$1: $(cat out)"
}

draws "$data/bunny.obj" bunny.png
seen bunny 1839
draws "$data/teapot.obj" teapot.png
seen teapot 792

# A single triangle stands upright beside the teapot.
printf 'v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n' > triangle.obj
draws triangle.obj triangle.png
seen triangle 3

# Triangles without area are hit by nothing, and leave the picture as it is.
{
    cat "$data/teapot.obj"
    echo 'f 1 1 1'
    echo 'f 1 2 1'
    echo 'f 3 8 8'
} > degenerate.obj
draws degenerate.obj degenerate.png
cmp -s degenerate.png teapot.png || fail "degenerate: another picture"

refusesBadFiles
exit $((failures > 0))
