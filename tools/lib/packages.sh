# shellcheck shell=bash
# Installs Debian packages that are missing. Source this file:
#
#   . "$root/tools/lib/packages.sh"
#   need_packages cmake ninja-build
#
# Says what it installs, and nothing when nothing is missing. Works as root and, for
# other users, through sudo. Where there is no dpkg it only names the packages and goes on.

# What the stages of tools/test and the other tools need.
# locales: a test makes locales with other encodings than UTF-8.
quor_build_packages=(cmake ninja-build g++ pkg-config libgtest-dev python3 binutils locales)
# Packages are made, and what is installed for editors and desktops is tried.
quor_share_packages=(dpkg-dev libxml2-utils shared-mime-info)
# The command's argument parser and JSON, and the browser in which a test opens its page.
quor_cli_packages=(libcli11-dev nlohmann-json3-dev)
quor_browser_packages=(chromium)
quor_clang_packages=(clang libclang-rt-dev llvm)
quor_windows_packages=(g++-mingw-w64-x86-64-posix)
quor_format_packages=(clang-format-14 python3)
quor_tidy_packages=(clang-tidy-14)
quor_bench_packages=(libbenchmark-dev python3)
quor_bench_peer_packages=(libglib2.0-dev libboost-dev libboost-program-options-dev libboost-serialization-dev
	libcereal-dev libicu-dev qtbase5-dev libexpat1-dev libxml2-dev)
quor_docs_packages=(doxygen)
quor_valgrind_packages=(valgrind)

quor_apt_updated=

_quor_package_installed() {
	[ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

_quor_apt_get() {
	local as_root=()
	if [ "$(id -u)" -ne 0 ]; then
		as_root=(sudo)
	fi
	"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
		apt-get -qq -o DPkg::Lock::Timeout=600 -o APT::Cmd::Disable-Script-Warning=true "$@" </dev/null
}

_quor_apt_update() {
	if [ -z "$quor_apt_updated" ]; then
		echo "packages: reading the package lists (apt-get update)"
		_quor_apt_get update || return 1
		quor_apt_updated=yes
	fi
}

# need_packages PACKAGE...
# Returns non-zero, after saying why, when a package can't be installed.
need_packages() {
	local package missing=()
	if ! command -v dpkg-query >/dev/null; then
		echo "packages: this is no Debian system; make sure that it has what these give: $*" >&2
		return 0
	fi
	for package in "$@"; do
		_quor_package_installed "$package" || missing+=("$package")
	done
	[ "${#missing[@]}" -eq 0 ] && return 0
	if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
		echo "packages: missing and can't be installed without root or sudo: ${missing[*]}" >&2
		return 1
	fi
	# Fresh machines come without package lists.
	for package in "${missing[@]}"; do
		if ! apt-cache show --no-all-versions "$package" >/dev/null 2>&1; then
			_quor_apt_update || return 1
			break
		fi
	done
	echo "packages: installing ${missing[*]}"
	if ! _quor_apt_get install -y --no-install-recommends "${missing[@]}" >/dev/null; then
		# Lists that are too old name files that are gone.
		[ -z "$quor_apt_updated" ] && _quor_apt_update &&
			_quor_apt_get install -y --no-install-recommends "${missing[@]}" >/dev/null || {
			echo "packages: could not install ${missing[*]}" >&2
			return 1
		}
	fi
}
