"""Completes command lines in a shell, as a user does who presses the key for it.

    completions_test.py SHELL FOLDER...

SHELL is bash, zsh or fish; the folders hold what specloom_describe and its sample write. bash and zsh run on a
terminal of their own, where a key inserts all that they offer into the line; fish is asked to list it.
"""

import os
import pty
import select
import shutil
import signal
import subprocess
import sys
import tempfile
import time

LIBRARIES = ("GoogleTest HunSpell LibBF MD4C TinyXML2 ada argparse base64 libyaml opentelemetry semver uri-template "
             "utfcpp yajl {fmt}").split()
LINT_FORMATTERS = "checkstyle compact html json junit stylish tap unix visualstudio".split()
DIFF_FORMATTERS = "html json markdown stylish unix visualstudio".split()
DEFAULTS = ["--help", "--version"]
DOCUMENTS = ["a.json", "b.YAML", "c d.yml", "sub/"]
EVERYTHING = DOCUMENTS + ["e.txt", "it's.txt"]
ODD = ["$HOME", "*", "-dash", "back\\slash", "co:lon", "it's", "two words", "{a,b}"]

# What was typed, and what the shell offers for the last word.
CASES = [
    ("specloom ", ["credits", "diff", "format", "generate", "i18n", "license", "lint", "server"]),
    ("specloom li", ["license", "lint"]),
    ("specloom nothing", []),
    ("specloom --", DEFAULTS),
    ("specloom lint --", DEFAULTS + ["--config", "--fix", "--fix-dry-run", "--formatter", "--no-notes"]),
    ("specloom diff --", DEFAULTS + ["--config", "--formatter", "--no-notes", "--print-version", "--report", "--update-version"]),
    ("specloom license --l", ["--library", "--list"]),
    ("specloom lint --formatter ", LINT_FORMATTERS),
    ("specloom lint --formatter j", ["json", "junit"]),
    ("specloom lint --formatter=j", ["json", "junit"]),
    ("specloom diff --formatter ", DIFF_FORMATTERS),
    ("specloom diff --report ", ["changelog", "detailed", "status"]),
    ("specloom diff --report=", ["changelog", "detailed", "status"]),
    ("specloom diff --formatter html --report s", ["status"]),
    ("specloom license --library ", LIBRARIES),
    ("specloom license --library liby", ["libyaml"]),
    ("specloom lint ", DOCUMENTS),
    ("specloom lint a.json ", DOCUMENTS),
    ("specloom lint --config ", DOCUMENTS),
    ("specloom lint --config=", DOCUMENTS),
    ("specloom lint --config lint --fix ", DOCUMENTS),  # a value is no command
    ("specloom lint sub/", ["sub/deep.yaml"]),
    ("specloom lint c\\ ", ["c d.yml"]),
    ("specloom lint \"c ", ["c d.yml"]),
    ("specloom format --output ", DOCUMENTS),
    ("specloom diff a.json ", DOCUMENTS),
    ("specloom diff a.json sub/deep.yaml ", []),
    ("specloom credits ", []),
    ("specloom server ", []),
    ("specloom i18n a.json --", DEFAULTS + ["--drop-obsolete", "--output"]),
    ("specloom generate ", ["client", "data", "doc", "mock", "server"]),
    ("specloom generate client ", "cpp elixir fetch kotlin python rust swift".split()),
    ("specloom generate server f", ["fastapi", "fastify"]),
    ("specloom generate server express ", DOCUMENTS),
    ("specloom generate server express a.json ", []),
    ("specloom generate server express --output ", EVERYTHING),
    ("specloom generate server express --config=", DOCUMENTS),
    ("specloom generate server express --p", ["--package-name", "--package-version"]),
    ("specloom generate doc html a.json --i18n de=de.yaml --i", ["--i18n"]),
    ("specloom generate data --", DEFAULTS + ["--config", "--mime-type", "--number", "--output", "--pointer"]),
    ("specloom generate data ", DOCUMENTS),
    ("sample ", ["make", "say"]),
    ("sample make ", ["client", "data"]),
    ("sample make client ", ["fetch", "fly-by"]),
    ("sample make client fly-by ", DOCUMENTS),
    ("sample make client fly-by a.json ", []),
    ("sample make client fetch -o ", EVERYTHING),
    ("sample make client fetch --output=", EVERYTHING),
    ("sample make client fetch --text ", []),
    ("sample make client fetch --odd ", ODD),
    ("sample make data --odd ", ODD),
    ("sample make data --odd t", ["two words"]),
    ("sample make data --many x --many ", ["x", "y"]),
]


class Terminal:
    """A shell on a terminal. report() has it print its line between two marks."""

    def __init__(self, command, folder, environment, setup):
        self.pid, self.file = pty.fork()
        if self.pid == 0:
            os.chdir(folder)
            os.execvpe(command[0], command, environment)
        self.output = b""
        for line in setup:
            os.write(self.file, line.encode() + b"\n")
        os.write(self.file, b"printf '\\x01%s\\x02' rea\"\"dy\n")
        self.marked(b"\x01ready\x02")

    def marked(self, end):
        deadline = time.monotonic() + 60
        while end not in self.output:
            if not select.select([self.file], [], [], max(0, deadline - time.monotonic()))[0]:
                sys.exit(f"the shell does not answer; it printed: {self.output.decode(errors='replace')}")
            self.output += os.read(self.file, 65536)
        text, _, self.output = self.output.partition(end)
        return text

    def offers(self, typed, insert, report, clear):
        os.write(self.file, typed.encode() + insert + report)
        line = self.marked(b"\x02").rpartition(b"\x01")[2].decode()
        os.write(self.file, clear)
        return line

    def end(self):
        os.kill(self.pid, signal.SIGKILL)
        os.waitpid(self.pid, 0)
        os.close(self.file)


