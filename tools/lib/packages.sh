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
# A compiler for each target comes on top of these.
quor_cross_packages=(cmake ninja-build pkg-config googletest python3)
quor_wine_packages=(wine wine64)
quor_format_packages=(clang-format-14 python3)
quor_tidy_packages=(clang-tidy-14)
quor_bench_packages=(libbenchmark-dev python3)
quor_bench_peer_packages=(libglib2.0-dev libboost-dev libboost-program-options-dev libboost-serialization-dev
	libcereal-dev libicu-dev qtbase5-dev libexpat1-dev libxml2-dev
	libfmt-dev libboost-locale-dev
	libpugixml-dev)
quor_docs_packages=(doxygen doxygen-awesome-css graphviz linkchecker python3 git)
quor_valgrind_packages=(valgrind)

quor_apt_updated=

_quor_package_installed() {
	[ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

_quor_as_root() {
	if [ "$(id -u)" -ne 0 ]; then
		sudo "$@"
	else
		"$@"
	fi
}

_quor_apt_get() {
	_quor_as_root env DEBIAN_FRONTEND=noninteractive \
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

# need_foreign_packages ARCHITECTURE PACKAGE...
# The same for packages of another architecture. It is added to the system only after a
# trial, with package lists of its own, has shown that the packages fit to what is installed.
# Returns non-zero, after saying why, when they don't; then all is as before.
need_foreign_packages() {
	local architecture=$1 package missing=() folder added='' code=0
	shift
	command -v dpkg-query >/dev/null || return 1
	for package in "$@"; do
		_quor_package_installed "$package:$architecture" || missing+=("$package:$architecture")
	done
	[ "${#missing[@]}" -eq 0 ] && return 0
	if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
		echo "packages: missing and can't be installed without root or sudo: ${missing[*]}" >&2
		return 1
	fi
	folder=$(mktemp -d)
	_quor_foreign_packages_fit "$folder" "$architecture" "${missing[@]}" || code=1
	rm -rf "$folder"
	if [ "$code" -ne 0 ]; then
		echo "packages: the package lists offer no ${missing[*]} that fit to this system" >&2
		return 1
	fi
	if ! dpkg --print-foreign-architectures | grep -qx "$architecture"; then
		_quor_as_root dpkg --add-architecture "$architecture" || return 1
		added=yes
		quor_apt_updated=
	fi
	echo "packages: installing ${missing[*]}"
	if _quor_apt_update && _quor_apt_get install -y --no-install-recommends "${missing[@]}" >/dev/null; then
		return 0
	fi
	echo "packages: could not install ${missing[*]}" >&2
	if [ -n "$added" ]; then
		_quor_as_root dpkg --remove-architecture "$architecture"
		quor_apt_updated=
		_quor_apt_update
	fi
	return 1
}

# _quor_foreign_packages_fit FOLDER ARCHITECTURE PACKAGE...
# Whether the packages could be installed without taking away anything, by lists that are
# read into the folder.
_quor_foreign_packages_fit() {
	local folder=$1 architecture=$2 trial
	shift 2
	mkdir -p "$folder/lists/partial" "$folder/cache/archives/partial"
	chmod -R a+rX "$folder"
	local options=(-o "APT::Architectures::=$(dpkg --print-architecture)" -o "APT::Architectures::=$architecture"
		-o "Dir::State::Lists=$folder/lists" -o "Dir::Cache=$folder/cache")
	echo "packages: trying whether $* can be installed"
	_quor_apt_get "${options[@]}" update >/dev/null 2>&1 || return 1
	trial=$(_quor_apt_get "${options[@]}" --simulate install --no-install-recommends "$@" 2>/dev/null) || return 1
	! grep -q '^Remv ' <<<"$trial"
}
