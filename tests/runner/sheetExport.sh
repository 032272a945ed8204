#!/bin/bash
# Sheets exported without a window, read back by programs of others.

. "${BASH_SOURCE%/*}/support/wants.sh"

unset DISPLAY WAYLAND_DISPLAY
mkdir -m 700 runtime
export XDG_RUNTIME_DIR=$PWD/runtime  # the toolkit tells of its own choice otherwise
cat >report.prg <<'KORVO'
sheet = CREATEOBJECT("TABLEDOCUMENT");
sheet.CLEAR();
sheet.COLUMNWIDTHSET(1,200);
sheet.CELLTEXTSET(1,1,"Товар; сорт ""первый""");
sheet.CELLTEXTSET(1,2,"Цена");
sheet.CELLFONTSET(1,2,"Arial",12,1);
sheet.CELLCOLORSET(1,2,"red","yellow",0,"blue");
sheet.CELLTEXTSET(3,1,"=1+1");
sheet.CELLTEXTSET(3,2,STRING(0.1));
sheet.CELLTEXTSET(4,1,"00042");
sheet.CELLTEXTSET(4,2,FORMAT(1234567.5,"N15.2.,"));
sheet.CELLTEXTSET(5,1,"<b>&amp;");
sheet.CELLTEXTSET(5,2,STRING(0-7));
sheet.CELLTEXTSET(6,1,"две"+CHR(10)+"строки");
sheet.CELLPIXMAPASBASE64SET(6,2,STRINGFROMFILE("picture.txt"));
sheet.SAVE("report.sxl");
sheet.SHOW("Отчет");
RETURN 1;
KORVO
sed -i "s/\"Товар; сорт \"\"первый\"\"\"/'Товар; сорт \"первый\"'/" report.prg
printf %s 'iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAIAAACQd1PeAAAADElEQVR4nGP4z8AAAAMBAQDJ' \
    >picture.txt
printf %s '/pLvAAAAAElFTkSuQmCC' >>picture.txt

# reads FILE.csv|FILE.xlsx: what a reader of others finds, a line a cell
reads() {
    /usr/bin/python3 - "$1" <<'PYTHON'
import csv, sys, zipfile
name = sys.argv[1]
if name.endswith(".csv"):
    with open(name, "rb") as file:
        data = file.read()
    assert data.startswith(b"\xef\xbb\xbf"), "no mark"
    assert data.endswith(b"\r\n"), "line ends"
    with open(name, encoding="utf-8-sig", newline="") as file:
        for row, cells in enumerate(csv.reader(file, delimiter=";"), 1):
            for column, text in enumerate(cells, 1):
                print(row, column, repr(text))
else:
    import openpyxl
    page = openpyxl.load_workbook(name).active
    for cells in page.iter_rows():
        for cell in cells:
            if cell.value is not None:
                print(cell.row, cell.column, cell.data_type, repr(cell.value))
    head = page.cell(1, 2)
    print("font", head.font.name, head.font.size, head.font.b, head.font.color.rgb)
    print("fill", head.fill.fgColor.rgb, "border", head.border.left.color.rgb)
    with zipfile.ZipFile(name) as parts:
        images = [part for part in parts.namelist() if part.startswith("xl/media/")]
    print("width", round(page.column_dimensions["A"].width), "images", len(images))
PYTHON
}

same() {  # same WHAT WANTED GOT
    if [ "$2" != "$3" ]; then
        echo "$1: wanted"
        echo "$2"
        echo "got"
        echo "$3"
        failures=$((failures + 1))
    fi
}

for ending in csv html pdf xlsx; do
    wants 0 '' "a program as $ending" --export "out.$ending" report.prg
    [ -s "out.$ending" ] || failures=$((failures + 1))
done

same 'csv' "1 1 'Товар; сорт \"первый\"'
1 2 'Цена'
3 1 '=1+1'
3 2 '0.10000000000000000555'
4 1 '00042'
4 2 '   1,234,567.50'
5 1 '<b>&amp;'
5 2 '-7'
6 1 'две\nстроки'
6 2 ''" "$(reads out.csv)"

