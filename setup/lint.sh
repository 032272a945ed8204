# Looking for bugs in sources without running them. Sourced by bash after packages.sh and build.sh.

# lintSources PART: clang-tidy over every source of the programs whose path holds PART, compiled as
# the release tree does it. What it looks for stands in .clang-tidy. Gives 1 when it finds
# something.
lintSources() {
    requirePackages build test lint || return 1
    configurePreset release -DKORVO_TESTS=ON || return 1

    local file files=()
    while IFS= read -r file; do
        file=${file#"$root"/}
        if [[ $file == @(lib|localConsole|main|modules|runner)/* && $file == *"$1"* ]]; then
            files+=("$root/$file")
        fi
    done < <(sed -nE 's/^ *"file": "(.*)",?$/\1/p' "$root/build/compile_commands.json" | sort -u)
    if [[ ${#files[@]} -eq 0 ]]; then
        echo "No source has $1 in its name." >&2
        return 1
    fi
    echo "Looking through ${#files[@]} sources" >&2

    # Clang need not know every warning and optimization of the compiler; how many warnings it has
    # not shown is of no interest.
    if ! printf '%s\0' "${files[@]}" | xargs -0 -n 1 -P "$(nproc)" clang-tidy-16 \
        -p "$root/build" --quiet --extra-arg=-Wno-unknown-warning-option \
        --extra-arg=-Wno-ignored-optimization-argument \
        2> >(grep -vE '^[0-9]+ warnings?( and [0-9]+ errors?)? generated\.$' >&2); then
        echo "Looking through the sources found something." >&2
        return 1
    fi
    echo "Nothing found." >&2
}
