# shellcheck shell=bash disable=SC2034  # the lists are read by who sources this
# Sourced by run.sh and test.sh: installs the Debian packages that are missing. A second run only
# looks. Nothing here needs more than a fresh Debian 12.

build_packages=(
    g++ cmake ninja-build ccache
    qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-documentation-tools libcups2-dev nlohmann-json3-dev
)
run_packages=(
    fonts-liberation libqt6svg6 libqt6help6 libqt6sql6-sqlite libqt6printsupport6 qt6-translations-l10n
)
test_packages=(
    git clang libclang-rt-14-dev clang-format-14 clang-tidy-14 shellcheck libgtest-dev
    libbenchmark-dev python3
    xvfb xdotool xauth x11-utils x11-apps x11-xkb-utils openbox imagemagick
    fonts-dejavu-core poppler-utils cups cups-client cups-filters time parallel
    libreoffice-writer-nogui libreoffice-dev locales
    dpkg-dev file lintian desktop-file-utils appstream man-db
)
# For the tests of ./test.sh --long.
long_test_packages=(debootstrap gcovr)

# Installs those of the named packages that are not there.
install_missing() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed \
            || missing+=("$package")
    done
    ((${#missing[@]})) || return 0
    echo "Installing: ${missing[*]}"
    local as_root=()
    ((EUID == 0)) || as_root=(sudo)
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Configures once and builds a preset.
build_preset() {
    local preset=$1
    shift
    [[ -f build/$preset/build.ninja ]] || cmake --preset "$preset" "$@"
    cmake --build --preset "$preset"
}
