# Building a preset with little noise. Sourced by bash.

# Object files in the compiler cache serve every copy of the tree, wherever it lies.
export CCACHE_BASEDIR="${CCACHE_BASEDIR:-$root}"
export CCACHE_NOHASHDIR="${CCACHE_NOHASHDIR:-1}"
# With precompiled headers the cache works only so.
export CCACHE_SLOPPINESS="${CCACHE_SLOPPINESS:-pch_defines,time_macros}"

# showProgress TITLE: eats ninja's lines and shows the count of steps on a terminal.
showProgress() {
    local line announced=
    while IFS= read -r line; do
        if [[ $line == *"Re-checking globbed"* || ! $line =~ ^\[([0-9]+)/([0-9]+)\] ]]; then
            continue
        fi
        if [[ -t 2 ]]; then
            printf '\r%s: %s of %s ' "$1" "${BASH_REMATCH[1]}" "${BASH_REMATCH[2]}" >&2
        elif [[ -z $announced ]]; then
            echo "$1: ${BASH_REMATCH[2]} steps" >&2
        fi
        announced=1
    done
    if [[ -n $announced && -t 2 ]]; then
        printf '\r\033[K' >&2
    fi
}

# configurePreset PRESET [cmake options...]: below $root; when it fails, prints what was said.
configurePreset() {
    local preset=$1
    shift
    local log status=0
    log="$(mktemp)"
    if ! (cd "$root" && cmake --preset "$preset" "$@") > "$log" 2>&1; then
        status=1
        cat "$log" >&2
        echo "Configuring $preset failed." >&2
    fi
    rm -f "$log"
    return "$status"
}

# buildPreset PRESET TARGET [cmake options...]: configures and builds below $root; when a tool
# fails, prints what it said from the first failure on and gives its status.
buildPreset() {
    local preset=$1 target=$2
    shift 2
    configurePreset "$preset" "$@" || return 1
    local log status
    log="$(mktemp)"
    (cd "$root" && cmake --build --preset "$preset" --target "$target" \
        --parallel "$(nproc)") 2>&1 | tee "$log" | showProgress "Building $preset"
    status=${PIPESTATUS[0]}
    if [[ $status -ne 0 ]]; then
        if grep -q '^FAILED' "$log"; then
            sed -n '/^FAILED/,$p' "$log" >&2
        else
            cat "$log" >&2
        fi
        echo "Building $preset failed." >&2
    fi
    rm -f "$log"
    return "$status"
}
