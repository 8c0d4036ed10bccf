# shellcheck shell=bash
# Sourced by the tests that work in a bare Debian 12 made for them: what such a system is and how a
# command runs in it. Needs root and the network: packages come from where apt of this machine has
# them.

# Ends the test with these words.
fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# The archive that apt of this machine uses for Debian itself.
archive_of_debian() {
    # shellcheck disable=SC2016 # names of apt's own
    apt-get indextargets --format '$(REPO_URI) $(CODENAME) $(COMPONENT)' \
        'Created-By: Packages' | awk '$2 == "bookworm" && $3 == "main" { print $1; exit }'
}

# make_base FOLDER [PACKAGE ...]: the smallest Debian 12 and these packages; kept where it is there.
make_base() {
    local base=$1 from
    shift
    [[ ! -d $base/usr ]] || return 0
    from=$(archive_of_debian)
    [[ -n $from ]] || fail "apt of this machine knows no archive of Debian 12"
    echo "Making a fresh Debian 12"
    debootstrap --variant=minbase ${1:+--include="$(IFS=,; echo "$*")"} bookworm "$base.new" "$from" \
        >"$base.log" 2>&1 || { tail -20 "$base.log" >&2; fail "debootstrap failed"; }
    rm -rf "$base.new/var/cache/apt/archives/"*.deb "$base.log"
    mv "$base.new" "$base"
}

# make_system BASE ROOT: a copy of the base that finds the network as this machine does. No services
# are started in it.
make_system() {
    local base=$1 root=$2
    cp -a "$base" "$root"
    cp -L /etc/resolv.conf /etc/hosts "$root/etc/" 2>/dev/null || true
    rm -rf "$root"/etc/apt/sources.list*
    cp -a /etc/apt/sources.list* "$root/etc/apt/"
    apt-config dump | grep -E '^Acquire::(https?|Check-Valid-Until|Check-Date|Retries)\b' \
        >"$root/etc/apt/apt.conf.d/90network" || true
    printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d"
    chmod +x "$root/usr/sbin/policy-rc.d"
}

# The variables that tell programs of this machine how to reach the network.
network_environment() {
    env | grep -iE '^(https?|ftp|no)_proxy=' || true
}

# inside ROOT COMMAND ...: a command in that system as its superuser, with nothing of this machine's
# environment. Its first process takes no note of orphans, as in a container without an init.
inside() {
    local root=$1 network
    shift
    mapfile -t network < <(network_environment)
    # shellcheck disable=SC2016 # the inner shells expand them
    unshare --mount --pid --fork --kill-child --propagation private sh -ec '
        root=$1
        shift
        mount --bind "$root" "$root"
        mount -t proc proc "$root/proc"
        mount -t tmpfs -o mode=1777 tmpfs "$root/dev/shm"
        mount -t devpts -o newinstance,ptmxmode=0666 devpts "$root/dev/pts"
        [ ! -c "$root/dev/ptmx" ] || mount --bind "$root/dev/pts/ptmx" "$root/dev/ptmx"
        exec chroot "$root" "$@"' sh "$root" \
        perl -e 'my $child = fork // die; exec @ARGV or die if !$child; waitpid $child, 0;
                 exit($? & 127 ? 128 + ($? & 127) : $? >> 8)' \
        env -i PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
        HOME=/root USER=root LOGNAME=root "${network[@]}" "$@"
}

# inside_as USER ROOT COMMAND ...: the same as an ordinary user, in his home.
inside_as() {
    local user=$1 root=$2
    shift 2
    # shellcheck disable=SC2016 # the inner shell expands it
    inside "$root" setpriv --reuid "$user" --regid "$user" --init-groups \
        env PATH=/usr/local/bin:/usr/bin:/bin HOME="/home/$user" USER="$user" LOGNAME="$user" \
        sh -c 'cd && exec "$@"' sh "$@"
}
