# shellcheck shell=bash disable=SC2034,SC2120 # names and arguments for the tests
# What the whole-program tests share: a home of its own, a virtual display of its own, a recorder without
# hardware, the window, and waiting for what is to come. A test sources it; ctest sets PROGRAMS, the
# folder of the built programs, and KEPT, a folder for the picture of a failure. Nothing is waited for
# by time alone: all waits look for their sign and end after WAIT_S seconds.
set -euo pipefail

WAIT_S=${WAIT_S:-90}
work=$(mktemp -d "${TMPDIR:-/tmp}/skeldon-program-XXXXXX")
test_name=$(basename "$0")
display_id=
recorder_id=
window_id=
main=
dialog=

at_end() {
  local status=$? id
  for id in $window_id $recorder_id $display_id; do
    kill "$id" 2>/dev/null || true
    wait "$id" 2>/dev/null || true
  done
  rm -rf "$work"
  exit "$status"
}
trap at_end EXIT
trap 'echo "$test_name: line $LINENO" >&2' ERR

fail() { # what
  echo "$test_name: $*" >&2
  if [ -n "${DISPLAY-}" ]; then
    echo "Windows there are:" >&2
    xdotool search --onlyvisible --class . getwindowname %@ >&2 2>/dev/null || true
    import -silent -window root "$KEPT/$test_name.png" && echo "Picture: $KEPT/$test_name.png" >&2
  fi
  tail -n 20 "$work"/*.log >&2 || true
  exit 1
}

wait_for() { # what, command: until it succeeds
  local what=$1 end=$((SECONDS + WAIT_S))
  shift
  until "$@"; do
    [ "$SECONDS" -lt "$end" ] || fail "$what did not come"
    [ -z "$window_id" ] || kill -0 "$window_id" 2>/dev/null || [ "$what" = "the program's end" ] ||
      fail "the program ended before $what"
    sleep 0.05
  done
}

same() { # what, expected, found
  [ "$2" = "$3" ] || fail "$1: expected \"$2\", found \"$3\""
}

# --- the home and the display ---

# An empty home, with a documents folder of the usual kind.
export HOME=$work/home
export XDG_CONFIG_HOME=$HOME/.config XDG_DATA_HOME=$HOME/.local/share XDG_RUNTIME_DIR=$work/runtime
export XDG_CACHE_HOME=$HOME/.cache TZ=Europe/Berlin QT_QPA_PLATFORM=xcb
unset SESSION_MANAGER DBUS_SESSION_BUS_ADDRESS WAYLAND_DISPLAY DISPLAY SKELDON_PORT
export LANG=${PROGRAM_LANGUAGE:-en_GB.UTF-8}
unset LC_ALL LANGUAGE
mkdir -p "$HOME" "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"
settings="$XDG_CONFIG_HOME/brennick-works/SKELDON Light.ini"
documents=$HOME/Documents/KORVA

start_display() {
  local number
  mkfifo "$work/display"
  Xvfb -displayfd 5 -screen 0 1280x1024x24 -noreset -nolisten tcp 5>"$work/display" \
    2>"$work/display.log" &
  display_id=$!
  read -r -t "$WAIT_S" number <"$work/display" || fail "no display"
  export DISPLAY=:$number
}

# --- the recorder ---

# The cable: SKELDON_PORT names it, unless a test plugs it into a bus of its own.
cable=$work/korva

start_recorder() { # options
  mkfifo "$work/answers"
  env -u LD_PRELOAD "$PROGRAMS/korva-simulator" --link "$cable" --control "$work/control" \
    --trace "$work/wire" "$@" >"$work/answers" 2>"$work/recorder.log" &
  recorder_id=$!
  exec 7<"$work/answers"
  local answer
  read -r -t "$WAIT_S" -u 7 answer || fail "the recorder did not start"
}

tell_recorder() { # command: until the recorder has obeyed
  local answer
  echo "$*" >"$work/control"
  read -r -t "$WAIT_S" -u 7 answer || fail "the recorder did not obey: $*"
  [ "$answer" != refused ] || fail "the recorder refused: $*"
}

# --- a bus with the cable's adapter ---

# The wrapper loads its library before the sanitizers' own, which then can not tell leaks.
WRAPPED_SANITIZER=verify_asan_link_order=0:detect_leaks=0
bus=
adapter=devices/usb1/1-1

# The system's devices are from here on those of an empty bus. The node of the adapter's port is the
# recorder's pseudo terminal itself: the wrapper would want a server of its own for each call on a
# node that it pretends.
start_bus() {
  bus=$work/bus
  mkdir -p "$bus"/sys/{bus/usb,bus/usb-serial}/devices "$bus"/sys/{class/tty,devices/usb1}
}
device() { # path below sys, path of its subsystem below sys, lines of its uevent
  mkdir -p "$bus/sys/$1"
  ln -sr "$bus/sys/$2" "$bus/sys/$1/subsystem"
  printf '%s\n' "${@:3}" >"$bus/sys/$1/uevent"
}
# The adapter as it lies on the bus: its second port is the recorder's.
show_adapter() {
  local port=$adapter/1-1:1.1
  device "$adapter" bus/usb DEVTYPE=usb_device PRODUCT=1d7c/4e15/500
  echo 1d7c >"$bus/sys/$adapter/idVendor"
  echo 4e15 >"$bus/sys/$adapter/idProduct"
  echo 00000002 >"$bus/sys/$adapter/serial"
  device "$port" bus/usb DEVTYPE=usb_interface PRODUCT=1d7c/4e15/500
  echo 01 >"$bus/sys/$port/bInterfaceNumber"
  device "$port/ttyUSB1" bus/usb-serial DRIVER=ftdi_sio
  device "$port/ttyUSB1/tty/ttyUSB1" class/tty DEVNAME="$(readlink "$cable")"
  ln -sr "$bus/sys/$port/ttyUSB1/tty/ttyUSB1" "$bus/sys/class/tty/ttyUSB1"
  ln -sr "$bus/sys/$port/ttyUSB1" "$bus/sys/bus/usb-serial/devices/ttyUSB1"
  ln -sr "$bus/sys/$port" "$bus/sys/bus/usb/devices/1-1:1.1"
  ln -sr "$bus/sys/$adapter" "$bus/sys/bus/usb/devices/1-1"
}
hide_adapter() {
  rm -rf "$bus"/sys/bus/usb/devices/1-1* "$bus"/sys/{bus/usb-serial/devices,class/tty}/ttyUSB1 \
    "${bus:?}/sys/$adapter"
}
plug_cable() {
  tell_recorder plug
  show_adapter
}
pull_cable() {
  tell_recorder pull
  hide_adapter
}

# --- the window ---

# A program under test that hangs, or a window that just went, must not hold the test up.
xdotool() { timeout 20 /usr/bin/env xdotool "$@"; }
import() { timeout 20 /usr/bin/env import "$@"; }
visible() { xdotool search --onlyvisible "$@" 2>/dev/null || true; }
find_main() {
  main=$(visible --name '^SKELDON Light' | tail -n 1)
  [ -n "$main" ]
}
# A window of the program beside the main one: a dialog or a box. A test may name one that stands
# there by itself, such as that of a transfer's progress, and is not meant.
standing=none
find_dialog() {
  dialog=$(visible --classname '^skeldon-light' | grep -vx -e "$main" -e "$standing" | tail -n 1)
  [ -n "$dialog" ]
}
no_dialog() { ! find_dialog; }
title() { xdotool getwindowname "$1" 2>/dev/null || true; }
title_is() { [ "$(title "$main")" = "$1" ]; }
dialog_is() { find_dialog && [ "$(title "$dialog")" = "$1" ]; }
is_gone() { ! kill -0 "$1" 2>/dev/null; }

# On a bus of its own the program looks for the cable among the devices of that bus alone.
start_window() { # words
  local wrapper=()
  [ -z "$bus" ] || wrapper=(env UMOCKDEV_DIR="$bus" ASAN_OPTIONS="${ASAN_OPTIONS-}:$WRAPPED_SANITIZER"
    umockdev-wrapper)
  "${wrapper[@]}" "$PROGRAMS/skeldon-light" "$@" >"$work/window.log" 2>&1 &
  window_id=$!
  wait_for "the window" find_main
}

# The program's end by itself, with its exit status; a sanitizer's complaint is a failure.
window_ended() {
  wait_for "the program's end" is_gone "$window_id"
  local status=0
  wait "$window_id" || status=$?
  window_id=
  same "exit status" 0 "$status"
}
close_window() {
  press_until "the program's end" "alt+f x" is_gone "$window_id"
  window_ended
}

# The status bar's pane for the recorder's model holds a text exactly while one is connected. A window
# that has not painted itself yet is black all over.
is_connected() {
  tones_of_pane
  [ "$darkest" -lt 110 ] && [ "$lightest" -gt 150 ]
}
is_disconnected() {
  tones_of_pane
  [ "$darkest" -gt 150 ]
}
tones_of_pane() { # from 0 to 255; without a window the darkest is -1
  local WIDTH=0 HEIGHT=0 tones
  darkest=-1 lightest=-1
  eval "$(xdotool getwindowgeometry --shell "$main" 2>/dev/null | grep -E '^(WIDTH|HEIGHT)=')"
  [ "$WIDTH" -gt 0 ] || return 0
  tones=$(import -silent -window "$main" -crop "90x11+$((WIDTH - 226))+$((HEIGHT - 15))" \
    -colorspace gray -format '%[fx:round(255*minima)] %[fx:round(255*maxima)]' info: 2>/dev/null) ||
    return 0
  read -r darkest lightest <<<"$tones"
}

# Keys go where the focus is; there is no window manager here that would move it.
focus() {
  xdotool windowfocus "$1" 2>/dev/null || return 0
  local end=$((SECONDS + WAIT_S))
  until [ "$(xdotool getwindowfocus 2>/dev/null || true)" = "$1" ]; do
    xdotool getwindowname "$1" >/dev/null 2>&1 || return 0
    [ "$SECONDS" -lt "$end" ] || fail "the window did not take the focus"
    xdotool windowfocus "$1" 2>/dev/null || true
    sleep 0.02
  done
}
press() { # window, keys
  focus "$1"
  xdotool key --window 0 --delay 20 "${@:2}"
}
write() { # window, text
  wait_for "the window's look" is_settled "$1"
  focus "$1"
  xdotool type --window 0 --delay 5 "$2"
}
click() { # window, x, y, button
  xdotool mousemove --sync --window "$1" "$2" "$3" click "${4:-1}"
}

# Acts again until the sign comes: a window that is being made or just lost its dialog, and a button
# that is just being enabled, drop keys and clicks.
act_until() { # what, action, command
  local what=$1 action=$2 end=$((SECONDS + WAIT_S))
  shift 2
  until "$@"; do
    [ "$SECONDS" -lt "$end" ] || fail "$what did not come"
    eval "$action"
    for _ in $(seq 30); do
      ! "$@" || return 0
      sleep 0.1
    done
  done
}
press_until() { act_until "$1" "press $main $2" "${@:3}"; }
click_until() { act_until "$1" "click $main $2 $3" "${@:4}"; }
dialog_after() { find_dialog && [ "$dialog" != "$1" ]; }
is_left() { ! visible --classname '^skeldon-light' | grep -qx "$1"; }
answer() { # keys, with which the dialog that stands goes
  act_until "the end of the dialog" "press $dialog $*" is_left "$dialog"
}
leave_dialog() { # keys
  answer "$@"
  wait_for "the end of all dialogs" no_dialog
}

# Twice the same picture, and not the black one of a window that has not painted itself.
look=
is_settled() { # window, part of it
  local before=$look
  look=$(import -silent -window "$1" ${2:+-crop "$2"} -format '%[fx:maxima>0.5] %#' info: 2>/dev/null) ||
    look=
  [ "$look" = "$before" ] && [ "${look%% *}" = 1 ]
}
# The setup view is 744 wide in English and Japanese, the data view less.
setup_view() { [ "$(width_of_main)" -ge 700 ]; }
data_view() { [ "$(width_of_main)" -gt 0 ] && [ "$(width_of_main)" -lt 700 ]; }
width_of_main() {
  local WIDTH=0
  eval "$(xdotool getwindowgeometry --shell "$main" 2>/dev/null | grep '^WIDTH=')"
  echo "$WIDTH"
}

# --- what the window says in the language of the test ---

case ${PROGRAM_LANGUAGE-} in
ja*) unsaved="SKELDON Light - 未保存" ;;
*) unsaved="SKELDON Light - Unsaved" ;;
esac
has_unsaved() { title_is "$unsaved"; }

# --- roads that several tests walk ---

# In the setup view: a template is chosen, so that a start asks nothing else. Its conditions appear in
# the panels, the interval's among them.
choose_template() {
  act_until "the template's conditions" 'press "$main" alt+v t; click "$main" 80 162; press "$main" m' \
    has_conditions
}
has_conditions() {
  [ "$(import -silent -window "$main" -crop 76x20+408+105 -format '%[fx:maxima>0.5]' info: 2>/dev/null)" = 1 ]
}

records() { # data file: number of its lines
  "$PROGRAMS/skeldonctl" info --json "$1" | python3 -c 'import json, sys; print(json.load(sys.stdin)["records"])'
}
save_dialog() { # keys, file: writes the name into the file dialog that they open
  press_until "the file dialog" "$1" find_dialog
  write "$dialog" "$2"
  leave_dialog Return
  wait_for "the file $2" test -s "$2"
}

is_pdf() { [ "$(tail -c 6 "$1" 2>/dev/null | tr -d '\n')" = %%EOF ]; }

# The wire's trace since a mark: whether there is talk, or some of the live stream.
mark_wire() { wire_mark=$(wc -c <"$work/wire"); }
is_talking() { [ "$(wc -c <"$work/wire")" -gt "$wire_mark" ]; }
is_streaming() { [ "$(wc -c <"$work/wire")" -gt $((wire_mark + 3000)) ]; }
# A fault pulled the cable.
cable_went() {
  local answer
  read -r -t "$WAIT_S" -u 7 answer || fail "the cable was not pulled"
  same "the recorder's word" pulled "$answer"
  hide_adapter
}
# A failure is told of in a box, which is left; then the sign comes.
after_box() { # what, command
  local what=$1
  shift
  wait_for "the box that tells of $what" find_dialog
  wait_for "$what" dismissed_and "$@"
}
dismissed_and() {
  ! find_dialog || press "$dialog" Return
  no_dialog && "$@"
}
