# Sourced by the tests of the terminal program.

failures=0

# wants CODE PATTERN NAME ARGUMENT...: runs the program; its exit code must be CODE and its output
# must hold a line that matches PATTERN, an extended regular expression. An empty PATTERN means that
# no output is wanted. Standard input is that of the call.
wants() {
    local code=$1 pattern=$2 name=$3
    shift 3
    "$KORVO_RUN" "$@" >output 2>&1
    local got=$?
    if [ $got -ne "$code" ]; then
        echo "$name: wanted exit code $code, got $got"
    elif [ -z "$pattern" ] && [ -s output ]; then
        echo "$name: wanted no output, got"
    elif [ -n "$pattern" ] && ! LC_ALL=C grep -aqE -- "$pattern" output; then
        echo "$name: wanted a line like '$pattern', got"
    else
        return
    fi
    head -n 3 output | cut -c 1-200
    failures=$((failures + 1))
}

# repeated COUNT TEXT: the text that many times, without line ends.
repeated() {
    yes -- "$2" | head -n "$1" | tr -d '\n'
}

# The end of each test: fails when something was not as wanted.
finish() {
    [ $failures -eq 0 ]
}
