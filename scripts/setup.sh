# Shared by ./run and ./test: installing what is missing, formatting, building.

build_packages=(g++ cmake ninja-build ccache qt6-base-dev qt6-svg-dev qt6-qpa-plugins libgl-dev
    libcli11-dev nlohmann-json3-dev libeigen3-dev libgmock-dev fonts-liberation fontconfig)
test_packages=(clang-format python3-jsonschema xvfb xdotool xclip poppler-utils cups zsh fish ngspice)
fuzz_packages=(clang libclang-rt-dev)
coverage_packages=(gcovr)
valgrind_packages=(valgrind)
package_packages=(debootstrap dpkg-dev file lintian xvfb xdotool)
tidy_packages=(clang-tidy-22)
portable_packages=(clang-22 libc++-22-dev libc++abi-22-dev googletest)

# Installs the Debian packages of the named groups that are not there yet.
need() {
    local wanted=() missing=() group name
    for group in "$@"; do
        case $group in
            build) wanted+=("${build_packages[@]}") ;;
            test) wanted+=("${test_packages[@]}") ;;
            fuzz) wanted+=("${fuzz_packages[@]}") ;;
            coverage) wanted+=("${coverage_packages[@]}") ;;
            valgrind) wanted+=("${valgrind_packages[@]}") ;;
            package) wanted+=("${package_packages[@]}") ;;
            tidy) wanted+=("${tidy_packages[@]}") ;;
            portable) wanted+=("${portable_packages[@]}") ;;
        esac
    done
    for name in "${wanted[@]}"; do
        dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q 'ok installed' || missing+=("$name")
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "These packages are missing, and there is no sudo to install them: ${missing[*]}" >&2
            exit 1
        }
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        "${missing[@]}" >/dev/null
}

# Fails, naming the files, when the sources are not formatted.
check_format() {
    git ls-files -z '*.cpp' '*.h' | xargs -0 -r clang-format --dry-run --Werror
}

# Configures one preset and builds it, or only the named targets of it; warnings are errors.
#   configure_and_build PRESET [TARGET...]
configure_and_build() {
    local preset=$1
    shift
    if [ ! -f "build/$preset/build.ninja" ] || [ ${#configure_options[@]} -gt 0 ]; then
        cmake --preset "$preset" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "${configure_options[@]}" >/dev/null
    fi
    cmake --build --preset "$preset" ${1:+--target "$@"} -- --quiet
}
configure_options=()
