#!/bin/bash
# Every C++ file is as the formatter leaves it, and no line of what people edit as code is longer
# than 100 characters.

cd "$KORVO_SOURCE" || exit 1
failures=0

# code PATTERN: names of the project's files that match, without what builds and editors have made.
code() {
    find . \( -path './build*' -o -path './.*' ! -path './.ci*' \) -prune -o \
        -regextype posix-extended -type f -regex "$1" -printf '%P\n' | sort
}

mapfile -t sources < <(code '.*\.(cpp|h)')
if [ ${#sources[@]} -lt 100 ]; then
    echo "only ${#sources[@]} C++ files found"
    exit 1
fi

# Versions of the formatter differ in what they do: this one is meant.
complaints=$(printf '%s\0' "${sources[@]}" |
    xargs -0 -P "$(nproc)" -n 16 clang-format-14 --dry-run -Werror --ferror-limit=1 2>&1)
if [ $? -ne 0 ]; then
    failures=1
    echo "$complaints" | grep error
    echo "put right by: clang-format-14 -i FILE"
fi

mapfile -t all < <(code '.*\.(cpp|h|cmake|sh|py)|.*/(CMakeLists\.txt|test|start|\.ci/run)')
if LC_ALL=C.UTF-8 grep -HnE '^.{101,}' "${all[@]}"; then
    failures=1
    echo "longer than 100 characters"
fi
exit $failures
