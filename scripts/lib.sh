# Shared set-up for the project's scripts: installs what a fresh Debian 12
# machine lacks (without prompts) and configures the build trees.
ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
JOBS=${JOBS:-$(nproc)}

NATIVE_PACKAGES="cmake make g++ pkg-config libgtest-dev libgmock-dev libbenchmark-dev
  libpcre2-dev libicu-dev libxml2-dev libpugixml-dev unicode-data python3"
WINDOWS_PACKAGES="g++-mingw-w64-x86-64 wine64 xvfb xauth imagemagick x11-apps"
FUZZ_PACKAGES="clang libclang-rt-14-dev"

ensure_packages() {
  local missing=()
  for p in "$@"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "ok installed" || missing+=("$p")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "installing: ${missing[*]}"
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo env DEBIAN_FRONTEND=noninteractive apt-get update -qq
  $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "${missing[@]}"
}

configure_native() {
  cmake -S "$ROOT" -B "$ROOT/build/native" -DCMAKE_BUILD_TYPE=Release
}

configure_windows() {
  cmake -S "$ROOT" -B "$ROOT/build/windows" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$ROOT/cmake/mingw-w64.cmake"
}

configure_fuzz() {
  CC=clang CXX=clang++ cmake -S "$ROOT" -B "$ROOT/build/fuzz" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DVULIB_FUZZ=ON
}
