# Shared by the scripts that build packages, which source it from the top folder.
# shellcheck shell=sh

# Lets all that bears a date bear that of the last commit, or the one that is set, so that the same
# sources give the same packages.
set_source_date() {
  SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || date +%s)}
  QT_RCC_SOURCE_DATE_OVERRIDE=$SOURCE_DATE_EPOCH
  export SOURCE_DATE_EPOCH QT_RCC_SOURCE_DATE_OVERRIDE
}

# Prints the version of the program, which CMakeLists.txt has.
read_version() {
  sed -n 's/^project(Quilla VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt
}

# Installs what is built in this folder into the new folder $1 in it, all of it with the date set.
stage() {
  rm -rf "$1"
  cmake --install . --prefix "$1" --strip >/dev/null
  find "$1" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +
}
