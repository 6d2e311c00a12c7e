# Sourced by scripts that run one stage after the other: tells at the end, a failed one too, how long each took.
# A script that calls another one hands ORV_STAGES on, the file that both write to.

stages_began="$SECONDS"
stage_name=
if [ -z "${ORV_STAGES:-}" ]; then
    ORV_STAGES="$(mktemp)"
    export ORV_STAGES
    # The outermost script tells.
    trap 'stage_status=$?; stage_end; stages_tell; exit "$stage_status"' EXIT
else
    trap 'stage_status=$?; stage_end; exit "$stage_status"' EXIT
fi

stage_end() {
    [ -z "$stage_name" ] || printf '%6d s  %s\n' $((SECONDS - stage_began)) "$stage_name" >>"$ORV_STAGES"
    stage_name=
}

stages_tell() {
    printf '\n-- seconds of each stage\n'
    cat "$ORV_STAGES"
    printf '%6d s  all\n' $((SECONDS - stages_began))
    rm -f "$ORV_STAGES"
}

# stage NAME: ends the stage before and begins this one.
stage() {
    stage_end
    stage_name="$1"
    stage_began="$SECONDS"
    printf '\n-- %s\n' "$1"
}
