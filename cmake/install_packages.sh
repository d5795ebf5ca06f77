# Sourced by ./run, ./test and tests/fuzz/run: installs what is missing of some parts of packages.txt.

# packages_of LIST PART...: the packages that stand under these headings.
packages_of() {
    local list="$1" line part=''
    shift
    while read -r line; do
        case "$line" in
        '' | '#'*) ;;
        '['*']') part="${line:1:-1}" ;;
        *) case " $* " in *" $part "*) echo "$line" ;; esac ;;
        esac
    done <"$list"
}

# install_missing_packages LIST PART...
install_missing_packages() {
    local missing=() package
    for package in $(packages_of "$@"); do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    local as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    echo "Installing: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}
