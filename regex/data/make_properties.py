#!/usr/bin/env python3
"""Writes ../src/properties_data.cpp from the Unicode Character Database (Debian: unicode-data).

    make_properties.py [FOLDER]      where UnicodeData.txt and its like are, by default /usr/share/unicode
"""
import pathlib
import re
import sys

LIMIT = 0x110000
# The binary properties of ECMA-262 that patterns of real documents may want; each costs a table.
BINARY = {
    "Alphabetic": "DerivedCoreProperties.txt", "Lowercase": "DerivedCoreProperties.txt",
    "Uppercase": "DerivedCoreProperties.txt", "ID_Start": "DerivedCoreProperties.txt",
    "ID_Continue": "DerivedCoreProperties.txt", "White_Space": "PropList.txt", "Hex_Digit": "PropList.txt",
    "ASCII_Hex_Digit": "PropList.txt", "Ideographic": "PropList.txt", "Emoji": "emoji/emoji-data.txt",
    "Emoji_Presentation": "emoji/emoji-data.txt", "Extended_Pictographic": "emoji/emoji-data.txt",
}
folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "/usr/share/unicode")


def rows(name):
    for line in (folder / name).read_text(encoding="utf-8").splitlines():
        fields = [field.strip() for field in line.split("#")[0].split(";")]
        if len(fields) > 1:
            yield fields


def span(text):
    first, _, last = text.partition("..")
    return int(first, 16), int(last or first, 16)


def by_code_point(name, default):
    values = [default] * LIMIT
    for code, value, *_ in rows(name):
        first, last = span(code)
        values[first:last + 1] = [value] * (last + 1 - first)
    return values


def runs(values):
    """Where a value begins, with the value: the next one ends it."""
    before = None
    for code, value in enumerate(values):
        if value != before:
            yield code, value
            before = value


def categories():
    values = ["Cn"] * LIMIT
    begin = None
    for fields in rows("UnicodeData.txt"):
        code = int(fields[0], 16)
        if fields[1].endswith(", First>"):
            begin = code
            continue
        for each in range(code if begin is None else begin, code + 1):
            values[each] = fields[2]
        begin = None
    return values


def lines(items):
    line = "   "
    for item in items:
        if len(line) + len(item) + 2 > 110:
            yield line
            line = "   "
        line += " " + item + ","
    yield line


def array(kind, name, items):
    print(f"const {kind} {name}[] = {{")
    print("\n".join(lines(items)))
    print("};\n")


aliases = {"gc": [], "sc": []}
for kind, *names in rows("PropertyValueAliases.txt"):
    if kind in aliases:
        aliases[kind].append(names)
short_scripts = {long: short for short, long, *_ in aliases["sc"]}
version = re.search(r"PropertyValueAliases-([\d.]+)\.txt", (folder / "PropertyValueAliases.txt").read_text()).group(1)
sys.stdout = open(pathlib.Path(__file__).parent / "../src/properties_data.cpp", "w", encoding="ascii")

print(f"""// Made by data/make_properties.py from the Unicode Character Database, version {version}.
// clang-format off

#include "regex/properties_data.h"

namespace specloom::regex {{

namespace {{
""")
category_values = categories()
array("PropertyRun", "categoryRuns", [f'{{0x{code:X}, "{value}"}}' for code, value in runs(category_values)])
script_values = [short_scripts[value] for value in by_code_point("Scripts.txt", "Unknown")]
array("PropertyRun", "scriptRuns", [f'{{0x{code:X}, "{value}"}}' for code, value in runs(script_values)])
extension_values = by_code_point("ScriptExtensions.txt", "")
array("PropertyRun", "scriptExtensionRuns", [f'{{0x{code:X}, "{value}"}}' for code, value in runs(extension_values)])
for name, source in BINARY.items():
    members = [False] * LIMIT
    for code, value, *_ in rows(source):
        if value == name:
            first, last = span(code)
            members[first:last + 1] = [True] * (last + 1 - first)
    array("char32_t", name[0].lower() + name[1:].replace("_", ""), [f"0x{code:X}" for code, _ in runs(members)][1:])
array("PropertyAlias", "categoryAliases",
      [f'{{"{names[0]}", "{alias}"}}' for names in aliases["gc"] for alias in dict.fromkeys(names)])
array("PropertyAlias", "scriptAliases",
      [f'{{"{names[0]}", "{alias}"}}' for names in aliases["sc"] for alias in dict.fromkeys(names)])
names = {short: long for short, long, *_ in rows("PropertyAliases.txt")}
short_names = {long: short for short, long in names.items()}
array("BinaryProperty", "binaries",
      [f'{{"{short_names[name]}", "{name}", {name[0].lower() + name[1:].replace("_", "")}}}' for name in BINARY])
print("""} // namespace

std::span<const PropertyRun> categoryTable() { return categoryRuns; }
std::span<const PropertyRun> scriptTable() { return scriptRuns; }
std::span<const PropertyRun> scriptExtensionTable() { return scriptExtensionRuns; }
std::span<const PropertyAlias> categoryAliasTable() { return categoryAliases; }
std::span<const PropertyAlias> scriptAliasTable() { return scriptAliases; }
std::span<const BinaryProperty> binaryPropertyTable() { return binaries; }

} // namespace specloom::regex""")
