"""Walks through a document as its reader would: runs its commands, and compares what they tell with the text that
follows them. Usage: check_walk.py PROGRAM DOCUMENT PARTS"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

program, document, parts = (pathlib.Path(name).resolve() for name in sys.argv[1:])
blocks = re.findall(r"^```(sh|text)\n(.*?)^```$", document.read_text(encoding="utf-8"), re.MULTILINE | re.DOTALL)
assert [kind for kind, _ in blocks].count("sh") >= 3
environment = os.environ | {"PATH": f"{program.parent}:{os.environ['PATH']}", "PARTS": str(parts)}

with tempfile.TemporaryDirectory() as folder:
    shutil.copy(document.with_suffix(".csv"), folder)
    output = ""
    for kind, text in blocks:
        if kind == "sh":
            done = subprocess.run(["bash", "-euc", text], cwd=folder, env=environment, capture_output=True,
                                  encoding="utf-8", check=False)
            assert done.returncode == 0, text + done.stderr
            output = done.stdout
        else:
            assert output.endswith(text), f"told:\n{output}\nwritten:\n{text}"
    for picture in ("own-parts.png", "compare.png"):
        assert pathlib.Path(folder, picture).stat().st_size > 1000, picture
