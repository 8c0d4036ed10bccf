#!/usr/bin/env bash
# Builds the Debian package of a built folder and looks at it: its fields, its files, what Debian's
# own checkers say, the manual pages against the options, and whether the programs work from where
# the package puts them.
#     package.sh BUILD_FOLDER
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source=$PWD
build=$(readlink -f "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0

fail() {
    echo "package: $*" >&2
    failures=$((failures + 1))
}

rm -rf "$build/package"
(cd "$build" && cpack -G DEB >"$work/cpack.log" 2>&1) || { cat "$work/cpack.log"; exit 1; }
version=$("$build/bin/ferna-wsad" --version | cut -d' ' -f2)
package=$build/package/ferna_${version}_$(dpkg --print-architecture).deb
[[ -f $package ]] || { fail "no $(basename "$package")"; exit 1; }
root=$work/root
dpkg-deb -x "$package" "$root"
usr=$root/usr

# Fields.
field() { dpkg-deb -f "$package" "$1"; }
for needed in libqt6widgets6 libqt6help6 libqt6sql6-sqlite libcups2 fonts-liberation \
    fonts-dejavu-core; do
    [[ $(field Depends) == *"$needed"* ]] || fail "does not depend on $needed"
done
[[ $(field Depends) != *@(office|uno-)* ]] || fail "the word processor is a dependency"
[[ $(field Recommends) == *"libreoffice-writer | libreoffice-writer-nogui"* ]] \
    || fail "the word processor is not recommended"

# Files.
for file in bin/{ferna,ferna-wsad,Wyd_drk} lib/ferna/libferna_{paper,writer}.so \
    share/ferna/{Ferna.qch,Ferogo2.bmp,rysgb52.bmp,przyklady/slup-hali.json} \
    share/ferna/schemat/{zadanie,wynik,zakres,dobor,nosnosc}.schema.json \
    share/doc/ferna/{en/first-report.html,pl/pierwszy-raport.html,pictures/results.png} \
    share/bash-completion/completions/{ferna-wsad,Wyd_drk} \
    share/icons/hicolor/scalable/apps/ferna.svg share/doc/ferna/copyright; do
    [[ -s $usr/$file ]] || fail "no /usr/$file"
done
for file in Ferpl.txt Ferp2.txt Fergb.txt Ferfr.txt Ferge.txt Ferna.cfg W_X.txt; do
    cmp "data/$file" "$usr/share/ferna/$file" || fail "$file is not as delivered"
done
grep -q 'not chosen a licence' "$usr/share/doc/ferna/copyright" || fail "copyright"
zcat "$usr/share/doc/ferna/changelog.gz" | head -1 | grep -qF "ferna ($version) " \
    || fail "the changelog is not that of version $version"
for file in "$usr"/share/doc/ferna/changelog.gz "$usr"/share/man/{,pl/}man1/*.gz; do
    [[ $(od -An -tx1 -j3 -N5 "$file" | tr -d ' ') == 0000000000 ]] \
        || fail "$(basename "$file") carries a name or a time"
done

# Debian's checkers. What remains of them is told in packaging/README.md.
lintian --allow-root --fail-on error,warning "$package" >"$work/lintian.log" 2>&1 \
    || fail "lintian: $(<"$work/lintian.log")"
desktop-file-validate "$usr/share/applications/ferna.desktop" || fail "desktop entry"
appstreamcli validate --no-net --no-color "$usr/share/metainfo/ferna.metainfo.xml" \
    >"$work/appstream.log" 2>&1 || true
complaints=$(sed -nE 's/^[EW]: [^ ]+ ([a-z-]+).*/\1/p' "$work/appstream.log" | sort | tr '\n' ' ')
[[ $complaints == "cid-desktopapp-is-not-rdns metadata-license-missing " ]] \
    || fail "metadata: $(<"$work/appstream.log")"

# Manual pages: the options of --help, all of them and no others.
long_options() { grep -oE -- '--[a-z]+' "$1" | sort -u; }
for program in ferna ferna-wsad Wyd_drk; do
    "$usr/bin/$program" --help >"$work/help"
    for page in "$usr"/share/man/{,pl/}man1/"$program".1.gz; do
        LC_ALL=C.UTF-8 MANWIDTH=100 man --warnings -l "$page" >"$work/page" 2>"$work/warnings"
        [[ ! -s $work/warnings ]] || fail "$page: $(<"$work/warnings")"
        # Roff writes a minus as \-.
        zcat "$page" | sed 's/\\-/-/g' >"$work/source"
        diff <(long_options "$work/help") <(long_options "$work/source") >"$work/options" \
            || fail "options of $page and --help differ: $(<"$work/options")"
    done
done

# Completion of the shell: every option of --help, and files of the right endings.
mkdir -p "$work/typed/folder"
touch "$work/typed/task.json" "$work/typed/report.pdf"
# completed WORD ...: what bash offers for the last word of a call.
completed() {
    bash -O extglob -c 'compopt() { :; }
        source "$0/$1"
        COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)) COMPREPLY=()
        "_ferna_${1/ferna-/}"
        printf "%s\n" "${COMPREPLY[@]}"' "$usr/share/bash-completion/completions" "$@" | sort
}
for program in ferna-wsad Wyd_drk; do
    "$usr/bin/$program" --help >"$work/help"
    diff <(long_options "$work/help") <(completed "$program" --) \
        || fail "completion of $program and --help differ"
done
[[ $(cd "$work/typed" && completed ferna-wsad "" | xargs) == "folder task.json" ]] \
    || fail "completion of a task"
[[ $(cd "$work/typed" && completed ferna-wsad --raport rep) == report.pdf ]] \
    || fail "completion of a report"

# The programs from where the package puts them.
export LC_ALL=C.UTF-8 HOME=$work/home XDG_DATA_HOME=$work/home/data XDG_RUNTIME_DIR=$work/home
mkdir -m 700 "$HOME"
cd "$HOME"
sample=$usr/share/ferna/przyklady/slup-hali.json
if timeout 120 "$usr/bin/ferna-wsad" --raport raport.pdf --raport raport.odt --raport raport.doc --wynik wynik.json \
    "$sample"; then
    pdftotext raport.pdf - | grep -q 'Długość płyty x = 600 mm' || fail "the PDF lacks the report's text"
    [[ -s raport.odt && -s raport.doc ]] || fail "no document"
else
    fail "the companion does not compute the sample"
fi
ended=0
timeout 5 "$usr/bin/ferna" -platform offscreen >ferna.log 2>&1 || ended=$?
[[ $ended == 124 ]] || fail "the program ended with $ended: $(<ferna.log)"
cmp "$source/data/Ferpl.txt" data/ferna/Ferpl.txt || fail "the user's data folder was not filled"

((failures == 0)) || exit 1
echo "$(basename "$package") is well"
