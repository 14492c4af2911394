#!/bin/sh
# The mesh example as a user runs it: mesh_normals_test.sh PROGRAM DATA_FOLDER.
. "$(dirname "$0")/program.sh"

draws "$data/bunny.obj" bunny.png
draws "$data/teapot.obj" teapot.png

# Triangles without area are left out and spoil nothing.
{
    cat "$data/teapot.obj"
    echo 'f 1 1 1'
    echo 'f 1 2 1'
} > degenerate.obj
draws degenerate.obj degenerate.png
grep -q 'without area, left out: 2' out || fail "degenerate: not reported"
cmp -s degenerate.png teapot.png || fail "degenerate: another picture"

refusesBadFiles
exit $((failures > 0))
