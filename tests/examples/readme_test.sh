#!/bin/sh
# The README shows the example as it is compiled, and what it prints: readme_test.sh README SOURCE PROGRAM.
set -u
block()  # the fenced block of that language
{
    awk -v open="\`\`\`$1" '$0 == "```" { inside = 0 } inside { print } $0 == open { inside = 1 }' "$2"
}
block c "$1" | diff - "$2" && block text "$1" > shown && "$3" | diff shown -
