# Sourced by the tests of the example programs, started as TEST PROGRAM DATA_FOLDER: what all programs
# that draw a mesh have in common. They run in a folder of their own.
set -u
program=$1
data=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
export OMP_WAIT_POLICY=passive  # other tests want the processors too
failures=0

fail()
{
    echo "FAILED: $*"
    failures=$((failures + 1))
}

# A good mesh gives a picture that is not empty, and tells the version.
draws()
{
    "$program" "$1" "$2" > out || fail "$1: exit code $?"
    grep -q '7\.1\.1 (r37466)' out || fail "$1: no version"
    [ "$(head -c 8 "$2" | od -An -tx1 | tr -d ' \n')" = 89504e470d0a1a0a ] || fail "$1: no PNG"
    [ "$(wc -c < "$2")" -gt 20000 ] || fail "$1: an empty picture"
}

# Exit code 1, the reason on standard error, no file of any name left behind.
refused()
{
    expected=$1
    shift
    ls > before
    "$program" "$@" > /dev/null 2> err
    code=$?
    ls > after
    [ $code -eq 1 ] || fail "$*: exit code $code"
    grep -q -- "$expected" err || fail "$*: said '$(cat err)'"
    cmp -s before after || fail "$*: left a file"
}

# Its argument is a mesh the program takes, where that is not the teapot.
refusesBadFiles()
{
    good=${1-$data/teapot.obj}
    touch before after err
    printf 'v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 9\n' > range.obj
    printf 'v 5 5 5\nv 5 5 5\nv 5 5 5\nf 1 2 3\n' > point.obj
    refused 'range.obj:4: vertex 9 of 3' range.obj bad.png
    refused 'too close together' point.obj bad.png
    refused 'control character' "$program" bad.png
    refused 'directory' . bad.png
    refused 'No such file' missing.obj bad.png
    refused 'No such file' "$good" no/such/folder/bad.png
    mkdir folder
    refused 'directory' "$good" folder
    refused 'is the input' range.obj ./range.obj
    refused 'usage' a b c
}
