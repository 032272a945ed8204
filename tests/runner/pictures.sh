#!/bin/bash
# Pictures in the terminal program, by the module that lies beside it.

. "${BASH_SOURCE%/*}/support/wants.sh"

# A PNG of 2 by 1 pixels.
base64 -d >two.png <<'PNG'
iVBORw0KGgoAAAANSUhEUgAAAAIAAAABCAIAAAB7QOjdAAAADUlEQVR4nGP4zwAE/wEHAAH/4iOeWQAAAABJRU5ErkJggg==
PNG
wants 0 '^iVBORw0KGgo' 'a file' -c '? PIXMAPASBASE64FROMFILEGET("two.png")'
wants 0 '^iVBORw0KGgo' 'a part' \
    -c 'x = PIXMAPASBASE64FROMFILEGET("two.png")' -c '? PIXMAPASBASE64PARTGET(x,1,0)'
wants 1 'Файл не найден\.' 'no file' -c '? PIXMAPASBASE64FROMFILEGET("missing.png")'
wants 0 '^2\.5$' 'numbers behind the module' \
    -c 'x = PIXMAPASBASE64FROMFILEGET("two.png")' -c '? 5/2'

finish
