#!/bin/bash
# The demo on a real X display (Xvfb with a window manager), typed into with
# real key events through the X server, as a person at the keyboard would:
# a wrong bank account gives the error box and nothing else, Enter answers it;
# "*" in the quantity opens the calculator, Escape closes it.
#   realdisplay.sh DEMO
set -u
demo=$1
for tool in Xvfb openbox xdotool; do
  command -v "$tool" > /dev/null || { echo "FAIL: $tool is missing (xvfb openbox xdotool)"; exit 1; }
done

work=$(mktemp -d)
pids=()
finish() {
  for pid in "${pids[@]}"; do kill "$pid" 2> /dev/null; done
  for pid in "${pids[@]}"; do wait "$pid" 2> /dev/null; done
  rm -rf "$work"
}
trap finish EXIT
# The names of the windows now shown, one a line.
windows() { xdotool search --onlyvisible --name '.' getwindowname %@ 2> /dev/null | sort; }
fail() { echo "FAIL: $*"; echo "windows: $(windows | tr '\n' '|')"; exit 1; }

# A display number of its own: the server picks a free one and says which.
Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp 3> "$work/display" 2> "$work/xvfb.log" &
pids+=($!)
for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.1; done
[ -s "$work/display" ] || fail "Xvfb did not start: $(cat "$work/xvfb.log")"
export DISPLAY=":$(head -n1 "$work/display")"
unset QT_QPA_PLATFORM WAYLAND_DISPLAY
# A runtime folder of its own, so that no other copy of the demo counts as running.
export XDG_RUNTIME_DIR="$work/runtime"
mkdir -m 700 "$XDG_RUNTIME_DIR"
openbox > "$work/openbox.log" 2>&1 &
pids+=($!)
# The demo starts once the window manager runs: a window mapped while openbox
# takes over the screen can stay unviewable.
for _ in $(seq 100); do xdotool get_desktop > /dev/null 2>&1 && break; sleep 0.1; done
xdotool get_desktop > /dev/null 2>&1 || fail "openbox did not start: $(cat "$work/openbox.log")"
"$demo" --system-dir "$work" > "$work/demo.log" 2>&1 &
pids+=($!)

# Waits up to thirty seconds for a shown window whose name matches (or for
# it to go): a loaded machine starts the demo slowly.
wait_for() {
  for _ in $(seq 300); do windows | grep -q -- "$1" && return 0; sleep 0.1; done
  return 1
}
wait_gone() {
  for _ in $(seq 300); do windows | grep -q -- "$1" || return 0; sleep 0.1; done
  return 1
}
keys() { xdotool key --delay 60 "$@"; }

wait_for 'Factuur' || fail "the invoice window did not appear ($(cat "$work/demo.log"))"
xdotool search --onlyvisible --name 'Factuur' windowactivate --sync
before=$(windows)

# Name, VAT number, bank account: a wrong account and Tab.
keys Tab Tab
xdotool type --delay 40 '123-4567890-12'
keys Tab
wait_for '^Fout !$' || fail "no error box after a wrong bank account"
# The box stays alone: no notice about a missing sound, nothing else.
for _ in $(seq 10); do
  shown=$(comm -13 <(echo "$before") <(windows))
  [ "$shown" = "Fout !" ] || fail "expected only the error box, found: $shown"
  sleep 0.1
done
keys Return
wait_gone '^Fout !$' || fail "Enter did not answer the error box"

# On through the national number, invoice number, date, time, article and
# description to the quantity.
keys Tab Tab Tab Tab Tab Tab
xdotool type --delay 40 '12,5*'
wait_for 'Calculator' || fail "\"*\" in the quantity did not open the calculator"
keys Escape
wait_gone 'Calculator' || fail "Escape did not close the calculator"
echo "PASS"
