# Shared by ./run, ./test and tools/tidy, which source it from the top folder: installs the
# Debian packages of packages.txt that are missing, and configures the presets.
# shellcheck shell=sh

# The packages that install_packages wanted and did not get, with a blank before each.
missing_packages=''

# Prints the packages of the groups $@, one a line.
list_packages() {
  while read -r package group _; do
    case "$package" in
      '' | '#'*) continue ;;
    esac
    case " $* " in
      *" $group "*) echo "$package" ;;
    esac
  done <packaging/packages.txt
}

is_installed() {
  case "$(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null)" in
    installed*) return 0 ;;
  esac
  return 1
}

# Sets missing_packages to those of the groups $@ that are not installed; fails if there are any.
# Where there is no dpkg nobody knows, and the build itself will tell.
look_for_packages() {
  missing_packages=''
  command -v dpkg-query >/dev/null || return 0
  for package in $(list_packages "$@"); do
    is_installed "$package" || missing_packages="$missing_packages $package"
  done
  [ -z "$missing_packages" ]
}

# Runs apt-get as root: directly, or with sudo, which may ask for the password at a terminal only.
apt_get() {
  if [ "$(id -u)" = 0 ]; then
    DEBIAN_FRONTEND=noninteractive apt-get "$@"
  elif ! command -v sudo >/dev/null; then
    return 1
  elif [ -t 0 ]; then
    sudo env DEBIAN_FRONTEND=noninteractive apt-get "$@"
  else
    sudo -n env DEBIAN_FRONTEND=noninteractive apt-get "$@"
  fi
}

install_quietly() {
  apt_get install --quiet=2 --yes --no-install-recommends "$@" >/dev/null
}

# Installs what is missing of the packages in the groups $@. Fails, and leaves the rest in
# missing_packages, if some could not be installed.
install_packages() {
  look_for_packages "$@" && return 0
  command -v apt-get >/dev/null || return 1
  echo "Installing:$missing_packages"
  apt_get update --quiet=2 || return 1
  # One package that cannot be had must not keep back the others.
  # shellcheck disable=SC2086  # a list of words
  install_quietly $missing_packages || for package in $missing_packages; do
    install_quietly "$package" || true
  done
  look_for_packages "$@"
}

# Says which packages are missing, if any are.
tell_missing_packages() {
  [ -z "$missing_packages" ] || echo "Missing, and could not be installed:$missing_packages"
}
