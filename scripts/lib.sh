# Shared set-up for the project's scripts: installs what a fresh Debian 12
# machine lacks (without prompts) and configures the build trees.
ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
JOBS=${JOBS:-$(nproc)}

NATIVE_PACKAGES="cmake make g++ pkg-config libgtest-dev libgmock-dev libbenchmark-dev
  libpcre2-dev libicu-dev libxml2-dev libpugixml-dev unicode-data python3 perl-doc"
WINDOWS_PACKAGES="g++-mingw-w64-x86-64 wine64 xvfb xauth imagemagick x11-apps xdotool
  libz-mingw-w64-dev"
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

# The build trees are the presets of CMakePresets.json.
configure_native() { (cd "$ROOT" && cmake --preset native); }
configure_windows() { (cd "$ROOT" && cmake --preset windows); }
configure_fuzz() { (cd "$ROOT" && cmake --preset fuzz); }
configure_asan() { (cd "$ROOT" && cmake --preset asan); }
