# The Debian 12 packages that Orvik Menu needs, in one place, and the installing of those that are missing.
# Sourced by ./run and ./test.

packages_build=(
  cmake
  g++
  libarchive-dev
  libexpat1-dev
  ninja-build
  qt6-base-dev
  qt6-base-dev-tools
  libqt6opengl6-dev
  libsystemd-dev
  pkg-config
  python3
  qt6-svg-dev
)

# The headers of what the bridges to file managers are loaded by; each is built where its own are there.
packages_bridges=(
  extra-cmake-modules
  libcaja-extension-dev
  libgtk-4-dev
  libkf5kio-dev
  libnautilus-extension-dev
  libnemo-extension-dev
  libthunarx-3-dev
)

# What the panel uses at run time beside the libraries that it is built with.
packages_panel=(
  breeze-icon-theme
  fonts-inter
  libqt6svg6
  qt6-wayland
  xdg-utils
)

# A display and a session bus where the machine has none.
packages_virtual_display=(
  dbus
  imagemagick
  openbox
  x11-utils
  xauth
  xdotool
  xvfb
)

packages_tests=(
  dbus
  libgtest-dev
)

packages_style=(
  clang-format
  clang-tidy
)

packages_tests_desktop=(
  at-spi2-core
  dbus-x11
  libglib2.0-bin
  python3-dbus
  python3-gi
  python3-pyatspi
  util-linux
  xdg-desktop-portal
  xdg-desktop-portal-gtk
)

packages_fuzz=(
  clang
  libclang-rt-dev
  llvm
)

packages_bench=(
  libbenchmark-dev
  libglib2.0-dev
  libxcb1-dev
)

# install_packages WHY PACKAGE...: installs those that are missing and says which. Nothing is done, and nothing is
# said, when all are there.
install_packages() {
  local why=$1 missing=() package
  shift
  for package in "$@"; do
    [ "$(dpkg-query -W -f '${db:Status-Abbrev}' "$package" 2>/dev/null)" = "ii " ] || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return

  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "These packages are missing, and without sudo only root can install them:" >&2
      echo "  apt-get install ${missing[*]}" >&2
      return 1
    fi
    as_root=(sudo)
  fi
  echo "Installing ${why}: ${missing[*]}" >&2
  local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -y)
  # A machine that has never fetched the package lists, or whose lists are old, fetches them and tries again.
  "${apt[@]}" install --no-install-recommends "${missing[@]}" >/dev/null 2>&1 && return
  "${apt[@]}" update >&2 && "${apt[@]}" install --no-install-recommends "${missing[@]}" >&2
}
