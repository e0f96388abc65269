#!/usr/bin/env bash
# Runs a test program on a virtual X server of its own, started here and
# stopped after it. Exits 77 (skipped) when no X server can be started.
set -u
if ! command -v Xvfb >/dev/null; then
  echo "SKIPPED: Xvfb is not installed (Debian: xvfb), so the desktop windows are not tested"
  exit 77
fi
work=$(mktemp -d)
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$work/display" 2>"$work/log" &
server=$!
trap 'kill $server 2>/dev/null; wait $server 2>/dev/null; rm -rf "$work"' EXIT
for _ in $(seq 200); do
  [ -s "$work/display" ] && break
  kill -0 $server 2>/dev/null || break
  sleep 0.05
done
display=$(head -n 1 "$work/display" 2>/dev/null)
if [ -z "$display" ]; then
  echo "SKIPPED: no X server could be started: $(tail -n 3 "$work/log")"
  exit 77
fi
unset WAYLAND_DISPLAY
# The toolkit's files (recently used files and the like) stay in here.
mkdir -p "$work/home" && chmod 700 "$work/home"
export XDG_DATA_HOME="$work/home" XDG_CONFIG_HOME="$work/home" XDG_CACHE_HOME="$work/home" XDG_RUNTIME_DIR="$work/home"
DISPLAY=":$display" GDK_BACKEND=x11 GSK_RENDERER=cairo GTK_A11Y=none NO_AT_BRIDGE=1 GSETTINGS_BACKEND=memory \
  ASAN_OPTIONS="${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0" "$@"
