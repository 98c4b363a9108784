# Sourced by run, test and .ci/run: installs what is missing from Debian's packages and configures a preset.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

build_packages=(cmake ninja-build clang mold ccache python3 qt6-base-dev qt6-svg-dev qt6-webengine-dev libsqlite3-dev libexpat1-dev
    libpugixml-dev p7zip-full fonts-dejavu-core)
test_packages=(libgtest-dev libgmock-dev qt6-declarative-dev)
check_packages=(clang-format clang-tidy libclang-rt-14-dev xvfb xauth chromium chromium-driver
    python3-selenium tidy)

install_missing() {
    local missing=()
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    local as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    "${as_root[@]}" apt-get update -qq
    DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET [TARGET ..]
build() {
    local preset=$1
    shift
    cmake --preset "$preset" -S "$root" >/dev/null
    local targets=()
    [ $# -gt 0 ] && targets=(--target "$@")
    (cd "$root" && cmake --build --preset "$preset" "${targets[@]}")
}
