#!/usr/bin/env bash
# Formatting, scripts and clang-tidy, each with the version that Debian 12 pins.
#   tools/lint.sh            all of it; clang-tidy on the sources changed since the last commit on main
#   tools/lint.sh --last     clang-tidy on the sources of the last commit, as CI does it; a commit of more
#                            than forty is left to --all, so that CI stays quick
#   tools/lint.sh --all      clang-tidy on every source (half an hour on two busy cores)
#   tools/lint.sh --quick    without clang-tidy, as test.sh does it
# clang-tidy reads what the build with clang++ knows, where each source is compiled alone: build the
# preset clang-release first, for the headers that are made of the forms.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source tools/files.sh
mode=${1:-changed}
build=build/clang-release

scripts() {
    files_of_the_tree '*.sh' .ci/run 'packaging/completion/*'
}

python_syntax() {
    files_of_the_tree '*.py' | python3 -c '
import ast, sys
for path in sys.stdin.read().split("\n")[:-1]:
    with open(path, encoding="utf-8") as file:
        ast.parse(file.read(), path)'
}

# Of the last commit; nothing where it is the first that this clone holds.
sources_of_last_commit() {
    local files
    has_history && git rev-parse -q --verify HEAD~1 >/dev/null || return 0
    files=$(git diff --name-only HEAD~1 -- src | sed 's/\.h$/.cpp/' | sort -u)
    if (($(wc -l <<<"$files") > 40)); then
        echo "lint: the last commit changes more than forty sources, clang-tidy is left out" >&2
    else
        echo "$files"
    fi
}

# A change is what the branch adds to main and what is not committed; on main, the last commit.
changed_sources() {
    local base
    has_history || {
        echo "lint: this folder has no history, so no changes; --all takes every source" >&2
        exit 2
    }
    base=$(git merge-base HEAD main 2>/dev/null || git rev-parse HEAD)
    [[ $base != "$(git rev-parse HEAD)" ]] || base=$(git rev-parse -q --verify HEAD~1 || git rev-parse HEAD)
    { git diff --name-only "$base" -- src; git ls-files --others --exclude-standard -- src; } \
        | sed 's/\.h$/.cpp/' | sort -u
}

# The module of the word processor needs headers that only its own target makes.
tidy() {
    [[ -f $build/compile_commands.json ]] || {
        echo "lint: no $build/compile_commands.json, build the preset clang-release first" >&2
        exit 2
    }
    local file files=()
    while read -r file; do
        [[ $file == *.cpp && -f $file && $file != src/desktop/writer/* ]] && files+=("$file")
    done
    ((${#files[@]})) || return 0
    echo "clang-tidy: ${#files[@]} files"
    printf '%s\0' "${files[@]}" \
        | nice -n 10 xargs -0 -P2 -n4 clang-tidy-14 -p "$build" --quiet 2> >(grep -v 'warnings generated\|Suppressed\|^Use -' >&2)
}

tools/format.sh --check
scripts | xargs shellcheck --severity=style --external-sources
python_syntax
case $mode in
    --quick) ;;
    --all) files_of_the_tree 'src/*' | tidy ;;
    changed) changed_sources | tidy ;;
    --last) sources_of_last_commit | tidy ;;
    *) sed -n '2,9s/^# //p' "$0" >&2; exit 2 ;;
esac
echo "lint: nothing found"
