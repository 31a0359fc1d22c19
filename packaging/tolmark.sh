#!/bin/sh
# Starts Tolmark for a user of a machine where it is installed for all. The program works in the folder that it stands
# in, so each user has one, with a copy of the program that is kept at the installed version. What is made here gets its
# name only when it is whole, so that two starts at once, a full disk or a Ctrl-C leave no half a file; a data file is
# never replaced.
set -eu

usage() {
    cat <<'END'
Usage: tolmark [--sample]
Starts Tolmark on your own records. The first start makes a folder for them, with an organisation without members.
  --sample    starts it on a second folder, with a sample organisation to try things out in
  --help      shows this
  --version   shows the version
END
}

# Whoever starts Tolmark from a menu sees no terminal, so the reason is shown in a window where there is a way to.
die() {
    printf 'tolmark: %s\n' "$1" >&2
    if [ -n "${DISPLAY-}${WAYLAND_DISPLAY-}" ] && [ ! -t 2 ]; then
        if command -v kdialog >/dev/null; then
            kdialog --title Tolmark --error "$1" || :
        elif command -v zenity >/dev/null; then
            zenity --title=Tolmark --error --no-markup --text="$1" || :
        elif command -v xmessage >/dev/null; then
            xmessage "$1" || :
        fi
    fi
    exit 1
}

# The folder below which a user's data lies; a relative XDG_DATA_HOME counts for nothing, as its rules want.
data_home() {
    case ${XDG_DATA_HOME-} in
    /*) printf '%s' "$XDG_DATA_HOME" && return ;;
    esac
    home=${HOME-}
    [ -n "$home" ] || home=$(getent passwd "$(id -u)" | cut -d: -f6)
    case $home in
    /*) printf '%s/.local/share' "$home" ;;
    esac
}

there() { [ -e "$1" ] || [ -L "$1" ]; }

# new_file NAME COMMAND...: has COMMAND write the file that is its last argument, and names it NAME unless that name is
# taken by then. A link is what takes a name without replacing; mv -n serves file systems that have none.
new_file() {
    wanted=$folder/$1
    shift
    there "$wanted" && return
    "$@" "$making/new" >/dev/null || die "$wanted could not be made."
    ln -T "$making/new" "$wanted" 2>/dev/null || mv -nT "$making/new" "$wanted" || :
    there "$wanted" || die "$wanted could not be made."
    rm -f "$making/new"
}

# Brings the folder to where the program can start in it.
prepare() {
    umask 077
    mkdir -p "$folder/temp/Search" || die "The folder for your records could not be made: $folder"
    making=$(mktemp -d "$folder/.making.XXXXXX") || die "The folder for your records cannot be written to: $folder"
    trap 'rm -rf "$making"' EXIT
    trap 'exit 129' HUP
    trap 'exit 130' INT
    trap 'exit 143' TERM
    if ! cmp -s "$installed/Tolmark" "$folder/Tolmark"; then
        cp "$installed/Tolmark" "$making/program" || die "The program could not be copied to $folder"
        mv -fT "$making/program" "$folder/Tolmark" || die "The program in $folder could not be replaced."
    fi
    new_file TIPOFDAY.TXT cp "$share/TIPOFDAY.TXT"
    new_file Tolmark.mdb "$tool" "$contents"
}

name=tolmark contents=create
case "$#:${1-}" in
0:) ;;
1:--sample) name=tolmark-sample contents=sample ;;
1:-h | 1:--help) usage && exit ;;
1:--version) echo "Tolmark @PROJECT_VERSION@" && exit ;;
*) usage >&2 && exit 2 ;;
esac

prefix=$(dirname "$(dirname "$(readlink -f "$0")")")
installed=$prefix/libexec/tolmark
share=$prefix/share/tolmark
tool=$prefix/bin/tolmark-datafile
folder=$(data_home)/$name
[ "$folder" != "/$name" ] || die "You have no home folder, and XDG_DATA_HOME names none."

(prepare) || exit
[ -x "$folder/Tolmark" ] || die "Programs may not be started from $folder"
exec "$folder/Tolmark"
