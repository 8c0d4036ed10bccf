#!/usr/bin/env bash
# Installs the built package on a fresh Debian 12 that holds nothing but its dependencies, and works
# there as an ordinary user: the batch companion writes a report as PDF, the program shows its form
# on a screen of this machine.
#     fresh_package.sh BUILD_FOLDER [FRESH_ROOT]
# Needs root (or sudo) and the network: packages come from where apt of this machine has them. The
# root is made anew in a temporary folder; one that is named is kept for the next run.
set -euo pipefail
((EUID == 0)) || exec sudo "$0" "$@"
build=$(readlink -f "$1")
base=${2:+$(readlink -f "$2")}
cd "$(dirname "$(readlink -f "$0")")/.."
source tests/fresh_system.sh
package=$(ls "$build"/package/ferna_*.deb)
work=$(mktemp -d)
base=${base:-$work/base}
root=$work/root
screen=

finish() {
    [[ -z $screen ]] || kill "$screen" 2>/dev/null || true
    rm -rf --one-file-system "$work"
}
trap finish EXIT

as_user() {
    inside_as inzynier "$root" env LC_ALL=C.UTF-8 DISPLAY="${display:-}" sh -c "$1"
}

# The map of what the program of that name in the fresh system has in its memory: fonts, for one.
memory_of() {
    local process
    for process in /proc/[0-9]*; do
        [[ $(cat "$process/comm" 2>/dev/null) == "$1" && $(readlink "$process/root") == "$root" ]] \
            && echo "$process/maps"
    done
}

make_base "$base"
make_system "$base" "$root"

echo "Installing $(basename "$package") with its dependencies alone"
cp "$package" "$root/tmp/ferna.deb"
inside "$root" apt-get update -qq
inside "$root" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends /tmp/ferna.deb >"$work/install.log" 2>&1 \
    || { tail -20 "$work/install.log" >&2; fail "the package cannot be installed"; }
inside "$root" useradd --create-home inzynier
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
if as_user 'ferna-wsad --raport raport.doc --wynik wynik.json /usr/share/ferna/przyklady/slup-hali.json' \
    2>"$work/document.log"; then
    fail "a document came out without a word processor"
fi
grep -q 'libreoffice-writer' "$work/document.log" \
    || { cat "$work/document.log" >&2; fail "nothing said what writes documents"; }

echo "Starting the program on a screen"
exec 3<>"$work/display"
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset >/dev/null 2>&1 &
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
grep -q /DejaVuSans.ttf "$(memory_of ferna)" || fail "the windows are not set in DejaVu Sans"
DISPLAY=$display xdotool windowfocus "$window" key alt+k # ends the program, which saves the task
wait "$program" || { cat "$work/ferna.log" >&2; fail "the program did not end well"; }
for file in Ferna.cfg Ferpl.txt Ferogo2.bmp Ferna.qch W_X.txt dostarczone.sha256; do
    [[ -s $home/.local/share/ferna/$file ]] || fail "no $file in the user's data folder"
done

installed_after=$(cd "$root/usr" && find . -xdev -newer "$root/tmp/ferna.deb" -type f | sort)
[[ $installed_before == "$installed_after" ]] || fail "something was written in /usr"
echo "Removing the package"
inside "$root" apt-get purge -y -qq ferna >/dev/null 2>&1
! ls -d "$root"/usr/bin/ferna* "$root"/usr/share/ferna "$root"/usr/lib/ferna 2>/dev/null \
    || fail "the package left files behind"
echo "The package works on a fresh Debian 12."
