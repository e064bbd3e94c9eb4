"""OpenAPI documents, read apart from the program."""

import datetime
import json
import re

import yaml

# The same documents in other words.
SKIPPED = {"cloudflare-3.0-indented.json", "stripe-3.0.yaml"}


def documents_of_corpora(folder):
    """The files of real documents, each once."""
    return [file for name in ("openapi", "pairs") for file in sorted((folder / name).iterdir())
            if file.suffix in (".json", ".yaml") and file.name not in SKIPPED]


class Loader(yaml.CSafeLoader):
    """Takes 1e-8 for a number, as YAML 1.2 does."""


Loader.add_implicit_resolver("tag:yaml.org,2002:float", re.compile(r"[-+]?[0-9]+(\.[0-9]*)?[eE][-+]?[0-9]+$"), list("-+0123456789"))


def read_document(file):
    with open(file, encoding="utf-8") as source:
        return json.load(source) if file.suffix == ".json" else yaml.load(source, Loader)


def write_json(document, target):
    target.write_text(json.dumps(document, default=lambda value: value.isoformat() if isinstance(value, datetime.date) else str(value)))


def as_json(file, target):
    write_json(read_document(file), target)
