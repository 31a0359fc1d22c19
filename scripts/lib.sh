# shellcheck shell=bash
# What run, test and .ci/run share: finding the packages that are missing, installing them, building.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

say() { printf '== %s\n' "$*" >&2; }

die() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# packages_of GROUP...: the packages of these groups, one a line.
packages_of() {
    awk -v groups=" $* " '!/^#/ && NF && index(groups, " " $2 " ") { print $1 }' "$root/scripts/packages.txt"
}

# missing_packages GROUP...: those of them that are not installed.
missing_packages() {
    local wanted
    mapfile -t wanted < <(packages_of "$@" | sort)
    # dpkg-query fails when it knows nothing of a package, which is an answer here.
    comm -13 <(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "${wanted[@]}" 2>/dev/null |
        sed -n 's/^installed //p' | sort) <(printf '%s\n' "${wanted[@]}")
}

# install_missing GROUP...: as root or through sudo; touches nothing when everything is there.
install_missing() {
    local missing as_root=()
    if ! command -v dpkg-query >/dev/null; then
        say "This is not Debian: going on with what is installed. Needed, by their Debian names:" \
            "$(packages_of "$@" | paste -sd ' ')"
        return
    fi
    mapfile -t missing < <(missing_packages "$@")
    [ "${#missing[@]}" -gt 0 ] || return 0
    if [ "$EUID" -ne 0 ]; then
        command -v sudo >/dev/null ||
            die "these packages are missing: ${missing[*]}
Neither root nor sudo is at hand. Have root run: apt-get install --no-install-recommends ${missing[*]}"
        as_root=(sudo)
    fi
    say "Installing ${missing[*]}"
    "${as_root[@]}" apt-get -qq -o DPkg::Lock::Timeout=120 update
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -qq -y -o DPkg::Lock::Timeout=120 install --no-install-recommends "${missing[@]}" </dev/null
}

# configure PRESET [cmake argument]...: only when there is no build of it yet or the presets have changed.
configure() {
    local preset=$1 made=$root/build/$1/build.ninja
    if [ ! -e "$made" ] || [ "$root/CMakePresets.json" -nt "$made" ]; then
        (cd "$root" && cmake --preset "$@")
    fi
}

# build PRESET [target]...: all of it without a target.
build() {
    local preset=$1
    shift
    configure "$preset"
    (cd "$root" && cmake --build --preset "$preset" --parallel "$(nproc)" ${1:+--target "$@"})
}
