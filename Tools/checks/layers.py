#!/usr/bin/env python3
"""Fails for an include that crosses the layers the wrong way, and names its line.

A folder may include its own headers and those of the folders below it. A library of the system is included in one folder
only. With an argument, checks that folder instead of the project (the tests of this check do).
"""

import pathlib
import re
import sys

# What each folder may include besides itself. The deepest folder that holds a file is the file's own.
BELOW = {
    "OrvelPlatform/Base": [],
    "OrvelPlatform/Views": ["OrvelPlatform/Base"],
    "OrvelPlatform/Drawing": ["OrvelPlatform/Base", "OrvelPlatform/Views"],
    "OrvelPlatform/Desktop": ["OrvelPlatform/Base"],
    "OrvelShared": ["OrvelPlatform/Base"],
    "OrvelCopy": ["OrvelPlatform/Base", "OrvelCopy/Lookup"],
    "OrvelCopy/Lookup": ["OrvelPlatform/Base"],
    "OrvelCopy/Checks": ["OrvelPlatform/Base", "OrvelCopy/Lookup"],
    "OrvelDesign": ["OrvelPlatform/Base"],
    "OrvelDesign/Drawn": ["OrvelPlatform/Base", "OrvelPlatform/Views", "OrvelDesign"],
    "OrvelWidgetsUI": ["OrvelPlatform/Base", "OrvelShared", "OrvelCopy", "OrvelCopy/Lookup", "OrvelDesign"],
    "OrvelWidgetsUI/Drawn": [
        "OrvelPlatform/Base", "OrvelPlatform/Views", "OrvelShared", "OrvelCopy", "OrvelDesign", "OrvelDesign/Drawn",
        "OrvelWidgetsUI",
    ],
    "OrvelWidgetsUI/Door": [
        "OrvelPlatform/Base", "OrvelPlatform/Views", "OrvelPlatform/Drawing", "OrvelCopy", "OrvelCopy/Lookup",
        "OrvelDesign", "OrvelWidgetsUI", "OrvelWidgetsUI/Drawn",
    ],
    "OrvelWidgets": [
        "OrvelPlatform/Base", "OrvelPlatform/Desktop", "OrvelShared", "OrvelCopy", "OrvelCopy/Lookup", "OrvelDesign",
        "OrvelWidgetsUI",
    ],
    "WidgetHost": [
        "OrvelPlatform/Base", "OrvelPlatform/Views", "OrvelPlatform/Drawing", "OrvelPlatform/Desktop",
        "OrvelCopy/Lookup", "OrvelDesign", "OrvelDesign/Drawn", "WidgetHost/Schedule", "WidgetHost/State",
        "WidgetHost/Style", "WidgetHost/Gallery", "WidgetHost/Panel", "WidgetHost/Windows", "WidgetHost/Words", "WidgetHost/Face",
    ],
    "WidgetHost/Schedule": ["OrvelPlatform/Base", "OrvelPlatform/Desktop"],
    "WidgetHost/State": ["OrvelPlatform/Base"],
    "WidgetHost/Style": ["OrvelPlatform/Base", "OrvelPlatform/Drawing", "OrvelDesign", "OrvelDesign/Drawn"],
    "WidgetHost/Gallery": [
        "OrvelPlatform/Base", "OrvelPlatform/Views", "OrvelPlatform/Desktop", "OrvelDesign", "WidgetHost/Style",
        "WidgetHost/Words",
    ],
    "WidgetHost/Panel": [
        "OrvelPlatform/Base", "OrvelPlatform/Desktop", "OrvelDesign", "OrvelDesign/Drawn", "WidgetHost/Style",
        "WidgetHost/Words", "WidgetHost/Windows",
    ],
    "WidgetHost/Words": ["OrvelPlatform/Base", "OrvelCopy/Lookup", "WidgetHost/State"],
    "WidgetHost/Desk": [
        "OrvelPlatform/Base", "OrvelPlatform/Views", "OrvelPlatform/Desktop", "OrvelDesign", "WidgetHost/Schedule",
        "WidgetHost/State", "WidgetHost/Words", "WidgetHost/Face",
    ],
    "WidgetHost/Program": [
        "OrvelPlatform/Base", "OrvelPlatform/Desktop", "OrvelDesign", "WidgetHost/State", "WidgetHost/Words",
        "WidgetHost/Face", "WidgetHost/Desk", "WidgetHost/Controls", "WidgetHost/Gallery", "WidgetHost/Panel",
        "WidgetHost/Tray", "WidgetHost/Style",
    ],
    "WidgetHost/Program/Main": [
        "OrvelPlatform/Base", "OrvelPlatform/Desktop", "WidgetHost/State", "WidgetHost/Words", "WidgetHost/Face",
        "WidgetHost/Desk", "WidgetHost/Controls", "WidgetHost/Windows", "WidgetHost/Gallery", "WidgetHost/Panel",
        "WidgetHost/Tray", "WidgetHost/Program",
    ],
    "WidgetHost/Face": ["OrvelPlatform/Base", "OrvelPlatform/Views", "OrvelPlatform/Desktop", "WidgetHost/State"],
    "WidgetHost/Windows": [
        "OrvelPlatform/Base", "OrvelPlatform/Views", "OrvelPlatform/Drawing", "OrvelPlatform/Desktop", "OrvelDesign",
        "OrvelDesign/Drawn", "WidgetHost/State", "WidgetHost/Face",
    ],
    "WidgetHost/Controls": ["OrvelPlatform/Base", "OrvelPlatform/Desktop", "WidgetHost/Schedule"],
    "WidgetHost/Tray": ["OrvelPlatform/Base", "OrvelPlatform/Desktop", "OrvelDesign", "OrvelDesign/Drawn"],
}

