# Functions for scripts that need Debian packages. Sourced by bash; needs nothing but a bare system.

packagesFile="$(dirname "${BASH_SOURCE[0]}")/packages.txt"

# missingPackages GROUP...: names of the packages of the groups that are not installed, a line each.
missingPackages() {
    local group package reason state
    while read -r group package reason; do
        case " $* " in
            *" $group "*) ;;
            *) continue ;;
        esac
        state="$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)"
        if [[ $state != installed ]]; then
            echo "$package"
        fi
    done < "$packagesFile"
}

# requirePackages GROUP...: installs what is missing; says why and gives 1 when that cannot be done.
requirePackages() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        echo "This is not a Debian system: the packages of setup/packages.txt are not checked." >&2
        return 0
    fi

    local missing
    mapfile -t missing < <(missingPackages "$@")
    if [[ ${#missing[@]} -eq 0 ]]; then
        return 0
    fi

    # A stale list of packages is enough for many an installation: only the second step decides.
    local steps="apt-get update -qq || true
        apt-get install -y -qq --no-install-recommends -o DPkg::Lock::Timeout=300 ${missing[*]}"
    local asRoot=()
    if [[ $EUID -ne 0 ]]; then
        asRoot=(sudo)
        if ! command -v sudo >/dev/null || { [[ ! -t 0 ]] && ! sudo -n true 2>/dev/null; }; then
            asRoot=()
        fi
    fi

    if [[ $EUID -eq 0 || ${#asRoot[@]} -gt 0 ]]; then
        echo "Installing: ${missing[*]}" >&2
        local log
        log="$(mktemp)"
        "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 sh -c "$steps" \
            < /dev/null > "$log" 2>&1 || tail -n 30 "$log" >&2
        rm -f "$log"
        mapfile -t missing < <(missingPackages "$@")
        if [[ ${#missing[@]} -eq 0 ]]; then
            return 0
        fi
    fi

    echo "Some packages are missing. Please run this as root and start again:" >&2
    echo "    apt-get update && apt-get install -y --no-install-recommends ${missing[*]}" >&2
    return 1
}
