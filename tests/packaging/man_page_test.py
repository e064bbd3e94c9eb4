"""Holds the man page against what the program's own help says, and against roff.

    man_page_test.py PROGRAM PAGES-FOLDER SAMPLE-FOLDER
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile

failures = []


def check(holds, text):
    if not holds:
        failures.append(text)


def rendered(page):
    """The page as plain text, in lines that end only where roff must end them."""
    warnings = subprocess.run(["groff", "-man", "-Tutf8", "-ww", "-z", page], capture_output=True, text=True, check=True)
    check(warnings.stdout + warnings.stderr == "", f"{page}: {warnings.stderr}")
    text = subprocess.run(["groff", "-man", "-Tutf8", "-P-cbou", "-rLL=2000n", page], capture_output=True, text=True,
                          check=True)
    return text.stdout


def sections(text):
    """The text of each command, by its path without the program's name."""
    body = text.partition("\nCOMMANDS\n")[2].partition("\nEXIT STATUS\n")[0]
    parts = re.split(r"^   (\S.*)$", body, flags=re.MULTILINE)
    return dict(zip(parts[1::2], parts[2::2]))


def help_of(program, path):
    with tempfile.TemporaryDirectory() as folder:
        return subprocess.run([program, *path, "--help"], cwd=folder, capture_output=True, text=True, check=True).stdout


def rows(text, heading):
    """The rows "names  explanation" below a heading of a help text."""
    block = text.partition(f"\n{heading}:\n")[2].partition("\n\n")[0]
    found = []
    for line in block.splitlines():
        names, _, explanation = line.strip().partition("  ")
        found.append((names, re.sub(r" *\[(default: |nargs[:=]).*$", "", explanation).strip()))
    return found


def choices(program, path, option):
    with tempfile.TemporaryDirectory() as folder:
        refused = subprocess.run([program, *path, option, "no such value", "a", "b"], cwd=folder, capture_output=True,
                                 text=True).stdout
    listed = re.search(r"allowed options: \{(.*)\}", refused)
    return listed[1].split(", ") if listed else []


def check_command(program, path, page, common):
    """Checks the command and those below it; returns how many arguments were seen."""
    text = help_of(program, path)
    section = page[" ".join(path)] if path else common
    where = " ".join(["specloom", *path])
    arguments = rows(text, "Positional arguments") + rows(text, "Optional arguments")
    for names, explanation in arguments:
        for name in names.replace(",", "").split():
            check(name.upper() in section.upper() or name in common, f"{where}: the page lacks {name}")
        check(explanation in section or explanation in common, f"{where}: the page lacks: {explanation}")
        if names.startswith("--"):
            for choice in choices(program, path, names.split()[0]):
                check(choice in section, f"{where}: the page lacks the choice {choice} of {names}")
    seen = len(arguments)
    for command, description in rows(text, "Subcommands"):
        check(description in section, f"{where}: the page lacks: {description}")
        check(" ".join([*path, command]) in page, f"{where}: the page lacks the command {command}")
        if " ".join([*path, command]) in page:
            seen += check_command(program, [*path, command], page, common)
    return seen


def main():
    if not shutil.which("groff"):
        print("groff is missing")
        return 77
    program, pages, sample = sys.argv[1:]
    text = rendered(os.path.join(pages, "specloom.1"))
    version = subprocess.run([program, "--version"], cwd=tempfile.gettempdir(), capture_output=True, text=True).stdout
    check(f"Spec Loom {version.strip()}" in text, "the page's foot lacks the version")
    common = text.partition("\nCOMMANDS\n")[0]
    seen = check_command(program, [], sections(text), common)
    check(seen > 20, f"only {seen} arguments were found in help texts")

    check("   generate client fetch\n       specloom generate client fetch --output OUTPUT [--config CONFIG] INPUT\n" in text,
          "the page lacks the usage of a command below commands")

    odd = rendered(os.path.join(sample, "sample.1"))
    for literal in ["'Tis a \"leaf\": $(touch hurt) `touch hurt` [x]:y \\fBnot bold\\fR", ".so hurt", "--text A:B]",
                    "it's 100% \\odd~^`", "Values: {a,b}, $HOME, it's, back\\slash, two words, co:lon, *, -dash.",
                    "[--many MANY]... INPUT", "[--output OUTPUT] --from FROM [--text A:B]]",
                    "sample make client fly-by", "1.2é"]:
        check(literal in odd, f"the sample lacks: {literal}")

    print("\n".join(failures) or f"the page has {seen} arguments as the program's help has them")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
