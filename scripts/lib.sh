# Shared by run and test: what to install, how to build. Sourced, with the project's root as the
# current folder.

# ccache lives outside the tree, so that a fresh clone builds from what another one compiled.
export CMAKE_COLOR_DIAGNOSTICS=${CMAKE_COLOR_DIAGNOSTICS:-ON}

build_packages=(
  build-essential cmake ninja-build ccache pkg-config
  qtbase5-dev libqt5websockets5-dev libqt5svg5-dev qttools5-dev qttools5-dev-tools
  qttranslations5-l10n
  libssl-dev libquazip1-qt5-dev libzxcvbn-dev libpsl-dev libx11-dev libxext-dev libxss-dev libxtst-dev
)
display_packages=(xvfb)
extension_packages=(zip)
# Servers of their own for the C++ tests, and the tools that their archives are held against.
test_packages=(xvfb dbus-daemon faketime zip unzip p7zip-full python3)
windows_packages=(g++-mingw-w64-x86-64-posix wine64 xvfb)
check_packages=(mmdebstrap lintian desktop-file-utils appstream man-db iproute2 xvfb openbox xdotool maim x11-utils)
browser_packages=(chromium firefox-esr xvfb openbox trayer xdotool maim)

# install_packages NAME...: installs those that are missing, and says so.
install_packages() {
  local missing=() name
  for name in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Abbrev}' "$name" 2>/dev/null | cut -c1-2)" = ii ] ||
      missing+=("$name")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local sudo=()
  [ "$(id -u)" -eq 0 ] || sudo=(sudo)
  echo "Installing: ${missing[*]}"
  "${sudo[@]}" apt-get update -qq
  "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Node and npm may come from elsewhere than Debian: only a missing command is installed.
install_node() {
  command -v node >/dev/null || install_packages nodejs
  command -v npm >/dev/null || install_packages npm
}

# build PRESET: configures when needed and builds. Quiet when there is nothing to do.
build() {
  local log=build/$1.log
  mkdir -p build
  if [ ! -f "build/$1/build.ninja" ]; then
    cmake --preset "$1" >"$log" 2>&1 || { cat "$log"; return 1; }
  fi
  if ! cmake --build --preset "$1" >"$log" 2>&1; then
    grep -vE '^\[[0-9]+/[0-9]+\] (Building|Linking|Automatic|Generating)' "$log" || cat "$log"
    return 1
  fi
  echo "Built $1: $(tail -n 1 "$log")"
}

# start_display: gives DISPLAY to what follows; a virtual screen lives as long as this script.
start_display() {
  local pipe
  pipe=$(mktemp -u)
  mkfifo "$pipe"
  Xvfb -displayfd 3 -screen 0 1366x900x24 -nolisten tcp 3>"$pipe" 2>/dev/null &
  display_pid=$!
  trap 'kill $display_pid 2>/dev/null' EXIT
  DISPLAY=:$(cat "$pipe")
  rm -f "$pipe"
  export DISPLAY
}

# start_wine: a folder of its own for Windows programs, and a display, as long as this script lives.
wine=/usr/lib/wine/wine64
start_wine() {
  export WINEPREFIX WINEDEBUG=-all WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe='
  start_display
  WINEPREFIX=$(mktemp -d)
  trap '/usr/lib/wine/wineserver64 -k; kill $display_pid 2>/dev/null; rm -rf "$WINEPREFIX"' EXIT
  timeout 120 "$wine" wineboot --init >/dev/null 2>&1
}
