#!/usr/bin/env python3
"""The manual: its form, its links, its completeness, and its examples, which are run.

manual.py BOOK.json, with the terminal program in the environment variable KORVO_RUN.
Writes how many pages and examples there are, and a line for each fault; fails on a fault.

Examples with a data file have a new copy of the one that the sample demoData.prg builds.
Examples that begin with the line in tests/support/manualWindowMark.txt need the window program: the
test windows/manualExamples runs just these, and here run all the others.
"""
import html
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

FRONT_PAGES = ["main", "console", "remarks"]
METHOD_MEMBERS = ["nameEn", "nameRu", "syntax", "parameter", "returnValue", "description",
                  "example", "seeAlso"]
TABLES = ["parameter", "seeAlso"]
PREFORMATTED = ["syntax", "example"]
NEVER_EMPTY = ["nameEn", "nameRu", "syntax", "description", "example"]
LISTED_CLASSES = ["VALUELIST", "VALUETABLE", "DATABASE", "DATABASETABLE", "DATABASERECORD",
                  "TABLEDOCUMENT", "TEST"]

# The words of the language, in step with the statement compiler and the expression scanner.
KEYWORDS = """
    IF ЕСЛИ THEN ТОГДА ELSEIF ИНАЧЕЕСЛИ ELSE ИНАЧЕ ENDIF КОНЕЦЕСЛИ
    WHILE ПОКА FOR ДЛЯ TO ПО DO ЦИКЛ ENDDO КОНЕЦЦИКЛА BREAK ПРЕРВАТЬ
    FUNCTION ФУНКЦИЯ PROCEDURE ПРОЦЕДУРА ENDFUNCTION КОНЕЦФУНКЦИИ ENDPROCEDURE КОНЕЦПРОЦЕДУРЫ
    RETURN ВОЗВРАТ PRINT VAR ПЕРЕМЕННАЯ""".split()
EXPRESSION_WORDS = "AND И OR ИЛИ NOT НЕ TRUE ИСТИНА FALSE ЛОЖЬ".split()

# The one-line commands, in step with the language's own and those of the console window.
COMMANDS = ["?", "#", "DO", "HELP", "CLEAR MEMORY", "DIR", "DIRECTORY", "DISPLAY FUNCTION",
            "DISPLAY MEMORY", "DISPLAY CLASS", "DISPLAY CONTEXT", "MODIFY COMMAND", "EDIT COMMAND",
            "LOAD CLASS", "LOAD CONTEXT", "QUIT", "EXIT", "RUN", "MANUAL", "MANAGE", "DEBUG",
            "STEP", "TRACE", "TRYING", "C1LEAR MEMORY", "D1ISPLAY MEMORY", "D1ISPLAY CLASS",
            "E" + 40 * "1" + "DIT COMMAND"]

# Functions that work and stand in no listing.
HIDDEN_FUNCTIONS = {"TOSTRING", "V1ALUETOSTRING", "З1НАЧЕНИЕВСТРОКУ"}

COMMAND_CLASS = "Команды"
SUPPORT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "support")
with open(os.path.join(SUPPORT, "manualWindowMark.txt"), encoding="utf-8") as markFile:
    NEEDS_WINDOWS = markFile.read()
PATIENCE = 50  # seconds for one example, even with sanitizers

PAIRED_TAGS = ["B", "I", "P", "PRE", "UL", "LI", "H2", "TABLE", "TR", "TH", "TD"]
PICTURE = re.compile(r'<IMG SRC="([\w.]+)"/>')
TAG = re.compile(rf"</?(?:{'|'.join(PAIRED_TAGS)})>|<BR/?>|<a href=\"#[^\"<>]*\">|</a>"
                 rf"|{PICTURE.pattern}", re.I)
ENTITY = re.compile(r"&(?:lt|gt|amp|quot|nbsp);")
LINK = re.compile(r'href="#([^"]*)"')
TRACE_TAIL = re.compile(r" func: \S* file: \S+ line: \d+\s*$")
PRINTING = re.compile(r"\s*(?:\?|(?:MESSAGE|СООБЩИТЬ)\()", re.I)

faults = []


def fault(place, words):
    faults.append(f"{place}: {words}")


# --- form

def withoutDuplicates(members):
    table = dict(members)
    if len(table) != len(members):
        keys = [key for key, _ in members]
        raise ValueError("duplicate keys " + " ".join({k for k in keys if keys.count(k) > 1}))
    return table


def checkLayout(text, book):
    """One member a line, so that a change of a text is a change of one line."""
    wanted = json.dumps(book, ensure_ascii=False, indent=2) + "\n"
    for number, lines in enumerate(zip(wanted.split("\n"), text.split("\n")), 1):
        if lines[0] != lines[1]:
            return fault(f"line {number}", f"laid out otherwise than {lines[0][:100]!r}")
    if wanted != text:
        fault("file", "does not end with one line end")


