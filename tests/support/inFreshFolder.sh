#!/bin/sh
# inFreshFolder.sh FOLDER COMMAND...: runs the command in the folder, emptied before, with a stack
# of KORVO_STACK_KB kilobytes where that is set.
set -e
folder=$1
shift
rm -rf -- "$folder"
mkdir -p -- "$folder"
[ -z "$KORVO_SCREENSHOTS" ] || mkdir -p -- "$KORVO_SCREENSHOTS"
[ -z "$KORVO_STACK_KB" ] || ulimit -s "$KORVO_STACK_KB"
cd -- "$folder"
exec "$@"
