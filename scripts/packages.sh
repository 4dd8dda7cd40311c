# SPDX-License-Identifier: MIT
# Installs missing packages of scripts/packages.txt. Source it after common.sh, from the root folder.

# wanted COLUMN GROUP...: the entries in one column (2: apt, 3: brew) of these groups.
wanted() {
    column=$1
    shift
    awk -v column="$column" -v groups=" $* " \
        '!/^#/ && NF && index(groups, " " $1 " ") && $column != "-" { print $column }' scripts/packages.txt
}

# apt_present ENTRY: whether one of the entry's alternatives is installed.
apt_present() {
    for alternative in $(echo "$1" | tr '|' ' '); do
        case $alternative in
            command:*) have "${alternative#command:}" && return 0 ;;
            *) [ "$(dpkg-query -W -f '${db:Status-Status}' "$alternative" 2>/dev/null)" = installed ] && return 0 ;;
        esac
    done
    return 1
}

# apt_choose ENTRY: the first alternative that this release offers.
apt_choose() {
    for alternative in $(echo "$1" | tr '|' ' '); do
        case $alternative in
            command:*) continue ;;
        esac
        if [ -n "$(LC_ALL=C apt-cache policy "$alternative" | sed -n 's/^  Candidate: \([^(]\)/\1/p')" ]; then
            echo "$alternative"
            return 0
        fi
    done
    return 1
}

# readable ENTRY...: the entries for display, package names only.
readable() { echo "$*" | sed 's/command:[^ |]*|//g; s/|/ or /g; s/^ *//'; }

# Root needs no sudo; without a terminal, sudo must not ask for a password.
as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif [ -t 0 ]; then
        sudo "$@"
    else
        sudo -n "$@"
    fi
}

apt_get() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -y -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0 "$@" \
        >>build/packages.log 2>&1
}

install_with_apt() {
    missing=
    for entry in $(wanted 2 "$@"); do
        apt_present "$entry" || missing="$missing $entry"
    done
    if [ -z "$missing" ]; then
        note "All there already."
        return
    fi

    if [ "$(id -u)" != 0 ]; then
        have sudo || fail "packages are missing and there is no sudo; let an administrator install:" \
            "$(readable "$missing")"
        note "Installing needs sudo, which may want your password."
    fi
    mkdir -p build
    : >build/packages.log
    note "Reading the package lists (the details go to build/packages.log)."
    apt_get update || note "Not every list could be read; going on with those that are here."
    chosen=
    for entry in $missing; do
        name=$(apt_choose "$entry") || fail "no package list here offers $(readable "$entry"). Is there a network?" \
            "Zelk is made for Debian 12 and Ubuntu 24.04; this is $(. /etc/os-release && echo "$PRETTY_NAME")."
        chosen="$chosen $name"
    done
    note "Installing$chosen; a first time takes a few minutes."
    # shellcheck disable=SC2086  # a list of names
    if ! apt_get install --no-install-recommends $chosen; then
        tail -n 5 build/packages.log >&2
        fail "apt-get could not install these; its last words stand above, all of them in build/packages.log."
    fi
}

install_with_brew() {
    missing=
    for formula in $(wanted 3 "$@"); do
        case " ${leave_out:-} " in *" $formula "*) continue ;; esac
        [ -d "$(brew --prefix)/opt/$formula" ] || missing="$missing $formula"
    done
    if [ -z "$missing" ]; then
        note "All there already."
        return
    fi
    note "Installing$missing with Homebrew; Qt alone takes some minutes."
    # shellcheck disable=SC2086  # a list of names
    HOMEBREW_NO_INSTALL_CLEANUP=1 brew install $missing || fail "Homebrew could not install these; its reason stands above."
}

# install_packages GROUP...: installs the missing packages of these groups; on a Mac without those in $leave_out.
install_packages() {
    say "Looking for missing packages"
    if on_mac; then
        xcode-select -p >/dev/null 2>&1 || fail "the compiler is missing; run: xcode-select --install"
        have brew || fail "Homebrew is missing; install it first, then run this again."
        install_with_brew "$@"
    elif have apt-get; then
        install_with_apt "$@"
    else
        note "This system has no apt-get, so nothing is installed here; scripts/packages.txt names what is needed."
    fi
}