def words(line):
    """The words of a line as a shell takes them."""
    quoted = subprocess.run(["bash", "-c", "set -f; eval \"set -- $1\"; printf '%s\\0' \"$@\"", "words",
                             line.replace("{", "\\{").replace("\\\\{", "\\{")], capture_output=True, check=True)
    return quoted.stdout.decode().split("\0")[:-1]


def last_word(typed):
    for start in ("\"c ", "c\\ "):
        if typed.endswith(start):
            return start
    return typed.rpartition(" ")[2]


def inserted(typed, line):
    """What a shell put in place of the last word."""
    last = last_word(typed)
    before = typed[:len(typed) - len(last)]
    if line == typed or not line.startswith(before):
        return []
    option = last[:last.index("=") + 1] if "=" in last else ""
    return [word.removeprefix(option) for word in words(line[len(before):])]


def bash(folder, pages, environment):
    inputrc = os.path.join(os.path.dirname(folder), "inputrc")
    with open(inputrc, "w") as file:
        file.write('set enable-bracketed-paste off\nset bell-style none\n"\\C-xa": insert-completions\n')
    setup = ["PS1= PS2="] + [f". {path}/{name}.bash" for path, name in pages]
    setup.append('''show() { printf '\\x01%s\\x02' "$READLINE_LINE"; }; bind -x '"\\C-xp": show' ''')
    shell = Terminal(["bash", "--norc", "--noprofile", "-i"], folder, dict(environment, INPUTRC=inputrc), setup)
    return lambda typed: inserted(typed, shell.offers(typed, b"\x18a", b"\x18p", b"\x01\x0b")), shell.end


def zsh(folder, pages, environment):
    setup = ["PS1= PS2= PROMPT_SP= ; unsetopt prompt_cr prompt_sp; setopt no_always_last_prompt; ZDOTDIR=/nonexistent",
             "fpath=(" + " ".join(path for path, _ in pages) + " $fpath); autoload -U compinit; compinit -u -D",
             "every() { _main_complete; compstate[insert]=all; unset 'compstate[list]' }",
             "zle -C every complete-word every; show() { printf '\\x01%s\\x02' $BUFFER }; zle -N show",
             "bindkey -e; bindkey '^Xa' every; bindkey '^Xp' show; bindkey '^Xk' kill-buffer"]
    shell = Terminal(["zsh", "-f", "-i"], folder, environment, setup)
    return lambda typed: inserted(typed, shell.offers(typed, b"\x18a", b"\x18p", b"\x18k")), shell.end


def fish(folder, pages, environment):
    sources = "; ".join(f"source {path}/{name}.fish" for path, name in pages)

    def offers(typed):
        listed = subprocess.run(["fish", "--no-config", "-c", sources + "; complete -C $argv[1]", "--", typed],
                                cwd=folder, env=environment, capture_output=True, text=True, check=True)
        last = last_word(typed)
        option = last[:last.index("=") + 1] if "=" in last else ""
        return [line.partition("\t")[0].removeprefix(option) for line in listed.stdout.splitlines()]

    return offers, lambda: None


def main():
    shell, folders = sys.argv[1], sys.argv[2:]
    if not shutil.which(shell):
        print(f"{shell} is missing")
        return 77
    pages = list(zip(folders, ["specloom", "sample"]))
    failures = 0
    with tempfile.TemporaryDirectory() as root:
        folder = os.path.join(root, "folder")
        os.makedirs(os.path.join(folder, "sub"))
        for name in ["a.json", "b.YAML", "c d.yml", "e.txt", "it's.txt", "sub/deep.yaml", "sub/other.md"]:
            open(os.path.join(folder, name), "w").close()
        environment = {"PATH": os.environ["PATH"], "HOME": root, "TERM": "xterm", "LC_ALL": "C.UTF-8",
                       "COLUMNS": "500"}
        offers, end = {"bash": bash, "zsh": zsh, "fish": fish}[shell](folder, pages, environment)
        for typed, expected in CASES:
            found = sorted(word.removesuffix("/") for word in offers(typed))
            expected = sorted(word.removesuffix("/") for word in expected)
            if shell == "zsh":  # an option that is the last of all goes on to its value
                found = [word.removesuffix("=") if word.startswith("--") else word for word in found]
            if shell == "zsh" and not expected:  # where nothing fits zsh goes on to options
                found = [word for word in found if not word.startswith("-")]
            if found != expected:
                failures += 1
                print(f"{typed!r}\n  offers   {found}\n  expected {expected}")
        end()
        if os.path.exists(os.path.join(folder, "hurt")):
            failures += 1
            print("a text was run as a command")
    print(f"{shell}: {len(CASES)} lines, {failures} of them completed otherwise")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
