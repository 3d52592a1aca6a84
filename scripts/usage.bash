# Read by the other scripts, before anything else.

# takes PATTERN ARGUMENT …: asked for help, says what stands at the head of the script and ends; says it as well, and ends
# with 2, where an argument is none that the extended regular expression describes.
takes() {
    local pattern=$1 argument
    for argument in "${@:2}"; do
        if [[ $argument == -h || $argument == --help ]]; then
            usage
            exit
        elif [[ ! $argument =~ ^($pattern)$ ]]; then
            {
                echo "unknown: $argument"
                usage
            } >&2
            exit 2
        fi
    done
}

usage() { sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$0"; }