def checkLetters(text):
    for number, line in enumerate(text.split("\n"), 1):
        for letter in sorted(set(line)):
            if not (" " <= letter <= "~" or "А" <= letter <= "я" or letter in "Ёё"):
                fault(f"line {number}", f"letter {letter!r} (U+{ord(letter):04X})")


def checkText(place, text, tagsAllowed=True):
    if not isinstance(text, str):
        return fault(place, "no string")
    rest = ENTITY.sub("", text)
    if tagsAllowed:
        rest = TAG.sub("", rest)
    for letter in "<&" if tagsAllowed else "<>&":
        if letter in rest:
            at = rest.index(letter)
            near = rest[max(0, at - 20):at + 20]
            fault(place, f"bare {letter!r} or an unknown tag near {near!r}")
    for tag in PAIRED_TAGS + ["a"]:
        opened = len(re.findall(rf"<{tag}[ >]", text, re.I))
        if opened != len(re.findall(rf"</{tag}>", text, re.I)):
            fault(place, f"<{tag}> without its end or an end without <{tag}>")


def checkMembers(place, table, names):
    if not isinstance(table, dict) or list(table) != names:
        fault(place, "members must be, in this order, " + " ".join(names))
        return False
    return True


def checkMethod(place, method):
    if not checkMembers(place, method, METHOD_MEMBERS):
        return
    for name, value in method.items():
        at = f"{place}:{name}"
        if name not in TABLES:
            checkText(at, value, name not in PREFORMATTED)
            if name in NEVER_EMPTY and not str(value).strip():
                fault(at, "empty")
        elif not isinstance(value, dict):
            fault(at, "no table")
        else:
            for key, text in value.items():
                checkText(f"{at}:{key}", key, False)
                checkText(f"{at}:{key}", text)


def checkForm(book):
    if not checkMembers("book", book, FRONT_PAGES + ["class"]):
        return
    for name in FRONT_PAGES:
        checkText(name, book[name])
    for className, members in book["class"].items():
        if not checkMembers(className, members, ["text", "method"]):
            continue
        checkText(f"{className}:text", members["text"])
        for ident, method in members["method"].items():
            place = f"{className}:{ident}"
            if re.search(r'[#"<>&:]', ident):
                fault(place, "such an identifier can be no link's target")
            checkMethod(place, method)


# --- pages and links

def methodsOf(book):
    for className, members in book["class"].items():
        for ident, method in members["method"].items():
            yield className, ident, method


def pagesOf(book):
    pages = FRONT_PAGES + [f"class:{className}" for className in book["class"]]
    return pages + [f"class:{name}:method:{ident}" for name, ident, _ in methodsOf(book)]


def textsOf(book):
    for name in FRONT_PAGES:
        yield name, book[name]
    for className, members in book["class"].items():
        yield className, members["text"]
    for className, ident, method in methodsOf(book):
        for text in [method["returnValue"], method["description"], *method["parameter"].values()]:
            yield f"{className}:{ident}", text


def checkLinks(book):
    targets = set(pagesOf(book)) | {"allPages"}
    links = [(place, target) for place, text in textsOf(book) for target in LINK.findall(text)]
    for className, ident, method in methodsOf(book):
        links += [(f"{className}:{ident}", target) for target in method["seeAlso"]]
    for place, target in links:
        if target not in targets:
            fault(place, f"link to a missing page {target!r}")


def checkPictures(book, folder):
    for place, text in textsOf(book):
        for picture in PICTURE.findall(text):
            if not os.path.isfile(os.path.join(folder, picture)):
                fault(place, f"no picture {picture!r} beside the book")


# --- completeness

def run(*arguments, folder=None, typed="", data="missing"):
    """Exit code and lines of a run of the terminal program; None when it does not end."""
    try:
        done = subprocess.run([os.environ["KORVO_RUN"], "--data", data, *arguments], cwd=folder,
                              input=typed.encode(), stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, timeout=PATIENCE)
    except subprocess.TimeoutExpired:
        return None, []
    return done.returncode, done.stdout.decode("utf-8", "replace").split("\n")[:-1]


def listed(pattern, *typedLines):
    _, lines = run(typed="\n".join(typedLines) + "\n")
    return {found[1] for found in map(re.compile(pattern).match, lines) if found}


def checkNames(place, book, className, registered):
    """Both ways: each registered name has a page, each page names something registered."""
    methods = book["class"][className]["method"]
    named = {method[name] for method in methods.values() for name in ("nameEn", "nameRu")}
    if not registered:
        fault(place, "nothing is listed")
    for name in sorted(registered - named):
        fault(place, f"{name} has no page")
    for name in sorted(named - registered):
        fault(place, f"a page for {name}, which does not exist")


