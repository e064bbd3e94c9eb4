"""What the tests of generated TypeScript projects share: Node.js, the packages that they install, the corpora."""

import fcntl
import hashlib
import os
import pathlib
import shutil
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
IS_REQUIRED = "SPECLOOM_REQUIRE_CORPORA" in os.environ


def need(what, reason):
    """Ends a test that lacks something: it is skipped, or fails where the corpora are required."""
    if not what:
        print(reason)
        sys.exit(1 if IS_REQUIRED else 77)
    return what


def need_node():
    for tool in ("node", "npm"):
        need(shutil.which(tool), f"{tool} is not installed")


def corpora():
    """Their folder; None without them."""
    folder = pathlib.Path(os.environ.get("SPECLOOM_CORPORA", ROOT.parent / "shared" / "corpora"))
    return folder if folder.is_dir() else None


def generate(program, generator, document, folder, *options):
    """Runs "specloom generate" beside the output folder. Returns the text of the failure; empty when there is none."""
    folder.parent.mkdir(parents=True, exist_ok=True)
    run = subprocess.run([program, "generate", *generator.split(), document, "--output", folder, *options],
                         cwd=folder.parent, stdin=subprocess.DEVNULL, capture_output=True, text=True)
    notes = [line for line in run.stderr.splitlines() if not line.startswith("specloom: note: ")]
    if run.returncode == 0 and (run.stdout or notes):
        return f"unexpected output: {run.stdout}{run.stderr}"
    return "" if run.returncode == 0 else run.stdout + run.stderr or f"status {run.returncode}"


def installed_dependencies(work, folder="express", beside=()):
    """The folder node_modules, below `work`, with what the lockfile of a folder beside this file pins. It is installed once for each
    state of that, and of the packages in the folders `beside` this file, which it takes from there."""
    pinned = [HERE / folder / name for name in ("package.json", "package-lock.json")]
    sources = pinned + [file for name in beside for file in sorted((HERE / name).rglob("*")) if file.is_file()]
    state = hashlib.sha256(b"\0".join(file.read_bytes() for file in sources)).hexdigest()[:16]
    target = work / f"{folder}-dependencies-{state}"
    with open(work / f"{folder}-dependencies.lock", "w", encoding="utf-8") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)  # for tests that run at once
        if not (target / "complete").exists():
            shutil.rmtree(target, ignore_errors=True)
            target.mkdir(parents=True)
            for file in pinned:
                shutil.copy(file, target)
            for name in beside:
                shutil.copytree(HERE / name, target / name)
            # A package that were linked would look for its own dependencies where it stands.
            subprocess.run(["npm", "ci", "--no-audit", "--no-fund", "--ignore-scripts", "--install-links"], cwd=target, check=True,
                           stdin=subprocess.DEVNULL)
            (target / "complete").touch()
    return target / "node_modules"
