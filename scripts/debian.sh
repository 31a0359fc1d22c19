# shellcheck shell=bash
# A Debian in a folder, and commands in it. Sourced after lib.sh by the scripts that need one, as root; they set `debian`,
# the folder. What apt says goes into "$debian.log".

# become_root [ARGUMENT...]: starts the script anew as root, with its arguments.
become_root() {
    [ "$EUID" -ne 0 ] || return 0
    command -v sudo >/dev/null || die "a Debian takes root to make and to enter"
    exec sudo -- "$(readlink -f "$0")" "$@"
}

this_suite() {
    # shellcheck source=/dev/null
    (. /etc/os-release && echo "$VERSION_CODENAME")
}

# make_debian SUITE [ARGUMENT of mmdebstrap]...: a minimal one, from the package sources of this machine. It stands in its
# folder only when it is complete.
make_debian() {
    local suite=$1 list sources=()
    shift
    rm -rf "${debian:?}" "$debian".*
    mkdir -p "${debian%/*}"
    # The sources of Debian itself, without those that a machine may have beside them.
    for list in /etc/apt/sources.list /etc/apt/sources.list.d/debian.sources; do
        [ -s "$list" ] || continue
        sed "s/\b$(this_suite)\b/$suite/g" "$list" >"$debian.${list##*.}"
        sources+=("$debian.${list##*.}")
    done
    mmdebstrap --quiet --mode=root --variant=minbase --aptopt='Acquire::Retries "3"' "$@" \
        "$suite" "$debian.part" "${sources[@]}" 2>"$debian.log" ||
        { tail -n 20 "$debian.log" >&2 && die "no Debian $suite"; }
    cp --remove-destination -L /etc/resolv.conf "$debian.part/etc/resolv.conf"
    mv "$debian.part" "$debian"
}

# in_debian COMMAND...: as root. The mounts end with the command, which `tracer` may watch.
in_debian() {
    # shellcheck disable=SC2016 # the inner sh expands it
    ${tracer:+$tracer} unshare --mount --propagation private sh -c '
        mount --bind /proc "$1/proc" && mount --bind /dev "$1/dev" && shift && exec "$@"' _ "$debian" chroot "$debian" "$@"
}
