"""Real answers of tavik-cli against their description. Usage: check_answers.py PROGRAM SCHEMA"""
import json
import pathlib
import subprocess
import sys
import tempfile

import jsonschema

program, schema_file = sys.argv[1:]
with open(schema_file, encoding="utf-8") as file:
    schema = json.load(file)
jsonschema.Draft7Validator.check_schema(schema)
validator = jsonschema.Draft7Validator(schema)
PART = "KTS31NB51E106MA01"


def run(arguments, lines=""):
    done = subprocess.run([program, *arguments], input=lines, capture_output=True, encoding="utf-8", check=False)
    return done.stdout


def curve(**members):
    return json.dumps({"part": PART, "chart": "capacitance-dc-voltage"} | members)


requests = [
    curve(id=[1, None]), curve(at=[0, "25V"]), curve(where="4uF"), curve(at=1, where=[1], frequency=5, parameter="current"),
    curve(chart="temperature-rise", dcBias=1, frequency=100),
    curve(chart="temperature-rise", x="Frequency", dcBias=1, parameter="apparent-power", parameterValue=0),
    curve(chart="allowable-power", dcBias=0, y="Effective Power"),
    curve(chart="loss-resistance", ambient=45, dcBias=5), curve(chart="loss-resistance", at=[10, "1MHz"], where=20),
    curve(chart="capacitance-temperature", dcBias=0, y="Capacitance Change"),
    "", "{", "[1]", curve(**{"dc-bias": 1}), curve(part="KTS31NB51E106MA02"), curve(chart="rise"), curve(x="Time"),
    curve(part="KTU033R71E101KA01", chart="temperature-rise"), json.dumps({"part": PART}), curve(code="din"),
    curve(ambient="warm"), curve(ambient="1V"), curve(ambient=999), curve(at=999),
    curve(chart="temperature-rise", x="Frequency", dcBias=1, parameter="current", parameterValue=999, id="last"),
]
answers = [json.loads(line) for line in run(["curve", "--requests", "-"], "\n".join(requests) + "\n").splitlines()]
assert len(answers) == len(requests)
answers.append(json.loads(run(["curve", PART, "--chart", "allowable-power", "--dc-bias", "1", "--format", "json"])))
answers.append(json.loads(run(["parts", "--format", "json"])))
assert len(answers[-1]) > 1000
# Points over ranges of conditions, and of X.
for words in (["capacitance-dc-voltage", "--ambient", "-20..85C", "--at", "5V,5..6V"],
              ["temperature-rise", "--dc-bias", "0..5V", "--frequency", "100..300kHz", "--at", "0.5A"],
              ["allowable-power", "--ambient", "20..60C", "--dc-bias", "5V", "--at", "100..300kHz"]):
    answers.append(json.loads(run(["curve", PART, "--chart", *words, "--format", "json"])))
    assert answers[-1]["points"][0]["least"] <= answers[-1]["points"][-1]["most"]
# A list of every kind: without and with heating, loads and counts, and one of parts that lack some of it.
found = [json.loads(run(["find", "--format", "json", *words.split()])) for words in (
    "--dc-bias 12V", "--frequency 300kHz --dc-bias 16V", "--parallel auto --min-capacitance 22uF --frequency 300 --current 3",
    "--parameter voltage=0.1 --frequency 100 --parallel 3")]
assert all(len(rows) > 100 for rows in found)
answers += found + [json.loads(run(["find", "nothing", "--format", "json"]))]
assert answers[-1] == []
for words in (["KTS31NR71A226KA01 x2 tolerance=10", "KTS188R71H104KA01", "--frequency", "300", "--current", "6"],
              [PART, "--current", "300kHz=4 1MHz=1.2", "--heat-resistance", "50", "--code", "jis"],
              [PART, "KTS188R71H104KA01 tolerance=-20/+80", "--dc-bias", "4.5..5.5V", "--ambient", "-10..65C",
               "--frequency", "270..330kHz", "--current", "2"],
              [PART, "--current", "1MHz=4"]):
    answers.append(json.loads(run(["bank", *words, "--format", "json"])))
    assert answers[-1]["bank"]["capacitance"] > 0
