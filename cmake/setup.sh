#!/usr/bin/env bash
# What ./run and ./test need on a Debian 12 machine, and the packages given: installs those that are missing.
set -euo pipefail

packages=(
  g++ cmake ninja-build ccache mold
  qt6-base-dev qt6-base-dev-tools qt6-svg-dev libqt6svg6 qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
  qt6-translations-l10n libgl-dev
  libfmt-dev libexpected-dev libcli11-dev libxml2-dev zlib1g-dev
  libgtest-dev libgmock-dev libbenchmark-dev locales
  fonts-dejavu-core
  "$@"
)
installed=$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "${packages[@]}" 2>/dev/null || true)
missing=()
for package in "${packages[@]}"; do
  grep -qx "installed $package" <<<"$installed" || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

echo "Installing: ${missing[*]}" >&2
as_root=()
if [ "$(id -u)" != 0 ]; then
  command -v sudo >/dev/null || { echo "Install these packages as root, then try again." >&2; exit 1; }
  as_root=(sudo)
fi
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq >&2 ||
  echo "The package lists could not be renewed; going on with the ones at hand." >&2
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
