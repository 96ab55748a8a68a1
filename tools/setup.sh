# Installs what is missing on a Debian machine, by package name. Sourced by ./run and ./check from the project's root.
packages="g++ cmake ninja-build ccache mold pkg-config libsqlite3-dev sqlite3 libsodium-dev libxlsxwriter-dev libhunspell-dev hunspell-en-us zlib1g-dev
  qt6-base-dev libqt6svg6-dev qt6-declarative-dev libgl-dev fonts-dejavu-core $more_packages"

missing=""
for package in $packages; do
  [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing="$missing $package"
done
if [ -n "$missing" ]; then
  as_root=""
  [ "$(id -u)" = 0 ] || as_root=sudo
  echo "Installing:$missing"
  export DEBIAN_FRONTEND=noninteractive
  $as_root apt-get update -qq
  # shellcheck disable=SC2086
  $as_root apt-get install -y -qq --no-install-recommends $missing >/dev/null
fi

jobs=$(nproc)
export CCACHE_MAXSIZE=2G
