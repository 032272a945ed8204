#!/bin/sh
# inFreshFolder.sh FOLDER COMMAND...: runs the command in the folder, emptied before.
set -e
folder=$1
shift
rm -rf -- "$folder"
mkdir -p -- "$folder"
[ -z "$KORVO_SCREENSHOTS" ] || mkdir -p -- "$KORVO_SCREENSHOTS"
cd -- "$folder"
exec "$@"
