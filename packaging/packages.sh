# The Debian 12 packages that Orvik Menu needs, in one place, and the installing of those that are missing.
# Sourced by ./run, ./test and packaging/build-packages.

packaging=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# The file managers that there is a module for, by their packages' names.
mapfile -t file_managers < <(sed -n 's/^Package: orvik-menu-//p' "$packaging/debian/control")

packages_build=(
  cmake
  g++
  gettext
  libarchive-dev
  libexpat1-dev
  libglib2.0-dev
  libjpeg-dev
  ninja-build
  nlohmann-json3-dev
  qt6-base-dev
  qt6-base-dev-tools
  qt6-l10n-tools
  libqt6opengl6-dev
  libsystemd-dev
  libvips-dev
  libxxhash-dev
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

# What makes packages of it all.
packages_packaging=(
  build-essential
  debhelper
)

packages_packaging_check=(
  lintian
)

# What the panel uses at run time beside the libraries that it is built with.
packages_panel=(
  breeze-icon-theme
  fonts-inter
  libgdk-pixbuf2.0-bin
  libimage-exiftool-perl
  libqt6svg6
  libvips42
  qt6-translations-l10n
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
  appstream
  dbus
  desktop-file-utils
  fish
  libgtest-dev
  locales
  man-db
  zsh
)

packages_style=(
  clang-format
  clang-tidy
)

packages_tests_desktop=(
  at-spi2-core
  dbus-x11
  gir1.2-gtk-3.0
  grim
  libglib2.0-bin
  nemo
  python3-dbus
  python3-gi
  python3-pyatspi
  sway
  util-linux
  xclip
  xdg-desktop-portal
  xdg-desktop-portal-gtk
)

# What the pictures of file managers need: shadows.
packages_pictures=(
  xcompmgr
)

packages_fuzz=(
  clang
  libclang-rt-dev
  llvm
)

packages_bench=(
  fdupes
  findimagedupes
  jdupes
  libbenchmark-dev
  libvips-tools
  libxcb1-dev
  rdfind
  rmlint
)

is_installed() {
  [ "$(dpkg-query -W -f '${db:Status-Abbrev}' "$1" 2>/dev/null)" = "ii " ]
}

# apt_get ARGUMENT...: as root. Asks nothing, and says little.
apt_get() {
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -y "$@"
}

# apt_install ARGUMENT...: A machine that has never fetched the package lists, or whose lists are old, fetches them and
# tries again.
apt_install() {
  apt_get install "$@" >/dev/null 2>&1 && return
  apt_get update >&2 && apt_get install "$@" >&2
}

# need_root WHAT COMMAND: says which command root is needed for where nobody here can become root.
need_root() {
  [ "$(id -u)" -eq 0 ] || command -v sudo >/dev/null || {
    echo "$1, and without sudo only root can do that:" >&2
    echo "  $2" >&2
    return 1
  }
}

# install_packages WHY PACKAGE...: installs those that are missing and says which. Nothing is done, and nothing is
# said, when all are there.
install_packages() {
  local why=$1 missing=() package
  shift
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return

  need_root "These packages have to be installed" "apt-get install ${missing[*]}" || return
  echo "Installing ${why}: ${missing[*]}" >&2
  apt_install --no-install-recommends "${missing[@]}"
}
