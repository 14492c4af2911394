# Sourced by the other scripts: Debian packages, installed where they are missing.

ensurePackages()
{
    local missing=() package
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${Status}' "$package" 2>/dev/null)" = 'install ok installed' ] || missing+=("$package")
    done
    if [ ${#missing[@]} -eq 0 ]; then
        return 0
    fi
    local asRoot=()
    if [ "$(id -u)" -ne 0 ]; then
        asRoot=(sudo)
        if ! command -v sudo >/dev/null; then
            echo "Packages are missing, and without sudo only root can install them: apt-get install ${missing[*]}" >&2
            return 1
        fi
    fi
    echo "Installing ${missing[*]}"
    "${asRoot[@]}" apt-get update -qq
    "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}
