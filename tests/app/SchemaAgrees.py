"""What `orlena schema` takes the program takes too, and what it refuses the program refuses.

SchemaAgrees.py PROGRAM SOURCE: all answers files of the project are valid; 200 files that are made of them with one fault
each are refused by both, by the program with status 2 and a line of the file.
"""

import copy
import itertools
import json
import pathlib
import random
import re
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

import jsonschema

WRONG_FILES = 200
chance = random.Random(10)


def places(value, path=()):
    """The paths of all values, from the outermost."""
    yield path
    inner = value.items() if isinstance(value, dict) else enumerate(value) if isinstance(value, list) else ()
    for key, member in inner:
        yield from places(member, path + (key,))


def at(value, path):
    for key in path:
        value = value[key]
    return value


def some(room, wanted):
    """One of the places with such a value and such a last key; none: IndexError."""
    return chance.choice([path for path in places(room) if path and wanted(path, at(room, path))])


def put(room, path, value):
    at(room, path[:-1])[path[-1]] = value


def misspell_key(room):
    path = some(room, lambda path, _: isinstance(path[-1], str))
    key, around = path[-1], at(room, path[:-1])
    members = [(key[:-1] + "x" if name == key else name, value) for name, value in around.items()]
    around.clear()
    around.update(members)


def add_key(room):
    path = chance.choice([path for path in places(room) if isinstance(at(room, path), dict)])
    at(room, path)[chance.choice(["comment", "Device", "on delay", ""])] = 1


def change_type(room):
    path = some(room, lambda *_: True)
    others = [value for value in ("five", 5, True, 2.5, [], ["a"], [5])
              if not isinstance(value, type(at(room, path)))]
    put(room, path, chance.choice(others))


def nothing(room):
    put(room, some(room, lambda path, value: not isinstance(value, dict) or isinstance(path[-1], int)), None)


def change_number(room):
    path = some(room, lambda _, value: type(value) is int)
    put(room, path, chance.choice([-1, 1000, 10**30, 0.5, -1e-3, str(at(room, path))]))


def take_required(room):
    path = some(room, lambda path, _: path[-1] == "type" or path[-1] == "device" and path[0] in ("screen", "lift"))
    del at(room, path[:-1])[path[-1]]


def change_word(room):
    path = some(room, lambda path, _: path[-1] in ("volume_knob", "microphone", "control", "contact"))
    put(room, path, at(room, path).upper() if chance.random() < 0.5 else chance.choice(["", "both", "on"]))


def change_device(room):
    path = some(room, lambda path, _: path[-1] in ("device", "type"))
    name = at(room, path)
    put(room, path, chance.choice([name + " ", name[1:], name.upper(), "", "Motion Detector", "Power Relay"]))


def change_command(room):
    path = some(room, lambda path, _: path in command_places)
    category = "display" if path[0] == "power" else path[0]
    own = commands[category][room[category]["device"]]
    foreign = sorted(set().union(*commands[category].values()) - own)
    put(room, path, chance.choice([chance.choice(foreign), "No such command"]))


def change_text(room):
    put(room, ("name",), chance.choice(["", "N" * chance.randint(51, 90)]))


def change_label(room):
    transmitter = at(room, some(room, lambda path, _: path[0] == "transmitters" and isinstance(path[-1], int)))
    transmitter["label"] = chance.choice(["", " ", "Wall ", " Wall", "W" * 9])


def change_password(room):
    if "fenlet_password" not in room["room"]:
        raise KeyError
    room["room"]["fenlet_password"] = chance.choice([" ", "a\tb", "p" * 21])


def one_too_many(room):
    room["transmitters"] = [{"type": "Wall Plate Transmitter"}] * 4


FAULTS = [misspell_key, add_key, change_type, nothing, change_number, take_required, change_word, change_device,
          change_command, change_text, change_label, change_password, one_too_many]

command_places = {("display", "rgb"), ("display", "composite"), ("power", "on"), ("power", "off"),
                  ("power", "second_off", "command"), ("screen", "on"), ("screen", "off"), ("lift", "on"), ("lift", "off")}
commands = {"display": {}, "screen": {}, "lift": {}}
categories = {"Video/Data Projector": "display", "Screen": "screen", "Projector Lift": "lift"}


def read_library(source):
    for file in sorted((source / "data/library").glob("*.json")):
        for device in json.loads(file.read_text()).get("devices", []):
            if device["category"] in categories:
                names = {command["name"] for command in device.get("commands", [])}
                commands[categories[device["category"]]][device["name"]] = names


def wrong_files(rooms):
    """Each has one fault; the same ones in every run."""
    made = set()
    for fault in itertools.cycle(FAULTS):
        if len(made) == WRONG_FILES:
            return
        room = copy.deepcopy(chance.choice(rooms))
        try:
            fault(room)
        except (IndexError, KeyError):
            continue  # the room has no such place
        text = json.dumps(room, indent=1, ensure_ascii=False) + "\n"
        if text not in made:
            made.add(text)
            yield fault.__name__, text


def main(program, source):
    whole = json.loads(subprocess.run([program, "schema"], check=True, capture_output=True).stdout)
    jsonschema.Draft202012Validator.check_schema(whole)
    schema = jsonschema.Draft202012Validator(whole)
    read_library(source)

    examples = [file for file in source.glob("examples/**/*.json") if file.parent.name != "trials"]
    files = sorted([*examples, *source.glob("tests/golden/*/answers.json")])
    assert len(files) > 20, files
    rooms = [json.loads(file.read_text()) for file in files]
    assert schema.is_valid({"display": {"rgb": "RGB_1"}}), "without a device each one's commands are taken"
    faults = [f"{file}: {error.message}" for file, room in zip(files, rooms) for error in schema.iter_errors(room)]

    with tempfile.TemporaryDirectory() as folder:
        def tell(number, fault, text):
            file = pathlib.Path(folder) / f"{number}.json"
            file.write_text(text)
            run = subprocess.run([program, "build", file, "--out", folder], capture_output=True, text=True)
            isRefused = run.returncode == 2 and re.match(re.escape(f"{file}:") + r"[1-9]\d*: ", run.stderr)
            if not isRefused:
                yield f"{fault}: the program ended with {run.returncode}: {run.stderr}\n{text}"
            if schema.is_valid(json.loads(text)):
                yield f"{fault}: the schema takes what the program refuses with {run.stderr}\n{text}"

        with ThreadPoolExecutor(2) as pool:
            wrong = list(wrong_files(rooms))
            tellings = pool.map(lambda each: list(tell(each[0], *each[1])), enumerate(wrong))
            faults += [told for each in tellings for told in each]

    print("\n".join(faults) or f"{len(rooms)} files are taken and {len(wrong)} refused by both")
    return 1 if faults else 0


sys.exit(main(sys.argv[1], pathlib.Path(sys.argv[2])))
