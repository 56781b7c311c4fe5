"""checkschema.py SCHEMA INSTANCES: each line of INSTANCES is a verdict ("good" or "bad"), a blank and an instance.
Prints the lines that the schema judges otherwise; the status is 1 then."""
import json
import sys

import jsonschema

with open(sys.argv[1], encoding="utf-8") as file:
    schema = json.load(file)
validator = jsonschema.Draft202012Validator
validator.check_schema(schema)
judge = validator(schema)
wrong = 0
with open(sys.argv[2], encoding="utf-8") as file:
    for line in file:
        verdict, _, text = line.partition(" ")
        if judge.is_valid(json.loads(text)) != (verdict == "good"):
            print("not " + line, end="")
            wrong += 1
sys.exit(1 if wrong else 0)
