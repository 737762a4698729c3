"""The Python wrapper of the documents. Usage: check_wrapper.py PROGRAM FOLDER-OF-THE-WRAPPER"""
import sys

program, folder = sys.argv[1:]
sys.path.insert(0, folder)
sys.dont_write_bytecode = True
import tavik  # noqa: E402

with tavik.Tavik(program) as ask:
    whole = ask(part="KTS31NB51E106MA01", chart="capacitance-dc-voltage", id="whole")
    assert whole["id"] == "whole" and len(whole["y"]) == 200
    points = ask(part="KTS31NB51E106MA01", chart="capacitance-dc-voltage", at=["0V", 25])["points"]
    assert [point["y"] for point in points] == [whole["y"][0], whole["y"][-1]]
    try:
        ask(part="KTS31NB51E106MA01", chart="capacitance-dc-voltage", ambient="126C")
    except ValueError as error:
        assert error.args[0]["code"] == "range" and error.args[0]["key"] == "ambient"
    else:
        raise AssertionError("not refused")
    assert ask(part="KTS31NB51E106MA01", chart="capacitance-temperature", dcBias=0)["xUnit"] == "\u00b0C"
assert ask.batch.returncode == 1

# A program that cannot start says why.
try:
    with tavik.Tavik(program, "--data", "no such folder") as ask:
        ask(part="KTS31NB51E106MA01", chart="capacitance-dc-voltage")
except ValueError as error:
    assert "no such folder" in error.args[0]
except BrokenPipeError:
    pass
else:
    raise AssertionError("not refused")
