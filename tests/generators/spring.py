"""What the tests of generated Spring servers share: the libraries of Debian, and a compiler for several projects."""

import pathlib
import shutil
import subprocess

from typescript import HERE, need


def jars(*names):
    return [pathlib.Path("/usr/share/java") / f"{name}.jar" for name in names]


# What the sources name.
LIBRARIES = jars("spring3-web", "spring3-context", "spring3-core", "jakarta-validation-api", "jackson-annotations",
                 "junit-jupiter-api", "apiguardian-api")
# And what is needed to call them.
RUNTIME = LIBRARIES + jars("spring3-beans", "spring3-expression", "spring3-aop", "spring3-web.servlet", "spring3-test", "servlet-api",
                           "jackson-databind", "jackson-core", "commons-logging")


def need_java():
    need(shutil.which("javac"), "javac is not installed")
    need(all(jar.exists() for jar in RUNTIME), "the libraries of Spring are not installed")


def compile_all(folders, classes):
    """The lines that spring/CompileAll.java prints. The second compiler of the JVM stays out: it takes longer than it saves."""
    classes.mkdir()
    command = ["java", "-XX:+UseSerialGC", "-XX:TieredStopAtLevel=1", "-Xss8m", HERE / "spring" / "CompileAll.java", classes,
               ":".join(map(str, LIBRARIES)), HERE / "spring" / "stubs", *folders]
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout.splitlines()
