#!/bin/sh
# Installs missing Debian packages of tools/packages.txt and of further lists given as arguments.
# Quick when nothing is missing.
set -eu
cd "$(dirname "$0")/.."

wanted=$(cat tools/packages.txt "$@" | sed -e 's/#.*//' -e '/^[[:space:]]*$/d')
# Many machines have Node.js from another source, which Debian's packages would conflict with.
if command -v node >/dev/null && command -v npm >/dev/null; then
    wanted=$(printf '%s\n' "$wanted" | grep -vxE 'nodejs|npm')
fi

# shellcheck disable=SC2086 # one word per package
installed=$(dpkg-query -W -f '${Package} ${Status}\n' $wanted 2>/dev/null |
    sed -n 's/ install ok installed$//p' | sort -u)
missing=
for package in $wanted; do
    printf '%s\n' "$installed" | grep -qx "$package" || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

if [ "$(id -u)" -eq 0 ]; then
    as_root=env
elif command -v sudo >/dev/null 2>&1; then
    as_root='sudo env'
else
    echo "These Debian packages are missing:$missing" >&2
    echo "Install them as root (apt-get install$missing), or install sudo, and try again." >&2
    exit 1
fi
echo "Installing Debian packages:$missing"
# shellcheck disable=SC2086
{
    $as_root apt-get update -qq
    $as_root DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends -qq $missing >/dev/null
}
