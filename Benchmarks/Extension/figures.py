"""What a host waits for and what the extension takes, beside the least that a service on the bus can be."""

import json
import subprocess

from Extension.privatebus import EXTENSION, PrivateBus
from tables import ratio_row, table, verdict

ROUNDS = 40
# What is answered by a process that the bus has to start first, and the milliseconds more than the least service takes that
# are required and aimed at.
COLD = [("a timeline", "cold timeline", 8, 5), ("a medium widget at scale 2", "cold picture", 20, 12)]
# MiB of resident memory, required and aimed at. Before drawing a timeline was answered and what draws is loaded.
MEMORY = [("before drawing", "memory before drawing", 14, 12), ("after drawing", "memory after drawing", 22, 18)]
CONTROL_RATIO = (1.5, 1.3)


def cold_rows(medians):
    """Rows of milliseconds, and for each whether the required bound is met."""
    for what, name, required, aim in COLD:
        more, processor = ((medians[name + kind] - medians["cold empty" + kind]) / 1000 for kind in ("", ", processor"))
        yield (what, f"{medians[name] / 1000:.1f}", f"{medians['cold empty'] / 1000:.1f}", f"{more:.1f}",
               f"{processor:.1f}", verdict(more, required), verdict(more, aim)), more <= required


def memory_rows(medians):
    for what, name, required, aim in MEMORY:
        size = medians[name] / 1024
        yield (what, f"{size:.1f}", verdict(size, required), verdict(size, aim)), size <= required


def show_extension(programs, folder):
    """Prints the figures of the extension on a bus of its own; true when all that is required is met."""
    bus = PrivateBus(folder / "bus", {EXTENSION: (programs / "orvel-widgets").resolve(),
                                      "app.orvel.Peer.EmptyService": programs / "EmptyService"})
    bus.snapshot.write_bytes(subprocess.run([programs / "orvelctl", "snapshot", "sample"], check=True,
                                            capture_output=True).stdout)
    medians = json.loads(bus.run(programs / "OrvelExtensionBenchmarks", ROUNDS, check=True, capture_output=True,
                                 text=True).stdout)
    cold, memory = list(cold_rows(medians)), list(memory_rows(medians))
    control = ratio_row("a control value", "µs", medians["control value"], medians["empty"], *CONTROL_RATIO)
    table("The extension, started by the bus for its answer, beside an empty service (wall time)", [
        ("", "ours, ms", "empty, ms", "more", "of it processor", "required", "aim"), *(row for row, _ in cold)])
    table("Its resident memory, MiB", [("", "", "required", "aim"), *(row for row, _ in memory)])
    table("Running, beside an empty method's round trip", [
        ("", "ours", "empty", "ratio", "required", "aim"), control[0]])
    return all(met for _, met in [*cold, *memory, control])
