# Debian packages that Vantore is built, run and tested with. Sourced by ./run and ./test.

build_packages="g++ cmake ninja-build pkg-config qt6-base-dev qt6-svg-dev qt6-charts-dev
    libqt6opengl6-dev fonts-liberation coinor-libcbc-dev zlib1g-dev libgmp-dev"
test_packages="ccache python3 python3-simpy3 libgtest-dev libbenchmark-dev liblemon-dev libboost-dev geographiclib-tools
    coinor-libclp-dev coinor-cbc libglpk-dev clang clang-format libclang-rt-dev xvfb xauth xdotool x11-utils openbox
    imagemagick poppler-utils procps"

# Installs those of the named packages that are missing, and says so.
install_missing() {
    missing=""
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "ok installed" || missing="$missing $package"
    done
    [ -z "$missing" ] && return 0
    echo "== Installing Debian packages:$missing"
    as_root=""
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages must be installed first, as root:$missing" >&2
            return 1
        fi
        as_root="sudo"
    fi
    $as_root apt-get update -qq
    # shellcheck disable=SC2086 # a list of words
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing
}

# Where ccache is installed, what one preset has compiled serves the next one, and another working copy.
use_compiler_cache() {
    command -v ccache >/dev/null || return 0
    export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache
    export CCACHE_BASEDIR="${CCACHE_BASEDIR:-$PWD}" CCACHE_NOHASHDIR=1
}

# Configures and builds a preset, with or without the tests (ON or OFF); further arguments go to the build.
build_preset() {
    preset=$1
    tests=$2
    shift 2
    log=$(mktemp)
    cmake --preset "$preset" -DBUILD_TESTING="$tests" >"$log" 2>&1 || { cat "$log"; rm -f "$log"; return 1; }
    rm -f "$log"
    cmake --build --preset "$preset" "$@"
}
