# shellcheck shell=bash disable=SC2034  # the lists are read by who sources this
# Sourced by run.sh, test.sh and the other scripts: installs the Debian packages that are missing. A
# second run only looks. Nothing here needs more than a fresh Debian 12.

build_packages=(
    g++ cmake ninja-build ccache
    python3 cmark-gfm
    qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-documentation-tools libcups2-dev nlohmann-json3-dev
    libqpdf-dev libzip-dev pkg-config liborcus-dev libxxhash-dev
)
run_packages=(
    fonts-liberation fonts-dejavu-core libqt6svg6 libqt6help6 libqt6sql6-sqlite
    libqt6printsupport6 qt6-translations-l10n
)
# For the Debian package: its word-processor module, its dependencies and checks of its files.
package_packages=(libreoffice-dev dpkg-dev file)
test_packages=(
    git clang libclang-rt-14-dev clang-format-14 clang-tidy-14 shellcheck libgtest-dev
    libbenchmark-dev libcminpack-dev python3 python3-jsonschema
    xvfb xdotool xauth x11-utils x11-apps x11-xkb-utils openbox icewm imagemagick
    poppler-utils unzip cups cups-client cups-filters time parallel
    libreoffice-writer-nogui locales
    lintian desktop-file-utils appstream man-db
    "${package_packages[@]}"
)
# For tests/mutants.py and tests/coverage.sh.
proof_packages=(clang llvm-14 libclang1-14 libclang-common-14-dev python3-clang-14)
# For the fuzzers, and for the tests of ./test.sh --long.
fuzz_packages=(clang libclang-rt-14-dev)
long_test_packages=("${fuzz_packages[@]}" "${proof_packages[@]}" debootstrap gcovr)

# Says what begins now, and when.
step() {
    echo "[$(date +%H:%M:%S)] $*"
}

# As the superuser: directly, or by sudo. Ends with 127 where there is no sudo.
as_superuser() {
    if ((EUID == 0)); then
        "$@"
    else
        sudo "$@"
    fi
}

# Installs those of the named packages that are not there. Who may not install gets the line for
# the administrator.
install_missing() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed \
            || missing+=("$package")
    done
    ((${#missing[@]})) || return 0
    step "Installing ${#missing[@]} packages of Debian and what they need"
    if ((EUID != 0)) && ! command -v sudo >/dev/null; then
        ask_the_administrator "There is no sudo here to install them." "${missing[@]}"
        return 1
    fi
    local progress=()
    [[ -t 1 ]] && progress=(-o Dpkg::Progress-Fancy=1)
    if ! as_superuser apt-get update -q \
        || ! as_superuser env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -q --no-install-recommends "${progress[@]}" "${missing[@]}"; then
        ask_the_administrator "They could not be installed." "${missing[@]}"
        return 1
    fi
}

# The line that installs the packages, on standard error.
ask_the_administrator() {
    local why=$1
    shift
    cat >&2 <<END
$why Ask the administrator of this machine to run this line once, then start again:

apt-get update && apt-get install -y --no-install-recommends $*

END
}

# Configures once and builds a preset.
build_preset() {
    local preset=$1
    shift
    step "Building build/$preset"
    [[ -f build/$preset/build.ninja ]] || cmake --preset "$preset" "$@"
    cmake --build --preset "$preset"
}
