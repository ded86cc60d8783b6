#!/usr/bin/env bash
# Runs a command over a clean clone of this repository's HEAD in a Debian 12 with only make, git and
# certificates: packages that our own scripts forget to install are missing there. Needs root.
#   tools/bare-root.sh 'make book && make test'
# Downloaded packages are kept in BARE_ROOT_CACHE, by default in ~/.cache/folvero-bare-root.
set -euo pipefail

# The mounts are in a separate mount namespace and end with it, so that the clean-up below can't reach the host.
# pivot_root and not chroot: in a chroot user namespaces can't be created, and browser sandboxes need them.
enter() {
    local root=$1 cache=$2 command=$3
    mount --bind "$root" "$root"
    mount -t proc proc "$root/proc"
    mount -t sysfs sys "$root/sys"
    mount --rbind /dev "$root/dev"
    mount --bind "$cache/apt" "$root/var/cache/apt/archives"
    mount --bind "$cache/npm" "$root/var/cache/npm"
    cd "$root"
    pivot_root . mnt
    cd /srv/folvero
    umount -l /mnt
    exec bash -c "$command"
}

if [ "${1:-}" = --enter ]; then
    shift
    enter "$@"
fi

command=${1:?usage: bare-root.sh COMMAND}
source=$(cd "$(dirname "$0")/.." && pwd)
cache=${BARE_ROOT_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/folvero-bare-root}
if [ "$(id -u)" -ne 0 ]; then
    echo "bare-root.sh: only root can make a bare Debian" >&2
    exit 1
fi
if ! command -v mmdebstrap >/dev/null; then
    apt-get update -qq
    DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends -qq mmdebstrap >/dev/null
fi

root=$(mktemp -d "${TMPDIR:-/tmp}/bare-root.XXXXXX")
trap 'rm -rf --one-file-system "$root"' EXIT
mirrors=/etc/apt/sources.list.d/debian.sources
[ -e $mirrors ] || mirrors=/etc/apt/sources.list
# The root is thrown away, so dpkg need not call fsync after each file.
mmdebstrap --quiet --variant=minbase --include=make,git,ca-certificates --dpkgopt=force-unsafe-io \
    bookworm "$root" $mirrors
mkdir -p "$cache/apt/partial" "$cache/npm" "$root/var/cache/npm"
git clone -q "$source" "$root/srv/folvero"
# The network may have a resolver, certificates and a registry of its own.
cp /etc/resolv.conf "$root/etc/"
certificates=/etc/ssl/certs/ca-certificates.crt
cp $certificates "$root$certificates"
registry=$(npm config get registry 2>/dev/null || true)

env -i HOME=/root PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin TERM=dumb CI=true \
    NODE_EXTRA_CA_CERTS=$certificates npm_config_cafile=$certificates npm_config_cache=/var/cache/npm \
    ${registry:+npm_config_registry="$registry"} \
    unshare --mount --pid --fork --kill-child "$0" --enter "$root" "$cache" "$command"
