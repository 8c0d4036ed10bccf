#!/usr/bin/env bash
# The first hour of a newcomer: the commands of the README, whole, in bare Debian 12 systems that hold
# git and nothing else, with nothing of this machine's environment: ./run.sh, packaging/build.sh and
# ./test.sh.
#     fresh_machine.sh [--base FOLDER] [--run-only] [root | user] ...
# root works in a clone. user works in an unpacked archive without history: first he may install
# nothing, and the administrator runs the line that ./run.sh tells him; then he has sudo. Times and
# sizes are told at the end, the transcripts lie in build/fresh/. A base that is named is kept for the
# next run. Needs root (or sudo) and the network.
set -euo pipefail
((EUID == 0)) || exec sudo "$0" "$@"
cd "$(dirname "$(readlink -f "$0")")/.."
source tools/setup.sh
source tools/files.sh
source tests/fresh_system.sh

base=
commands=(./run.sh packaging/build.sh ./test.sh)
who=()
while (($#)); do
    case $1 in
        --base) base=$2; shift ;;
        --run-only) commands=(./run.sh) ;;
        root | user) who+=("$1") ;;
        *) sed -n '5,10s/^# \{0,1\}//p' "$0" >&2; exit 2 ;;
    esac
    shift
done
((${#who[@]})) || who=(root user)
install_missing debootstrap git
work=$(mktemp -d)
trap 'rm -rf --one-file-system "$work"' EXIT
base=${base:-$work/base}
logs=build/fresh
mkdir -p "$logs"
summary=$logs/summary.txt
: >"$summary"

# The tree as a newcomer gets it.
deliver_tree() {
    local how=$1 to=$2
    if [[ $how == clone ]] && has_history; then
        git -c safe.directory='*' clone -q --no-local . "$to"
    elif has_history; then
        mkdir "$to"
        git archive HEAD | tar -x -C "$to"
    else
        mkdir "$to"
        files_of_the_tree '*' | tar -c -T - | tar -x -C "$to"
    fi
}

megabytes() {
    du -smx "$1" | cut -f1
}

# What apt said that it fetched, in all of a transcript.
downloaded() {
    sed -nE 's/^Need to get ([0-9.,]+ [kMG]?B)(\/[^ ]+ [kMG]?B)? of archives.*/\1/p' "$1" \
        | paste -sd+ | sed 's/+/ + /g'
}

# told WHO COMMAND TRANSCRIPT ROOT -- HOW ...: runs it, keeps what it says, and tells time and sizes.
told() {
    local name=$1 command=$2 log=$logs/$3 root=$4 begun=$SECONDS before status=0
    shift 5
    before=$(megabytes "$root")
    echo "$name: $command, transcript $log"
    "$@" >"$log" 2>&1 </dev/null || status=$?
    printf '%s: %s ended with %d after %d:%02d, downloads %s, %d MB of disk\n' "$name" "$command" \
        "$status" $(((SECONDS - begun) / 60)) $(((SECONDS - begun) % 60)) "$(downloaded "$log")" \
        $(($(megabytes "$root") - before)) | tee -a "$summary"
    ((status == 0)) || { tail -60 "$log" >&2; fail "$name: $command"; }
}

as_root() {
    local root=$work/root command
    # shellcheck disable=SC2016 # the inner shell expands it
    local in_tree=(inside "$root" sh -c 'cd /root/ferna && "$@"' sh)
    make_system "$base" "$root"
    deliver_tree clone "$root/root/ferna"
    for command in "${commands[@]}"; do
        told root "$command" "root-$(basename "$command").txt" "$root" -- \
            "${in_tree[@]}" "$command"
        after "$command" "$logs/root-$(basename "$command").txt" "${in_tree[@]}"
    done
    rm -rf --one-file-system "$root"
}

# after COMMAND TRANSCRIPT HOW ...: what must be so behind a command; HOW runs another one in the
# tree.
after() {
    local command=$1 log=$2
    shift 2
    case $command in
        ./run.sh) # without a display it leaves a report, says how to read it
            grep -q 'iconv -f cp1250 -t utf-8 build/raport/slup-hali.txt' "$log" \
                || fail "./run.sh does not say how to read its report"
            no_document libreoffice-dev "$@"
            ;;
        packaging/build.sh) # the word processor's libraries are there now, and no word processor
            [[ $("$@" sh -c 'dpkg-deb -c build/release/package/ferna_*.deb') \
                == */usr/lib/ferna/libferna_writer.so* ]] || fail "the package lacks its module"
            no_document libreoffice-writer "$@"
            ;;
    esac
}

# no_document PACKAGE HOW ...: a document is refused, and the words name the package that it takes.
no_document() {
    local wanted=$1 said
    shift
    said=$("$@" build/release/bin/ferna-wsad --raport build/raport/x.doc --wynik build/raport/x.json \
        data/przyklady/slup-hali.json 2>&1) && fail "a document came out without a word processor"
    [[ $said == *"$wanted"* ]] || fail "what writes documents is not told: $said"
}

as_user() {
    local root=$work/user line command
    # shellcheck disable=SC2016 # the inner shell expands it
    local in_tree=(inside_as inzynier "$root" sh -c 'cd ferna && "$@"' sh)
    make_system "$base" "$root"
    inside "$root" useradd --create-home --shell /bin/bash inzynier
    deliver_tree archive "$root/home/inzynier/ferna"
    chown -R --reference "$root/home/inzynier" "$root/home/inzynier/ferna"

    ! inside_as inzynier "$root" sh -c 'cd ferna && ./run.sh' >"$logs/user-refused.txt" 2>&1 \
        </dev/null || fail "./run.sh went on without what it needs"
    line=$(grep '^apt-get update' "$logs/user-refused.txt") \
        || { cat "$logs/user-refused.txt" >&2; fail "no line for the administrator"; }
    told administrator "the line that ./run.sh told" user-administrator.txt "$root" -- \
        inside "$root" sh -c "$line"
    told "user without sudo" ./run.sh user-run.sh.txt "$root" -- \
        "${in_tree[@]}" ./run.sh
    after ./run.sh "$logs/user-run.sh.txt" "${in_tree[@]}"

    inside "$root" apt-get install -y -qq --no-install-recommends sudo >/dev/null 2>&1
    echo 'inzynier ALL=(ALL) NOPASSWD: ALL' >"$root/etc/sudoers.d/inzynier"
    for command in "${commands[@]:1}"; do
        told "user with sudo" "$command" "user-$(basename "$command").txt" "$root" -- \
            "${in_tree[@]}" "$command"
        after "$command" "$logs/user-$(basename "$command").txt" "${in_tree[@]}"
    done
    rm -rf --one-file-system "$root"
}

make_base "$base" git
for one in "${who[@]}"; do
    "as_$one"
done
echo "The commands do on a bare Debian 12 what the README says:"
cat "$summary"
