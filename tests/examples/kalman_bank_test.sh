#!/bin/sh
# The bank of filters as a user sees it: kalman_bank_test.sh PROGRAM DATA_FOLDER.
. "$(dirname "$0")/program.sh"

# The means are within their bounds, and the bounds as wide as chance makes them: a mean of n chi-square numbers of
# d degrees of freedom has a standard deviation of sqrt(2 d / n). The covariances state what the errors are.
consistent()
{
    awk '
        function width(low, high, deviations, d, n) {
            expected = 2 * deviations * sqrt(2 * d / n)
            return high - low > 0.98 * expected && high - low < 1.02 * expected
        }
        function like(found, stated) { return found > 0.96 * stated && found < 1.04 * stated }
        /NIS of all/ { good += $6 >= $8 && $6 + 0 <= $10 && width($8, $10, 3.481, 3, 4096 * 64) }
        /NEES of each/ { good += $5 >= $9 && $7 + 0 <= $11 && width($9, $11, 4.471, 6, 4096) }
        /stated/ { gsub(/[(),]/, ""); good += like($3, $5) && like($7, $9) }
        /packed .*, structure of arrays [0-9]/ { rates += $NF > 0 }
        END { exit good != 6 || rates != 2 }' out || fail "$1: $(cat out)"
}

for mesh in bunny teapot; do
    draws "$data/$mesh.obj" $mesh.png
    consistent $mesh
done

# The number of threads changes no bit.
cp bunny.png before.png
VORM_NUM_THREADS=1 draws "$data/bunny.obj" bunny.png
cmp -s bunny.png before.png || fail "another picture with another number of threads"

# A single triangle has edges to follow too; vertices of none have flyers that stay where they are.
printf 'v 0 0 0\nv 1 0 0\nv 0 1 0\nv 1 1 0\nf 1 2 3\n' > triangle.obj
"$program" triangle.obj triangle.png > out || fail "triangle: exit code $?"
consistent triangle

refusesBadFiles
exit $((failures > 0))
