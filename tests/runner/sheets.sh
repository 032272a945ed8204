#!/bin/bash
# Table documents in the terminal program: their library comes at the first use, nobody pays for it
# before, and what needs a window is refused.

. "${BASH_SOURCE%/*}/support/wants.sh"

cat >report.prg <<'KORVO'
sheet = CREATEOBJECT("TABLEDOCUMENT");
sheet.CLEAR();
sheet.CELLTEXTSET(2,3,"Цена");
sheet.CELLFONTSET(2,3,"Arial",12,1);
IF sheet.SAVE("report.sxl") THEN
    ? sheet.CELLTEXTGET(2,3);
ENDIF;
RETURN 1;
KORVO
unset DISPLAY WAYLAND_DISPLAY
wants 0 '^Цена$' 'a report without a display' report.prg
wants 0 '^"cloumns" : \[\],$' 'its file' -c '? STRINGFROMFILE("report.sxl")'
wants 1 'моожет быть применен только в графической версии' 'no window' \
    -c 's=CREATEOBJECT("TABLEDOCUMENT")' -c 's.SHOW()'
wants 0 '^ИСТИНА$' 'there from the start' -c '? CLASSLOADED("TABLEDOCUMENT")'

# --- a folder that cannot take the new file, and a full disk, leave the old sheet
cp report.sxl old.sxl
mkdir report.sxl.new
cat >change.prg <<'KORVO'
sheet = CREATEOBJECT("TABLEDOCUMENT");
sheet.LOAD("report.sxl");
sheet.CELLTEXTSET(9,9,"new");
? sheet.SAVE("report.sxl");
KORVO
wants 0 '^ЛОЖЬ$' 'a sheet that cannot be replaced' change.prg
cmp report.sxl old.sxl || failures=$((failures + 1))
rmdir report.sxl.new

# --- the library of the module is not in a program that does not use it
cat >plain.prg <<'KORVO'
? STRINGFROMFILE("/proc/self/maps");
RETURN 1;
KORVO
"$KORVO_RUN" plain.prg >maps
if grep -q 'localSheetModule\|libQt' maps; then
    echo 'the toolkit is loaded without use'
    failures=$((failures + 1))
fi

finish
