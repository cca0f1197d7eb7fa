"""Pages of documentation as their readers would follow them: their snippets are run, on a bus and in a home of their own."""

import os
import pathlib
import re
import subprocess
import tempfile
import time

from gi.repository import GLib

DATA = pathlib.Path(os.environ["XDG_DATA_HOME"])
SNAPSHOT = DATA / "Group Containers/K4Q7M2XR9T.app.orvel.mac/widgets.json"


class Page:
    def __init__(self, name):
        self.path = pathlib.Path(__file__).parents[2] / "docs" / name

    def snippets(self, language):
        """Each with the number of lines above it."""
        text = self.path.read_text(encoding="utf-8")
        for found in re.finditer(rf"^```{language}\n(.*?)^```$", text, re.DOTALL | re.MULTILINE):
            yield text.count("\n", 0, found.start(1)), found[1]

    def run(self):
        """Runs the snippets in Python as the one program that they are together; what they name."""
        names = {}
        for line, code in self.snippets("python"):
            exec(compile("\n" * line + code, str(self.path), "exec"), names)
        return names

    def commands(self):
        return [code for _, code in self.snippets("sh")]


def wait_for(condition):
    """Whether it becomes true, while this process answers what it is asked."""
    context = GLib.MainContext.default()
    end = time.monotonic() + 10
    while not condition() and time.monotonic() < end:
        context.iteration(False)
        time.sleep(0.005)
    return condition()


def shell(command):
    """The status and the output of a command, while this process answers what it is asked."""
    with tempfile.TemporaryFile("w+", encoding="utf-8") as output:
        process = subprocess.Popen(["bash", "-ec", command], stdout=output, stderr=subprocess.STDOUT)
        if not wait_for(lambda: process.poll() is not None):
            process.kill()
        process.wait()
        output.seek(0)
        return process.returncode, output.read()


def write_sample(state):
    SNAPSHOT.parent.mkdir(parents=True, exist_ok=True)
    SNAPSHOT.write_bytes(subprocess.run(["orvelctl", "snapshot", "sample", "--state", state], check=True, capture_output=True).stdout)
