"""Runs every command of the document on ripple currents. Usage: check_stress_document.py PROGRAM DOCUMENT"""
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import textwrap

program, document = (pathlib.Path(name).resolve() for name in sys.argv[1:])
text = document.read_text(encoding="utf-8")


def blocks(kind):
    found = re.findall(r"^( *)```" + kind + r"\n(.*?)^ *```", text, re.DOTALL | re.MULTILINE)
    return [textwrap.dedent(body) for _, body in found]


def run(command):
    done = subprocess.run(["sh", "-c", command], capture_output=True, encoding="utf-8", check=False)
    assert done.returncode == 0, (command, done.stdout, done.stderr)
    return done.stdout


if shutil.which("ngspice") is None:
    print("ngspice is not installed")
    sys.exit(77)
os.environ["PATH"] = f"{program.parent}{os.pathsep}{os.environ['PATH']}"
commands = blocks("sh")
assert len(commands) == 5
with tempfile.TemporaryDirectory() as folder:
    os.chdir(folder)
    pathlib.Path("buck.cir").write_text(blocks("spice")[0], encoding="ascii")
    for command in commands:
        run(command)
    simulated, computed = (json.loads(run(commands[i].strip() + " --format json")) for i in (2, 4))
    found = run(commands[3])
    os.chdir("/")

# What the document tells.
part = simulated["parts"][0]
assert abs(simulated["current"]["rms"] - 1.143) < 0.01 and abs(simulated["equivalent"]["frequency"] - 628) < 4
assert abs(part["rise"] - 0.33) < 0.01 and abs(part["rippleVoltage"] - 0.162) < 0.003
assert 0.14 < part["riseAbove"] / part["rise"] < 0.16
assert "KTS32XB51E106MA01" in found

# The converter's data tell the same as its simulation, each part with half the current.
assert abs(computed["current"]["rms"] / 2 / simulated["current"]["rms"] - 1) < 0.02
assert abs(computed["parts"][0]["rise"] / part["rise"] - 1) < 0.04
assert abs(computed["parts"][0]["rippleVoltage"] / part["rippleVoltage"] - 1) < 0.04
