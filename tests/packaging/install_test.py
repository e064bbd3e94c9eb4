"""Installs the build into a folder and holds what is there against what an installed program must be: it finds its
libraries beside itself and nowhere else of the builder's, runs for every user, and its manual's links lead somewhere.

    install_test.py BUILD-FOLDER
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile

NOBODY = "65534"
failures = []


def check(holds, text):
    if not holds:
        failures.append(text)


def run(*command, **keywords):
    return subprocess.run(command, capture_output=True, text=True, **keywords)


def run_path(file):
    found = re.search(r"\((?:RUNPATH|RPATH)\).*\[(.*)\]", run("readelf", "-d", file, check=True).stdout)
    return found[1] if found else None


def check_libraries(prefix):
    program = os.path.join(prefix, "bin/specloom")
    check(run_path(program) == "$ORIGIN/../lib/specloom", f"the program's run path is {run_path(program)}")
    folder = os.path.join(prefix, "lib/specloom")
    beside = os.listdir(folder) if os.path.isdir(folder) else []
    for name in beside:
        check(run_path(os.path.join(folder, name)) == "$ORIGIN", f"{name} does not look beside itself")
    needed = run(program, env={"LD_TRACE_LOADED_OBJECTS": "1"}, check=True).stdout
    check("libc.so" in needed, "the loader tells nothing")
    check("not found" not in needed, needed)
    used = set()
    for path in re.findall(r"=> (/\S+)", needed):
        path = os.path.realpath(path)
        check(path.startswith((folder + "/", "/lib", "/usr/lib")), f"a library comes from {path}")
        if path.startswith(folder):
            used.add(os.path.basename(path))
    check(used == set(beside), f"beside the program lie {sorted(beside)}, it uses {sorted(used)}")


def check_other_user(prefix):
    """As a user who is not the builder, with the builder's home out of sight."""
    hide = 'mount -t tmpfs none "$1" && cd / && shift && exec "$@"'
    outcome = run("unshare", "--mount", "sh", "-c", hide, "sh", os.path.expanduser("~"),
                  "setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups",
                  os.path.join(prefix, "bin/specloom"), "license", "--list",
                  env={"PATH": os.environ["PATH"], "HOME": "/nonexistent"})
    check(outcome.returncode == 0 and "libyaml" in outcome.stdout,
          f"another user gets: {outcome.stdout}{outcome.stderr}")


def prose(text):
    """The text without its fenced blocks."""
    return re.sub(r"^```.*?^```", "", text, flags=re.MULTILINE | re.DOTALL)


def check_manual(prefix):
    manual = os.path.join(prefix, "share/doc/specloom")
    pages = links = 0
    for folder, _, names in os.walk(manual):
        for name in names:
            if not name.endswith(".md"):
                continue
            pages += 1
            with open(os.path.join(folder, name), encoding="utf-8") as file:
                text = file.read()
            for link in re.findall(r"\]\(([^)#\s]+)[^)]*\)", prose(text)):
                if "://" in link:
                    continue
                links += 1
                check(os.path.exists(os.path.join(folder, link)), f"{name} links to {link}, which is not installed")
    check(pages > 10 and links > 10, f"the manual has {pages} pages with {links} links")


def main():
    build = os.path.realpath(sys.argv[1])
    root = os.path.realpath(tempfile.mkdtemp())
    try:
        os.chmod(root, 0o755)
        prefix = os.path.join(root, "installed")
        run("cmake", "--install", build, "--prefix", prefix, check=True)
        check_libraries(prefix)
        check_manual(prefix)
        if os.geteuid() == 0 and run("unshare", "--mount", "true").returncode == 0:
            check_other_user(prefix)
    finally:
        shutil.rmtree(root)
    print("\n".join(failures) or "what is installed stands on its own")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
