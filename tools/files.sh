# shellcheck shell=bash
# Sourced by the scripts that go through the sources.

# True where the tree is a work tree of git that the user may read: not an unpacked archive, not a
# folder inside the work tree of something else.
has_history() {
    [[ $(git rev-parse --show-toplevel 2>/dev/null) == "$PWD" ]]
}

# The files of the tree, one a line, that match one of the patterns. An unpacked
# archive has no list of its files: then they are those that lie there, apart from what was built.
files_of_the_tree() {
    if has_history; then
        git ls-files --cached --others --exclude-standard -- "$@"
        return
    fi
    local pattern match=()
    for pattern in "$@"; do
        match+=(-o -path "./$pattern")
    done
    find . "(" -path ./build -o -path ./.git -o -name __pycache__ ")" -prune -o -type f \
        "(" "${match[@]:1}" ")" -print | sed 's,^\./,,' | sort
}
