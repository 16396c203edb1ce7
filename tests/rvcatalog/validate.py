#!/usr/bin/env python3
"""validate.py SCHEMA DEFINITION: says why the JSON on the standard input is none that the definition describes.

"DEFINITION..." is an array of such.
"""
import json
import sys

import jsonschema

with open(sys.argv[1], encoding="utf-8") as file:
    schema = json.load(file)
jsonschema.Draft202012Validator.check_schema(schema)
definition = {"$ref": "#/$defs/" + sys.argv[2].removesuffix("...")}
if sys.argv[2].endswith("..."):
    definition = {"type": "array", "items": definition}
part = {"$schema": schema["$schema"], "$defs": schema["$defs"], **definition}
errors = [
    f"/{'/'.join(map(str, error.absolute_path))}: {error.message}"
    for error in jsonschema.Draft202012Validator(part).iter_errors(json.load(sys.stdin))
]
print("\n".join(errors[:10]), end="")
sys.exit(1 if errors else 0)
