# Shared by every script here: where the project lies, how a step is announced, how root is had.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
out="$root/out"
mkdir -p "$out"

say() { printf '%s  %s\n' "$(date +%H:%M:%S)" "$*"; }

fail() {
  printf '\n%s\n' "$*" >&2
  exit 1
}

as_root() {
  if [ "$(id -u)" = 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo -n "$@"
  else
    fail "This step needs root: run it as root, or install sudo."
  fi
}

# Runs a step quietly into a log of its own; a failing step is tried once more, then its log's end is shown.
quietly() {
  local log="$out/log/$1.log"
  shift
  mkdir -p "$out/log"
  if "$@" >"$log" 2>&1 </dev/null; then return 0; fi
  if "$@" >"$log" 2>&1 </dev/null; then return 0; fi
  tail -n 40 "$log" >&2
  fail "Failed: $* (log: ${log#"$root"/})"
}
