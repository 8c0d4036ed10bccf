#!/usr/bin/env bash
# Installs the built package on a fresh Debian 12 that holds nothing but its dependencies, and works
# there as an ordinary user: the batch companion writes a report as PDF, the program shows its form
# on a screen of this machine.
#     fresh_machine.sh BUILD_FOLDER [FRESH_ROOT]
# Needs root (or sudo) and the network: packages come from where apt of this machine has them. The
# root is made anew in a temporary folder; one that is named is kept for the next run.
set -euo pipefail
build=$(readlink -f "$1")
if ((EUID != 0)); then
    exec sudo "$0" "$build" "${@:2}"
fi
package=$(ls "$build"/package/ferna_*.deb)
work=$(mktemp -d)
base=${2:-$work/base}
root=$work/root
screen=

finish() {
    [[ -z $screen ]] || kill "$screen" 2>/dev/null || true
    rm -rf --one-file-system "$work"
}
trap finish EXIT

fail() {
    echo "fresh_machine: $*" >&2
    exit 1
}

# A command in the fresh system: with its own /proc, which goes with the command.
inside() {
    # shellcheck disable=SC2016 # the inner shell expands them
    unshare --mount --pid --fork --kill-child --propagation private \
        sh -c 'root=$1; shift; mount -t proc proc "$root/proc" && exec chroot "$root" "$@"' \
        sh "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 "$@"
}

as_user() {
    inside setpriv --reuid inzynier --regid inzynier --clear-groups \
        env HOME=/home/inzynier DISPLAY="${display:-}" sh -c "cd && $1"
}

# The archive that apt of this machine uses for Debian itself.
archive() {
    # shellcheck disable=SC2016 # names of apt's own
    apt-get indextargets --format '$(REPO_URI) $(CODENAME) $(COMPONENT)' \
        'Created-By: Packages' | awk '$2 == "bookworm" && $3 == "main" { print $1; exit }'
}

make_base() {
    local from
    from=$(archive)
    [[ -n $from ]] || fail "apt of this machine knows no archive of Debian 12"
    echo "Making a fresh Debian 12"
    debootstrap --variant=minbase bookworm "$base.new" "$from" >"$work/debootstrap.log" 2>&1 \
        || { tail -20 "$work/debootstrap.log" >&2; fail "debootstrap failed"; }
    rm -rf "$base.new/var/cache/apt/archives/"*.deb
    mv "$base.new" "$base"
}

[[ -d $base/usr ]] || make_base
cp -a "$base" "$root"
cp /etc/resolv.conf /etc/hosts "$root/etc/" 2>/dev/null || true
printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d" # no services are started
chmod +x "$root/usr/sbin/policy-rc.d"

echo "Installing $(basename "$package") with its dependencies alone"
cp "$package" "$root/tmp/ferna.deb"
inside apt-get update -qq
inside env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends /tmp/ferna.deb >"$work/install.log" 2>&1 \
    || { tail -20 "$work/install.log" >&2; fail "the package cannot be installed"; }
inside useradd --create-home inzynier
installed_before=$(cd "$root/usr" && find . -xdev -newer "$root/tmp/ferna.deb" -type f | sort)
! as_user 'test -w /usr/bin -o -w /usr/share/ferna' || fail "the user may write in /usr"

echo "Computing the sample task"
as_user 'ferna-wsad --dziesietny , --wynik wynik.json --raport raport.pdf --raport raport.txt \
    /usr/share/ferna/przyklady/slup-hali.json'
home=$root/home/inzynier
pdftotext -layout "$home/raport.pdf" "$work/raport.txt"
for text in 'Hala magazynowa, oś B' 'Długość płyty x = 600 mm' 'wsp. docisku min. ωu = 1,012'; do
    grep -q "$text" "$work/raport.txt" || { cat "$work/raport.txt"; fail "no \"$text\" in the PDF"; }
done
pdffonts "$home/raport.pdf" | grep -q Liberation || fail "the PDF is not set in Liberation"
# A document is refused with words, not with a crash, where there is no word processor.
if as_user 'ferna-wsad --raport raport.odt --wynik wynik.json /usr/share/ferna/przyklady/slup-hali.json' \
    2>"$work/document.log"; then
    fail "a document came out without a word processor"
fi
grep -q 'libreoffice-writer' "$work/document.log" \
    || { cat "$work/document.log" >&2; fail "nothing said what writes documents"; }

echo "Starting the program on a screen"
exec 3<>"$work/display"
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 &
screen=$!
for _ in {1..100}; do
    [[ -s $work/display ]] && break
    sleep 0.1
done
display=:$(<"$work/display")
as_user 'timeout 60 ferna' 2>"$work/ferna.log" &
program=$!
window=
for _ in {1..150}; do
    window=$(DISPLAY=$display xdotool search --onlyvisible --name '^Ferna 2005 Pr - zakotwienie' \
        2>/dev/null || true)
    [[ -n $window ]] && break
    sleep 0.2
done
[[ -n $window ]] || { cat "$work/ferna.log" >&2; fail "the main form did not appear"; }
sleep 1
DISPLAY=$display xdotool windowfocus "$window" key alt+k # ends the program, which saves the task
wait "$program" || { cat "$work/ferna.log" >&2; fail "the program did not end well"; }
for file in Ferna.cfg Ferpl.txt Ferogo2.bmp Ferna.qch W_X.txt dostarczone.sha256; do
    [[ -s $home/.local/share/ferna/$file ]] || fail "no $file in the user's data folder"
done

installed_after=$(cd "$root/usr" && find . -xdev -newer "$root/tmp/ferna.deb" -type f | sort)
[[ $installed_before == "$installed_after" ]] || fail "something was written in /usr"
echo "Removing the package"
inside apt-get purge -y -qq ferna >/dev/null 2>&1
! ls -d "$root"/usr/bin/ferna* "$root"/usr/share/ferna "$root"/usr/lib/ferna 2>/dev/null \
    || fail "the package left files behind"
echo "The package works on a fresh Debian 12."
