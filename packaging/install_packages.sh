#!/bin/bash
# install_packages.sh SECTION...: installs the packages of these sections of packages.txt that are missing, and says
# what and why. With nothing missing it is silent and changes nothing.
set -euo pipefail
list="$(dirname "${BASH_SOURCE[0]}")/packages.txt"

# Lines "package reason" of the sections asked for, each package once.
wanted() {
    awk -v sections=" $* " '
        /^#/ || NF == 0 { next }
        /^\[/ { name = substr($1, 2, length($1) - 2); chosen = index(sections, " " name " "); next }
        chosen && !seen[$1]++ { package = $1; $1 = ""; print package $0 }' "$list"
}

is_installed() {
    [[ "$(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null)" == installed* ]]
}

missing=()
reasons=""
while read -r package reason; do
    is_installed "$package" && continue
    missing+=("$package")
    reasons+="$(printf '  %-20s %s' "$package" "$reason")"$'\n'
done < <(wanted "$@")
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if ! command -v apt-get >/dev/null; then
    refusal="this system has no apt-get; install what corresponds to these"
elif [ "$(id -u)" -eq 0 ]; then
    refusal=""
elif command -v sudo >/dev/null; then
    refusal=""
    as_root=(sudo)
else
    refusal="there is no sudo; install these as root"
fi
if [ -n "$refusal" ]; then
    printf 'Debian packages are missing, and %s:\n%s' "$refusal" "$reasons" >&2
    exit 1
fi

printf 'Installing %d Debian packages with apt-get%s:\n%s' "${#missing[@]}" "${as_root:+ and sudo}" "$reasons"
apt_get() {
    local words
    words="$("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get --quiet "$@" </dev/null 2>&1)" || {
        printf 'apt-get %s failed:\n%s\n' "$1" "$words" >&2
        return 1
    }
}
# An outdated list may still name packages that can be had: the installation decides.
apt_get update || true
apt_get install --yes --no-install-recommends "${missing[@]}"
