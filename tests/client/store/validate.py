# Says of each document of a JSON array on the standard input, as "1" or "0", whether it follows the schema that is named.

import json
import sys

import jsonschema

with open(sys.argv[1], encoding="utf-8") as file:
    schema = json.load(file)
jsonschema.Draft7Validator.check_schema(schema)
validator = jsonschema.Draft7Validator(schema)
print("".join(str(int(validator.is_valid(document))) for document in json.load(sys.stdin)))
