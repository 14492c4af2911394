#!/bin/sh
# The curvature of a scan as a user sees it: surface_fit_test.sh PROGRAM DATA_FOLDER.
. "$(dirname "$0")/program.sh"

# A sphere about the origin, as OBJ text: sphere RADIUS STRAY SIDE. Every STRAY-th vertex is one that no
# triangle has; SIDE is 1 with the outside of the triangles outside, -1 with it inside.
sphere()
{
    awk -v radius="$1" -v stray="$2" -v side="$3" '
        function vertex(i, j) { return id[i, (i == 0 || i == rings ? 0 : j % columns)] }
        function triangle(a, b, c) { print "f", a, (side > 0 ? b : c), (side > 0 ? c : b) }
        BEGIN {
            pi = atan2(0, -1); rings = 24; columns = 48
            for (i = 0; i <= rings; ++i)
                for (j = 0; j < (i == 0 || i == rings ? 1 : columns); ++j) {
                    if (stray && n % stray == 0) { print "v 1 2 3"; ++n }
                    id[i, j] = ++n
                    polar = pi * i / rings; turn = 2 * pi * j / columns
                    printf "v %.9g %.9g %.9g\n", radius * sin(polar) * sin(turn), radius * cos(polar),
                        radius * sin(polar) * cos(turn)
                }
            for (i = 0; i < rings; ++i)
                for (j = 0; j < columns; ++j) {
                    if (i + 1 < rings) triangle(vertex(i, j), vertex(i + 1, j), vertex(i + 1, j + 1))
                    if (i > 0) triangle(vertex(i, j), vertex(i + 1, j + 1), vertex(i, j + 1))
                }
        }'
}

# The least and the largest curvature are between the two numbers.
curvatureWithin()
{
    awk -v low="$1" -v high="$2" '/^Mean curvature: / { good = $3 >= low && $5 + 0 <= high && $3 <= $5 + 0 }
                                  END { exit !good }' out || fail "not within $1 to $2: $(grep 'Mean' out)"
}

# So many decompositions failed, by LU, by Cholesky, by QR. The fits that remain are the same, but for rounding.
fitsFailed()
{
    awk -v expected="$1" '
        /^  (LU|Cholesky|QR) / { ++lines; counts = counts $7 " "; same += lines == 1 || $6 == residual; residual = $6 }
        END { exit !(lines == 3 && same == 3 && counts ~ "^" expected " $") }' out || fail "fits: $(grep -A3 '^Fits' out)"
}

for mesh in bunny teapot; do
    draws "$data/$mesh.obj" $mesh.png
    fitsFailed '0 0 0'
    grep -q 'left out' out && fail "$mesh: $(cat out)"
done

# The curvature of a sphere is one over its radius; a quadric is a little steeper than its cap.
sphere 2 0 1 > sphere.obj
draws sphere.obj sphere.png
curvatureWithin 0.5 0.515
grep -q 'left out' out && fail "sphere: $(cat out)"
sphere 0.002 0 -1 > hollow.obj
draws hollow.obj hollow.png
curvatureWithin -515 -500

# Vertices without a neighbourhood have singular systems. They are told by their numbers, and all the
# systems behind each of them are solved nevertheless.
sphere 2 97 1 > stray.obj
draws stray.obj stray.png
grep -q '^Singular, left out: 12, vertices 1 98 195 292 389 486 583 680 777 874 971 1068$' out ||
    fail "stray: $(cat out)"
fitsFailed '12 12 12'
curvatureWithin 0.5 0.515

# Five points are one too few for six unknowns, though rounding leaves each system a last pivot.
{
    sphere 2 0 1
    printf 'v 3.1 0.2 0.3\nv 4.2 0.1 0.15\nv 3.7 1.3 0.4\nv 2.9 1.1 0.1\nv 3.6 0.7 0.6\n'
    printf 'f 1107 1108 1111\nf 1108 1109 1111\nf 1109 1110 1111\nf 1110 1107 1111\n'
} > few.obj
draws few.obj few.png
[ "$(sed -n 's/.*left out: [0-9]*, vertices//p' out | tr ' ' '\n' | sort -n | tr '\n' ' ')" = ' 1107 1108 1109 1110 1111 ' ] ||
    fail "few: $(cat out)"
fitsFailed '[0-5] [0-5] 5'  # only the columns of X themselves show that there is nothing left of the last one
curvatureWithin 0.5 0.515

# A mesh with nothing to fit at all.
touch before after err
printf 'v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n' > triangle.obj
refused 'triangle.obj: no vertex has a neighbourhood to fit' triangle.obj bad.png

refusesBadFiles
exit $((failures > 0))
