#!/usr/bin/env python3
"""picture.py PROGRAMS OUT.png: four widgets on a desktop of their own, as README shows them. PROGRAMS is OrvelWidgets.appex of a
build. Needs sway, grim and imagemagick."""

import json
import pathlib
import subprocess
import sys
import time

from desktops import Desktop

STATUS, BREATHE = "app.orvel.widget.status", "app.orvel.widget.breathe"
WIDGETS = [("systemMedium", STATUS, "dusk"), ("systemSmall", BREATHE, "dusk"), ("systemSmall", STATUS, "mono"),
           ("systemLarge", STATUS, "dawn")]
WIDTH, HEIGHT, SCALE = 1600, 860, 2


def main(programs, out):
    with Desktop(pathlib.Path(programs).resolve(), as_nobody=True) as desktop:
        wallpaper = desktop.folder / "wallpaper.png"
        subprocess.run(["convert", "-size", f"{WIDTH}x{HEIGHT}", "gradient:#3d4a73-#c98a6b", wallpaper], check=True)
        state = {"widgets": [{"id": str(index), "kind": kind, "family": family, "look": look}
                             for index, (family, kind, look) in enumerate(WIDGETS)]}
        file = desktop.folder / "config" / "orvel" / "widget-host.json"
        file.parent.mkdir(parents=True)
        file.write_text(json.dumps({"state": state, "version": 1}))
        desktop.write_snapshot()
        desktop.start_sway(WIDTH, HEIGHT, SCALE, wallpaper)
        desktop.start(desktop.programs / "orvel-widget-host", "--background")
        time.sleep(5)
        desktop.screenshot(out)


main(*sys.argv[1:])
