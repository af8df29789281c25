#!/usr/bin/env bash
# The watcher of the status file: a console that lives, and every way in which one does not.
set -uo pipefail
watch=$(dirname "$0")/../scripts/watch-console
folder=$(mktemp -d)
file=$folder/FNetKntrl
trap 'kill "$writer" 2>/dev/null; rm -rf "$folder"' EXIT
failed=0

# write TIME COUNTER: as the console writes it, in its code page.
write() {
  printf '05-\xff\xed\xe2-26 # %s $ %d %% 0 = 0\r\n' "$1" "$2" > "$file.new"
  mv "$file.new" "$file"
}
# wants STATUS WORDS: the watcher's status and line, given two seconds.
wants() {
  local line status
  line=$("$watch" "$file" 2)
  status=$?
  if [[ $status != "$1" || $line != *"$2"* ]]; then
    echo "wanted $1 \"$2\", got $status \"$line\""
    failed=1
  fi
}
# moves TIME-BY COUNTER-BY: a console that goes on by so much five times a second.
moves() {
  write 8:00:10 50
  (for ((i = 1; i < 100; ++i)); do
    write "8:00:$((10 + i * $1 % 50))" $((50 + i * $2 % 50))
    sleep 0.2
  done) &
  writer=$!
}
stop() {
  kill "$writer"
  wait "$writer" 2>/dev/null
}

wants 2 "cannot read"
mkdir "$file"
wants 2 "cannot read"
rmdir "$file"
: > "$file"
wants 2 "empty"
echo "05-01-26 # 8:00:01 \$ 1" > "$file"
wants 2 "not the status"
write 8:00:01 1
wants 2 "stood still for 2 s, 8:00:01, counter 1, alert 0"
moves 1 0
wants 2 "stood still"
stop
moves 0 1
wants 2 "stood still"
stop
moves 1 1
wants 0 "lives"
stop
exit $failed
