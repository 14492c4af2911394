#!/bin/sh
# The normals of a cloud as a user sees them: cloud_normals_test.sh PROGRAM DATA_FOLDER.
. "$(dirname "$0")/program.sh"

# So many points have no normal, and the angles to the normals of the mesh are at most those: angles MIDDLE LARGEST.
without() { grep -q "^Points without a normal: $1\$" out || fail "$1 without a normal: $(cat out)"; }
angles()
{
    awk -v middle="$1" -v largest="$2" '
        /^Angle/ { gsub(/,/, ""); good = $9 <= middle && $(NF - 1) <= largest && $9 >= 0 }
        END { exit !good }' out || fail "angles: $(grep Angle out)"
}

# Pictures of flat things are small files.
takes() { "$program" "$1" "$2" > out || fail "$1: exit code $?"; }

# Points of a cubic lattice in a plane through it: lattice SIZE STRAY. So many more, farther away, are on a line, and no
# triangle has them.
lattice()
{
    awk -v size="$1" -v stray="$2" '
        BEGIN {
            for (i = 0; i < size; ++i) for (j = 0; j < size; ++j) print "v", i, j, -i - j
            for (k = 0; k < stray; ++k) print "v", 3 * size + k, 3 * size + k, 3 * size + k
            for (i = 1; i < size; ++i)
                for (j = 1; j < size; ++j) { a = size * (i - 1) + j; print "f", a, a + 1, a + size + 1, a + size }
        }'
}

draws "$data/bunny.obj" bunny.png
without 0
angles 5 90
awk '/degrees and more/ { sum += $5 } END { exit sum != 1839 }' out || fail "histogram: $(cat out)"
# Some come out wrong at first, few enough not to matter for the time.
awk '/^Values that did not fit/ { good = $NF > 0 && $NF < 20 } END { exit !good }' out || fail "again: $(cat out)"

# The number of threads changes no bit.
cp bunny.png several.png
VORM_NUM_THREADS=1 draws "$data/bunny.obj" bunny.png
cmp -s bunny.png several.png || fail "another picture with another number of threads"

draws "$data/teapot.obj" teapot.png

# In a plane the least spread is none at all, and no reason to end an array.
lattice 24 0 > plane.obj
takes plane.obj plane.png
without 0
angles 0.02 0.05

# Points on a line have no normal, nor those in one place.
lattice 24 20 > line.obj
takes line.obj line.png
without 20
angles 0.02 0.05
{
    lattice 24 0
    k=0
    while [ $k -lt 13 ]; do
        echo 'v 60 60 60'
        k=$((k + 1))
    done
} > heap.obj
takes heap.obj heap.png
without 13

touch before after err
printf 'v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n' > triangle.obj
refused 'triangle.obj: too few points' triangle.obj bad.png
{
    lattice 1 30
    echo 'f 1 2 3'
} > straight.obj
refused 'straight.obj: no point has a normal' straight.obj bad.png
{
    lattice 24 0 | grep v
    echo 'f 1 1 2'
} > loose.obj
refused 'loose.obj: no normal to compare' loose.obj bad.png

refusesBadFiles
exit $((failures > 0))
