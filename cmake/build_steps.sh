# Sourced by ./run and ./test, which set pipefail: builds, and says what is built, how far it is, and how long it took.

# build_with_progress LOG PRESET [TARGET...]: the whole output goes to LOG, and to the terminal where it fails.
build_with_progress() {
    local log="$1" preset="$2" started=$SECONDS
    shift 2
    mkdir -p "$(dirname "$log")"
    echo "Configuring build/$preset"
    cmake --preset "$preset" >"$log" 2>&1 || { cat "$log" && return 1; }
    if ! NINJA_STATUS='[%f/%t] ' cmake --build "build/$preset" ${1:+--target "$@"} 2>&1 | tee -a "$log" | tenths_of_steps "$preset"; then
        grep -v '^\[[0-9]*/[0-9]*\] ' "$log"
        return 1
    fi
    echo "Built build/$preset in $((SECONDS - started)) s"
}

# A line for each tenth of the steps, instead of one for each step.
tenths_of_steps() {
    local line step=0 last=-1 status='^\[([0-9]+)/([0-9]+)\]'
    while IFS= read -r line; do
        [[ "$line" =~ $status ]] || continue
        step=$((BASH_REMATCH[1] * 10 / BASH_REMATCH[2]))
        [ "$step" -eq "$last" ] && continue
        last=$step
        echo "Building $1: ${BASH_REMATCH[1]} of ${BASH_REMATCH[2]} steps"
    done
}
