#!/bin/sh
# Two scans brought together as a user sees it: registration_test.sh PROGRAM DATA_FOLDER.
. "$(dirname "$0")/program.sh"

draws "$data/bunny.obj" bunny.png
# The motion was a large one. Point-to-plane steps leave little of it, those with covariances less than the bound that
# the program states.
awk '/^  / && /rotation/ { gsub(/,/, ""); ++lines; degrees[lines] = $(NF - 3); distance[lines] = $NF }
     END { good = lines == 4 && degrees[1] > 90 && distance[1] > 1 && degrees[4] <= 0.2 && distance[4] <= 0.004
           for (k = 2; k < 4; ++k) good = good && degrees[k] > 0 && degrees[k] < 0.5 && distance[k] > 0 && distance[k] < 0.01
           exit !(good && degrees[3] < degrees[4] && distance[3] < distance[4]) }' out || fail "motion: $(cat out)"
awk '/^Steps/ { gsub(/,/, ""); good = $4 > 1 && $4 < 40 && $6 > 2000 } END { exit !good }' out || fail "steps: $(cat out)"

# The number of threads changes no bit.
cp bunny.png several.png
VORM_NUM_THREADS=1 draws "$data/bunny.obj" bunny.png
cmp -s bunny.png several.png || fail "another picture with another number of threads"

# A turned square looks like the square: nothing tells the motion, and the program says so. From behind it there is
# nothing to see.
touch before after err
printf 'v -1 -1 0\nv 1 -1 0\nv 1 1 0\nv -1 1 0\nf 1 2 3 4\n' > square.obj
printf 'v -1 -1 0\nv 1 -1 0\nv 1 1 0\nv -1 1 0\nf 4 3 2 1\n' > behind.obj
refused 'square.obj: the motion is not recovered' square.obj bad.png
refused 'behind.obj: a scanner sees nothing of it' behind.obj bad.png

refusesBadFiles "$data/bunny.obj"
exit $((failures > 0))
