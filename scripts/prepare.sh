# Sourced by ./run and ./test: installs the Debian packages that are missing, configures and builds a preset.

packages=(
  g++ cmake ninja-build ccache
  qt6-base-dev qt6-serialport-dev libgl1-mesa-dev libx11-dev dbus-daemon
  libgstreamer1.0-dev gstreamer1.0-plugins-base gstreamer1.0-plugins-good gstreamer1.0-plugins-bad gstreamer1.0-alsa timgm6mb-soundfont
  libmpg123-dev libcomedi-dev libsystemd-dev libsqlite3-dev libgtest-dev libbenchmark-dev
  fonts-dejavu-core
)

install_missing() {
  local missing=() package
  for package in "${packages[@]}"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  local root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "These packages are missing, and there is neither root nor sudo: ${missing[*]}" >&2; return 1; }
    root=(sudo)
  fi
  echo "Installing: ${missing[*]}"
  "${root[@]}" apt-get update -q
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
}

# build PRESET [TARGET...]
build() {
  local preset=$1
  shift
  if [ ! -f "build/$preset/build.ninja" ]; then
    cmake --preset "$preset"
  fi
  cmake --build "build/$preset" ${@:+--target "$@"}
}
