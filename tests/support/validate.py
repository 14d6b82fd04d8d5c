#!/usr/bin/python3
"""Says which lines of standard input are not the JSON that a schema allows: "3: why"."""
import json
import sys

import jsonschema


def without_repeats(pairs):
    if len(dict(pairs)) < len(pairs):
        raise ValueError("a key stands twice")
    return dict(pairs)


def no_number(text):
    raise ValueError(text + " is no JSON")


with open(sys.argv[1], encoding="utf-8") as file:
    schema = json.load(file)
Validator = jsonschema.validators.validator_for(schema)
Validator.check_schema(schema)
validator = Validator(schema)

lines = sys.stdin.buffer.read().split(b"\n")
if not lines[-1]:  # behind the last line feed
    lines.pop()
for number, line in enumerate(lines, 1):
    try:
        document = json.loads(
            line.decode("utf-8"), object_pairs_hook=without_repeats, parse_constant=no_number
        )
        reason = jsonschema.exceptions.best_match(validator.iter_errors(document))
    except ValueError as error:
        reason = error
    if reason:
        print(f"{number}: {str(reason).splitlines()[0]}")
