"""Who may include whom: includes.py ROOT HOUSE

HOUSE is a text that the build writes, a line for each library and program: its name, its folder and
the libraries that its target names. Each include in their sources and headers is read and must be

  - of the own library, or of a library that the target names;
  - without "..": no way around the include folders;
  - of the own floor or a lower one, where a library's folders have an order: its floors.txt lists
    them, lowest first.

Writes a line for each include that is not so and gives 1 when there is one.
"""

import re
import sys
from pathlib import Path

INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]')

root = Path(sys.argv[1])
house = {}
for line in Path(sys.argv[2]).read_text(encoding="utf-8").splitlines():
    name, folder, *named = line.split()
    house[name] = (root / folder, named)
if not house:
    sys.exit("no library to look at")

complaints = []


def complain(path, number, words):
    complaints.append(f"{path.relative_to(root)}:{number}: {words}")


def floors_of(folder):
    """The folders of a library in their order, or nothing for a library without one."""
    path = folder / "floors.txt"
    if not path.exists():
        return []
    lines = path.read_text(encoding="utf-8").splitlines()
    floors = [line for line in lines if line and not line.startswith("#")]
    for floor in floors:
        if not (folder / floor).is_dir():
            complain(path, lines.index(floor) + 1, f"there is no folder {floor}")
    return floors


def includes_of(path):
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        found = INCLUDE.match(line)
        if found:
            yield number, found[1]


def check(name, folder, named):
    public = folder / "include" / name
    floors = floors_of(folder)

    def floor_of(path):
        """The floor of a file of this library; None when its folder is not in the list."""
        parts = path.relative_to(public if path.is_relative_to(public) else folder).parts
        return floors.index(parts[0]) if parts[0] in floors else None

    files = sorted(path for pattern in ("*.h", "*.cpp") for path in folder.rglob(pattern))
    for path in files:
        own = floor_of(path)
        if floors and own is None:
            complain(path, 1, f"its folder is not in {folder.relative_to(root)}/floors.txt")
        for number, include in includes_of(path):
            parts = Path(include).parts
            if ".." in parts:
                complain(path, number, f"{include}: a path with ..")
                continue
            library = parts[0] if len(parts) > 1 and parts[0] in house else name
            if library != name:
                if library not in named:
                    complain(path, number, f"{include}: {name} does not name {library}")
                continue
            included = next((x for x in (folder / "include" / include, folder / include,
                                         path.parent / include) if x.exists()), None)
            if included is None or own is None:
                continue
            other = floor_of(included)
            if other is None:
                complain(path, number, f"{include}: its folder is not in the list")
            elif other > own:
                complain(path, number, f"{include}: upward, from {floors[own]} to {floors[other]}")


for name, (folder, named) in house.items():
    check(name, folder, named)
for complaint in complaints:
    print(complaint)
sys.exit(1 if complaints else 0)
