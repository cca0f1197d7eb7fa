"""What the desktop host takes, beside a bar that shows the time of day: both rest on one headless compositor."""

import json
import os
import pathlib
import statistics
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "Tools" / "desktops"))
from desktops import Desktop, wait_for  # noqa: E402
from tables import ratio_row, table, verdict  # noqa: E402

REST = 120  # seconds
SETTLING = 15
STARTS = 7
RELOADS = 21
CPU_RATIO = (0.3, 0.2)
MEMORY_RATIO = (1.0, 0.9)
START = (300, 200)  # ms
RELOAD = (10, None)  # ms beyond the drawing
STATUS, BREATHE = "app.orvel.widget.status", "app.orvel.widget.breathe"
FOUR = [("systemMedium", STATUS), ("systemSmall", STATUS), ("systemLarge", STATUS), ("systemSmall", BREATHE)]


def place_widgets(desktop, widgets):
    """The host's state as it would write it."""
    state = {"widgets": [{"id": str(index), "kind": kind, "family": family}
                         for index, (family, kind) in enumerate(widgets)]}
    file = desktop.folder / "config" / "orvel" / "widget-host.json"
    file.parent.mkdir(parents=True, exist_ok=True)
    file.write_text(json.dumps({"state": state, "version": 1}))
    desktop.own()


def number(folder, field):
    """What the system says of a process or a thread under this name."""
    lines = (folder / "status").read_text().splitlines()
    return next(int(line.split()[1]) for line in lines if line.startswith(field + ":"))


def switches(process):
    """How often each of a process's threads went to sleep, by their identifiers."""
    threads = pathlib.Path(f"/proc/{process.pid}/task").iterdir()
    return {thread.name: number(thread, "voluntary_ctxt_switches") for thread in threads}


def processor_time(process):
    """Milliseconds, of threads that ended too: the clock of a process, as clock_getcpuclockid names it."""
    return time.clock_gettime((~process.pid << 3) | 2) * 1000


def resident(process):
    return number(pathlib.Path(f"/proc/{process.pid}"), "VmRSS") / 1024  # MiB


class Rest:
    """A process that is left alone: what it does all the same."""

    def __init__(self, process):
        self.process = process
        self.processor = processor_time(process)
        self.switches = self.seen = switches(process)
        self.bursts = 0

    def look(self):
        """Called often: activity since the last look is one wake-up, however many threads it ran through."""
        now = switches(self.process)
        self.bursts += now != self.seen
        self.seen = now

    def a_minute(self, seconds):
        slept = sum(count - self.switches.get(thread, 0) for thread, count in self.seen.items())
        return {"wake-ups": self.bursts * 60 / seconds, "context switches": slept * 60 / seconds,
                "processor time": (processor_time(self.process) - self.processor) * 60 / seconds}


def resting(programs):
    """What a bar and the host with four widgets take a minute, while a Focus runs: each minute shows another entry."""
    with Desktop(programs, as_nobody=True) as desktop:
        desktop.write_snapshot("--state", "focus")
        place_widgets(desktop, FOUR)
        desktop.start_sway()
        quiet = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        pair = {"bar": desktop.start("waybar", **quiet),
                "host": desktop.start(desktop.programs / "orvel-widget-host", "--background", **quiet)}
        time.sleep(SETTLING)
        rests = {name: Rest(process) for name, process in pair.items()}
        ending = time.monotonic() + REST
        while time.monotonic() < ending:
            time.sleep(0.1)
            for rest in rests.values():
                rest.look()
        return {name: rest.a_minute(REST) | {"memory": resident(rest.process)} for name, rest in rests.items()}


def starts(programs):
    """Milliseconds from the start of the host to the first picture, on a desktop whose extension does not run yet."""
    runs = []
    for _ in range(STARTS):
        with Desktop(programs) as desktop:
            desktop.write_snapshot()
            place_widgets(desktop, FOUR[:1])
            desktop.start_x()
            time.sleep(0.5)
            done = desktop.run("/usr/bin/python3", pathlib.Path(__file__).with_name("screen_watch.py"), "start",
                               desktop.programs / "orvel-widget-host", "--background", check=True, capture_output=True)
            runs.append(json.loads(done.stdout)["settled"])
    return statistics.median(runs)


def reloads(programs):
    with Desktop(programs) as desktop:
        files = []
        for index, state in enumerate(["focus", "paused"]):
            desktop.write_snapshot("--state", state)
            files.append(desktop.folder / f"{index}.json")
            os.link(desktop.snapshot, files[-1])
        place_widgets(desktop, FOUR[:1])
        desktop.start_x()
        desktop.start(desktop.programs / "orvel-widget-host", "--background")
        time.sleep(3)
        done = desktop.run("/usr/bin/python3", pathlib.Path(__file__).with_name("screen_watch.py"), "reload",
                           desktop.snapshot, *(files[index % 2] for index in range(RELOADS)), check=True,
                           capture_output=True)
        return json.loads(done.stdout)


def show_host(programs):
    """Prints the figures of the desktop host; true when all that is required is met. Programs: OrvelWidgets.appex."""
    taken = resting(programs)
    ours, bar = taken["host"], taken["bar"]
    shown = sum(kind == STATUS for _, kind in FOUR)  # entries a minute: the breathe widget stays as it is
    rows = [ratio_row("processor time a minute", "ms", ours["processor time"], bar["processor time"], *CPU_RATIO),
            ratio_row("resident memory", "MiB", ours["memory"], bar["memory"], *MEMORY_RATIO)]
    table(f"The desktop host with four widgets, beside a bar ({REST} s of a running Focus)", [
        ("", "ours", "bar", "ratio", "required", "aim"), *(row for row, _ in rows)])
    wakes = ours["wake-ups"]
    start, reload = starts(programs), reloads(programs)
    beyond = reload["latency"] - reload["drawing"]
    table("The desktop host by itself", [
        ("", "", "required", "aim", "more"),
        ("wake-ups a minute", f"{wakes:.1f}", verdict(wakes, shown + 1), "-",
         f"{ours['context switches']:.1f} context switches; the bar {bar['wake-ups']:.1f} and "
         f"{bar['context switches']:.1f}"),
        ("start to first picture, ms", f"{start:.0f}", verdict(start, START[0]), verdict(start, START[1]), ""),
        ("reload to frame beyond the drawing, ms", f"{beyond:.1f}", verdict(beyond, RELOAD[0]), "-",
         f"{reload['latency']:.1f} ms, of which the extension {reload['drawing']:.1f}")])
    return all(met for _, met in rows) and wakes <= shown + 1 and start <= START[0] and beyond <= RELOAD[0]
