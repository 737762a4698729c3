"""Walks through a document as its reader would: saves the files that it shows, runs its commands, and compares what
they tell with the text that follows them. Usage: check_walk.py PROGRAM DOCUMENT PARTS"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

program, document, parts = (pathlib.Path(name).resolve() for name in sys.argv[1:])
blocks = re.findall(r"^```(sh|text|csv \S+)\n(.*?)^```$", document.read_text(encoding="utf-8"),
                    re.MULTILINE | re.DOTALL)
commands = [text for kind, text in blocks if kind == "sh"]
assert len(commands) >= 3
written = re.findall(r"--(?:picture|output) (\S+\.(?:png|html))", "".join(commands))
assert written
environment = os.environ | {"PATH": f"{program.parent}:{os.environ['PATH']}", "PARTS": str(parts),
                            "TAVIK_DATA": str(parts)}


def run(command, folder):
    # What shows its exit status may fail, and goes on to the line that shows it.
    options = "-uc" if "$?" in command else "-euc"
    done = subprocess.run(["bash", options, command], cwd=folder, env=environment, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, encoding="utf-8", check=False)
    assert done.returncode == 0, command + done.stdout
    return done.stdout


with tempfile.TemporaryDirectory() as folder:
    if document.with_suffix(".csv").exists():
        shutil.copy(document.with_suffix(".csv"), folder)
    output = ""
    for kind, text in blocks:
        if kind == "sh":
            output = run(text, folder)
        elif kind == "text":
            assert output.endswith(text), f"told:\n{output}\nwritten:\n{text}"
        else:
            pathlib.Path(folder, kind.removeprefix("csv ")).write_text(text, encoding="utf-8")
    for name in written:
        assert pathlib.Path(folder, name).stat().st_size > 1000, name