def checkCompleteness(book):
    functions = listed(r"\d+ (\w+)\(\)", "DISPLAY FUNCTION")
    checkNames("functions", book, "CONTEXT", functions and functions | HIDDEN_FUNCTIONS)
    for className in LISTED_CLASSES:
        typed = ["LOAD CLASS TEST", "LOAD CLASS DATABASE", f'CLASSDISPLAY("{className}")']
        checkNames(className, book, className, listed(r"\.\.\. \d+ (\w+)\(\) : метод", *typed))
        for name in listed(r"\.\.\. \d+ (\w+) : аттрибут", *typed):
            if not re.search(rf"\b{name}\b", book["class"][className]["text"]):
                fault(className, f"the attribute {name} is not described")
    for className, words in (("Операторы", KEYWORDS), ("Выражения", EXPRESSION_WORDS)):
        methods = book["class"][className]["method"].values()
        named = {word for method in methods
                 for word in f"{method['nameEn']} {method['nameRu']}".split()}
        for word in words:
            if word not in named:
                fault(className, f"{word} has no page")
    syntaxes = [line for method in book["class"][COMMAND_CLASS]["method"].values()
                for line in html.unescape(method["syntax"]).split("\n")]
    for command in COMMANDS:
        if not any(f"{line} ".startswith(command + " ") for line in syntaxes):
            fault(COMMAND_CLASS, f"{command} has no page")


# --- examples

def commentStart(line):
    """Where the comment of a line begins; its length when there is none."""
    quote = ""
    for at, letter in enumerate(line):
        if quote:
            quote = "" if letter == quote else quote
        elif letter in "\"'":
            quote = letter
        elif line.startswith("//", at):
            return at
    return len(line)


def toldLines(example):
    """What an example tells that it prints: the comments behind printing statements and those that
    begin with an arrow."""
    told = []
    for line in example.split("\n"):
        at = commentStart(line)
        arrow = re.fullmatch(r"\s*// -> ?(.*)", line)
        if arrow:
            told.append(arrow[1])
        elif at < len(line) and PRINTING.match(line[:at]):
            told.append(line[at + 2:])
    return [line.strip() for line in told]


def isAsTold(told, output):
    """Three dots stand for any text; a line that is nothing else, for any lines."""
    lines = [r"(?:.*\n)*" if line == "..." else
             ".*".join(map(re.escape, line.split("..."))) + r"\n" for line in told]
    return re.fullmatch("".join(lines), "".join(line + "\n" for line in output)) is not None


def runExample(place, example, isTyped):
    typed = example + "\n" if isTyped else ""
    with tempfile.TemporaryDirectory(dir=".", prefix="example.") as folder:
        work = os.path.join(folder, "work")
        os.mkdir(work)
        program = os.path.join(os.path.abspath(folder), "example.prg")
        with open(program, "w", encoding="utf-8") as file:
            file.write(example)
        data = shutil.copy("demo.sqlite", os.path.abspath(folder))
        code, lines = run(*([] if isTyped else [program]), folder=work, typed=typed, data=data)
        left = os.listdir(work)
    output = [TRACE_TAIL.sub("", line).strip() for line in lines]
    told = toldLines(example)
    if code is None:
        fault(place, "does not end")
    elif code != 0:
        fault(place, f"ends with {code}\n    " + "\n    ".join(output))
    elif told and not isAsTold(told, output):
        fault(place, "\n    ".join(["tells", *told]) + "\n  " + "\n    ".join(["prints", *output]))
    if left:
        fault(place, "leaves " + " ".join(sorted(left)))


def checkExamples(book):
    examples = [(f"{className}:{ident}:example", html.unescape(method["example"]),
                 className == COMMAND_CLASS) for className, ident, method in methodsOf(book)]
    here = [page for page in examples if not page[1].startswith(NEEDS_WINDOWS)]
    if not 0 < len(here) < len(examples):
        fault("examples", f"{len(here)} of {len(examples)} are to be run here")
    builder = os.path.join(os.environ["KORVO_SOURCE"], "prgTest", "demoData.prg")
    if run(builder, data="demo.sqlite")[0] != 0:
        return fault("examples", "no data file could be built")
    with ThreadPoolExecutor(2) as workers:
        list(workers.map(lambda page: runExample(*page), here))
    telling = [example for _, example, _ in here if toldLines(example)]
    print(f"{len(pagesOf(book))} pages; {len(examples)} examples: {len(here)} run, "
          f"{len(telling)} of them telling what they print, "
          f"{len(examples) - len(here)} left to the window program")


def checkBook(text, folder):
    """The checks from the outside in: each relies on those before it."""
    try:
        book = json.loads(text, object_pairs_hook=withoutDuplicates)
    except ValueError as error:
        return fault("book", error)
    checkLayout(text, book)
    checkLetters(text)
    checkForm(book)
    if faults:
        return
    checkLinks(book)
    checkPictures(book, folder)
    checkCompleteness(book)
    checkExamples(book)


def main(fileName):
    with open(fileName, encoding="utf-8") as file:
        checkBook(file.read(), os.path.dirname(fileName))
    for line in faults:
        print(line)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