assert answers[-1]["warnings"] and not answers[-4]["warnings"]
assert answers[-2]["conditions"]["heatingAmbient"] == {"low": 20, "high": 65}
# Converters without and with parts, one of them without a rise.
BUCK = "vin=12 vout=3.3 iout=5 f=500kHz l=2.2uH"
ripples = [json.loads(run(["ripple", *words, "--format", "json"])) for words in (
    ["--buck", BUCK], ["--buck", BUCK, "--part", PART, "--part", "KTS32XB51E106MA01"],
    ["--flyback", "vin=48 vout=5 iout=3 f=2.5MHz l=4uH n=4", "--part", PART, "--dc-bias", "5V"])]
assert len(ripples[0]["sides"]) == 2 and len(ripples[1]["parts"]) == 2 and ripples[2]["parts"][0]["rise"] is None
answers += ripples
with tempfile.TemporaryDirectory() as folder:
    wave = pathlib.Path(folder, "wave.txt")
    wave.write_text("".join(f"{i * 1e-7} {i % 20 if i % 20 < 10 else 20 - i % 20}\n" for i in range(1001)), encoding="ascii")
    answers.append(json.loads(run(["ripple", str(wave), "--part", PART, "--format", "json"])))
assert answers[-1]["waveform"]["periods"] == 50
# One that others may stand for, and one that has the nearest only.
likes = [json.loads(run(["like", *words.split(), "--format", "json"])) for words in (
    "KTS188B51A475MA01", "KTS32XR71E106KA01", "KTS32XR71E106KA01 --ambient -40..10C --worse 50")]
assert likes[0]["parts"] and likes[1]["nearest"] and likes[2]["parts"][0]["lossRatio"] is None
answers += likes
# A board with all verdicts but one, nets and suggestions, and one whose units and headings are another's.
boards = pathlib.Path(schema_file).parent.parent / "tests" / "board" / "boards"
checks = [subprocess.run([program, "bom", *words, "--format", "json"], input=text, capture_output=True, text=True, check=False)
          for words, text in (
              ([str(boards / "board.csv"), "--conditions", str(boards / "rails.csv"), "--suggest"], ""),
              (["-", "--code", "jis", "--sort", "line", "--dc-bias", "5V"], f"Ref\tMPN\tVoltage\tRef\nC1\t{PART}\t10V\tx\n"),
              (["-"], f"Ref,MPN,Bias,Current,Frequency\nC1,{PART},5V,1A,300kHz\n"))]
assert [check.returncode for check in checks] == [1, 0, 0]
boards = [json.loads(check.stdout) for check in checks]
assert boards[0]["counts"]["fail"] == 4 and boards[0]["nets"] and boards[0]["rows"][0]["suggestions"]
assert boards[1]["warnings"] and boards[1]["rows"][0]["cells"]["Ref"] == "C1"
assert boards[2]["rows"][0]["rise"] > 0
answers += boards
for answer in answers:
    validator.validate(answer)
# Neither a row nor a net of a board bears what is not described.
for place in ("rows", "nets"):
    assert not validator.is_valid(boards[0] | {place: [boards[0][place][0] | {"colour": 1}]})
# The sample pair is sound; cut short, it is not.
with tempfile.TemporaryDirectory() as folder:
    for name, size in (("a.idx", None), ("a.dat", -100)):
        source = next(pathlib.Path(program).parent.glob("*" + name[1:]))
        pathlib.Path(folder, name).write_bytes(source.read_bytes()[:size])
    report = json.loads(run(["data", "check", folder, "--format", "json"]))
assert report["findings"]
validator.validate(report)

fit = json.loads(run(["data", "fit", str(pathlib.Path(schema_file).parent / "own-parts.csv"), "--format", "json"]))
assert fit["points"] and fit["groups"] and fit["warnings"]
validator.validate(fit)

met = {answer["error"]["code"] for answer in answers if "error" in answer}
named = set(schema["definitions"]["failure"]["properties"]["error"]["properties"]["code"]["enum"])
assert named - met == {"calculation"} and met <= named, named ^ met

# Each member of a found part has a value somewhere, and one lacks a value somewhere.
for key in schema["definitions"]["found"]["items"]["required"]:
    assert any(row[key] is not None for rows in found for row in rows), key
assert not validator.is_valid([found[0][0] | {"colour": 1}])
assert not validator.is_valid([{key: value for key, value in found[0][0].items() if key != "ripple"}])

# The description is strict: neither a new member nor a lost one passes.
for change in ({"colour": 1}, {"schemaVersion": 2}, {"x": "no list"}):
    assert not validator.is_valid(answers[0] | change), change
assert not validator.is_valid({key: value for key, value in answers[0].items() if key != "xUnit"})