same 'xlsx' "1 1 s 'Товар; сорт \"первый\"'
1 2 s 'Цена'
3 1 s '=1+1'
3 2 n 0.1
4 1 s '00042'
4 2 n 1234567.5
5 1 s '<b>&amp;'
5 2 n -7
6 1 s 'две\nстроки'
font Arial 12.0 True FF0000FF
fill FFFFFF00 border FFFF0000
width 29 images 1" "$(reads out.xlsx)"

text=$(pdftotext -layout out.pdf -)
for wanted in 'Товар; сорт "первый"' 'Цена' '=1+1' '00042' '1,234,567.50' '<b>&amp;'; do
    [[ $text == *"$wanted"* ]] || same 'pdf' "$wanted" "$text"
done
same 'pages' 1 "$(pdfinfo out.pdf | sed -n 's/^Pages: *//p')"

grep -q '&lt;b&gt;&amp;amp;' out.html || same 'html' 'escaped text' "$(cat out.html)"
grep -q 'data:image/png;base64,' out.html || same 'html' 'a picture' "$(cat out.html)"

# --- the same from the file, but for what a file does not keep
wants 0 '' 'a file' --export saved.csv report.sxl
same 'csv of the file' "$(cat out.csv)" "$(cat saved.csv)"

# --- a table
cat >table.prg <<'KORVO'
t = CREATEOBJECT("VALUETABLE");
t.COLUMNADD("Товар");
t.ROWADD();
t.VALUESET(1,1,"Чай");
t.SHOW();
RETURN 1;
KORVO
wants 0 '' 'a table' --export table.csv table.prg
same 'csv of the table' "1 1 'ТОВАР'
2 1 'Чай'" "$(reads table.csv)"

# --- far cells cost nothing, wide sheets go on further pages
cat >far.prg <<'KORVO'
sheet = CREATEOBJECT("TABLEDOCUMENT");
sheet.CLEAR();
sheet.CELLTEXTSET(1,1,"near");
sheet.CELLTEXTSET(4000000000,4000000000,"far");
sheet.SHOW();
RETURN 1;
KORVO
for ending in pdf html; do
    wants 0 '' "far as $ending" --export "far.$ending" far.prg
done
same 'far pages' 2 "$(pdfinfo far.pdf | sed -n 's/^Pages: *//p')"
[[ $(pdftotext far.pdf -) == *far*4000000000* || $(pdftotext far.pdf -) == *4000000000*far* ]] ||
    same 'far pdf' far "$(pdftotext far.pdf -)"
for ending in csv xlsx; do
    wants 1 '^В этом формате не больше 1048576 строк и 16384 колонок$' "far as $ending" \
        --export "far.$ending" far.prg
    [ ! -e "far.$ending" ] || failures=$((failures + 1))
done
cat >wide.prg <<'KORVO'
sheet = CREATEOBJECT("TABLEDOCUMENT");
sheet.CLEAR();
FOR i=1 TO 20 DO
    FOR j=1 TO 100 DO
        sheet.CELLTEXTSET(j,i,STRING(j)+"x"+STRING(i));
    ENDDO;
ENDDO;
sheet.SHOW();
RETURN 1;
KORVO
wants 0 '' 'wide' --export wide.pdf wide.prg
pages=$(pdfinfo wide.pdf | sed -n 's/^Pages: *//p')
same 'cells on pages' 2000 "$(pdftotext wide.pdf - | grep -o '[0-9]*x[0-9]*' | sort -u | wc -l)"
[ "$pages" -gt 4 ] || same 'pages of a wide sheet' 'more than 4' "$pages"

# --- what cannot be
wants 1 'Неизвестный формат файла \[out.doc\]' 'a format' --export out.doc report.prg
wants 1 'Ошибка записи файла \[no/such/out.pdf\]' 'a folder' --export no/such/out.pdf report.prg
wants 2 'Файл не найден' 'no sheet' --export out.csv missing.sxl
if "$KORVO_RUN" --export out.csv -c '? 1' 2>/dev/null; then
    echo 'lines are no sheet'
    failures=$((failures + 1))
fi

finish
