# Sourced by the scripts: running as root, apt with a retry, and the Wine
# environment every Windows program of ours runs in.

scripts_dir="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)"
repo_root="$(dirname "$scripts_dir")"

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# Whether the project's root (scripts/root32) is booted under QEMU rather than
# entered: where this machine executes 64-bit code only, or when
# KORPS_WINE32=guest asks for it.
root32_boots() { [ "${KORPS_WINE32:-}" = guest ] || ! "$scripts_dir/probe-i386"; }

# apt-get as RUNNER (as_root, or a chroot) runs it: waiting for the package
# lock rather than failing where the machine's own updates hold it.
apt_get() {
    local runner="$1"
    shift
    "$runner" env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=600 "$@"
}

# apt-get update, once more after a pause: a mirror mid-sync fails an index
# now and then. What is left broken, the install that follows reports.
apt_update() {
    apt_get "$1" update -qq || { sleep 5; apt_get "$1" update -qq; } || true
}

# run_wine 32|64 FOLDER PROGRAM [ARGS...]: runs PROGRAM under the Wine of
# that width that this file system has, in FOLDER, with WINEPREFIX from the
# environment or a prefix under build/ (made on first use), and a wineserver
# kept warm between programs. WINEDEBUG defaults to -all and
# WINEDLLOVERRIDES to mscoree,mshtml= (no Mono or Gecko prompts).
run_wine() {
    local bits="$1" folder="$2" loader
    shift 2
    case "$bits" in
        32) loader=/usr/lib/wine/wine; export WINEARCH=win32 ;;
        64) loader=/usr/lib/wine/wine64; export WINEARCH=win64 ;;
    esac
    [ -x "$loader" ] || { echo "wine$bits: $loader is missing (scripts/bootstrap)" >&2; return 2; }
    export WINELOADER="$loader" WINESERVER=/usr/lib/wine/wineserver
    export WINEPREFIX="${WINEPREFIX:-$repo_root/build/wine$bits-prefix}"
    export WINEDEBUG="${WINEDEBUG:--all}" WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml=}"
    mkdir -p "$(dirname "$WINEPREFIX")"
    (
        flock 9
        if [ ! -f "$WINEPREFIX/system.reg" ]; then
            "$loader" wineboot -i >/dev/null 2>&1 9>&- || true
            "$WINESERVER" -w 9>&- || true
            [ -f "$WINEPREFIX/system.reg" ] ||
                { echo "wine$bits: could not make the Wine prefix $WINEPREFIX" >&2; exit 2; }
        fi
        # A persistent server, warmed up with stdio detached: Wine's
        # background processes would otherwise hold the caller's output pipe
        # open. Where a server already runs, the first of these fails.
        "$WINESERVER" -p30 </dev/null >/dev/null 2>&1 9>&- || true
        "$loader" wineboot </dev/null >/dev/null 2>&1 9>&- || true
    ) 9>"$WINEPREFIX.lock" || return
    cd "$folder" && exec "$loader" "$@"
}