# Headers of the system, and the folders that may see them; sources only where the folder's name ends in ".cpp".
SYSTEM = {
    r"(unicode/|absl/)": ["OrvelPlatform/Base"],
    r"simdjson": ["OrvelPlatform/Base"],
    r"(cairo|pango/|fontconfig/)": ["OrvelPlatform/Drawing"],
    r"(gio/|glib)": [
        "OrvelPlatform/Desktop", "WidgetHost", "WidgetHost/Tray", "WidgetHost/Windows.cpp", "WidgetHost/Program.cpp",
    ],
    r"(gtk|gdk|X11/|wayland)": [
        "WidgetHost.cpp", "WidgetHost/Windows.cpp", "WidgetHost/Style.cpp", "WidgetHost/Gallery.cpp", "WidgetHost/Panel.cpp",
        "WidgetHost/Program/Main.cpp",
    ],
}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def folder_of(path):
    """The layer that a path from the root lies in, or None."""
    return max((name for name in BELOW if path.startswith(name + "/")), key=len, default=None)


def fault(path, quote, included):
    """Why a file may not include a header, or None."""
    layer = folder_of(path)
    if layer is None:
        return None
    other = folder_of(included)
    if other is not None and other != layer and other not in BELOW[layer]:
        return f"{layer} may not include {other}"
    if quote == '"' and other is None:
        return "own headers are included by their path from the root of the project"
    for pattern, places in SYSTEM.items():
        if quote == "<" and re.match(pattern, included):
            is_source = path.endswith(".cpp")
            if not any(layer == place.removesuffix(".cpp") and (is_source or place == layer) for place in places):
                return f"<{included}> is seen only in {', '.join(places)}"
    return None


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parents[2])
    faults = 0
    files = 0
    for top in sorted({name.split("/")[0] for name in BELOW}):
        for file in sorted((root / top).rglob("*")):
            if file.suffix not in (".h", ".cpp"):
                continue
            files += 1
            path = file.relative_to(root).as_posix()
            for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
                match = INCLUDE.match(line)
                why = match and fault(path, *match.groups())
                if why:
                    faults += 1
                    print(f"{path}:{number}: {why}")
    if files == 0:
        print(f"{root}: no sources found")
    return 1 if faults or files == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
