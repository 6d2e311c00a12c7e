# Sourced by scripts that keep what they run quiet: a quiet minute looks like a hang.

# with_progress TELL COMMAND...: runs the command, and calls TELL every ten seconds meanwhile, which prints one line.
with_progress() {
    local tell="$1" status=0 teller
    shift
    (
        # The sleep may outlive its shell, and must not keep the output open.
        while sleep 10 >/dev/null 2>&1; do "$tell" || true; done
    ) &
    teller=$!
    # Also when the command is interrupted.
    # shellcheck disable=SC2064
    trap "kill $teller 2>/dev/null || true" EXIT
    "$@" || status=$?
    kill "$teller" 2>/dev/null || true
    wait "$teller" 2>/dev/null || true
    trap - EXIT
    return "$status"
}

# tell_ninja LOG: how far the last run of ninja in the log has come.
tell_ninja() {
    local steps
    steps="$(grep -aoE '^\[[0-9]+/[0-9]+\]' "$1" 2>/dev/null | tail -n 1 | tr -d '[]')"
    if [ -n "$steps" ]; then
        printf '   %s of %s steps done\n' "${steps%/*}" "${steps#*/}"
    else
        printf '   configuring\n'
    fi
}
