"""A copy of the tree in which a change is made, built and tested."""

import json
import os
import pathlib
import re
import resource
import shlex
import signal
import subprocess
import tempfile
import time

from .changes import changes_of
from .record import KILLED, NOT_COMPILED, SURVIVED, Verdict

# Programs without windows see in a moment what others need a minute for.
KINDS = ["model", "widget", "window"]
LEFT_OUT = {"random_user", "long_use_test"}
# A changed program may ask for memory without end.
LARGEST_MEMORY = 6 << 30


class Program:
    """A test program, how it is started, and how far from the models it stands."""

    def __init__(self, name, command, rank):
        self.name = name
        self.command = command
        self.rank = rank


class Workshop:
    """One copy of a commit, with a build of its own."""

    def __init__(self, original, folder, commit):
        self.original = original
        self.folder = folder.resolve()
        self.commit = commit
        self.build = self.folder / "build"
        self.programs = []

    def run(self, *command, **options):
        return subprocess.run(command, cwd=self.folder, check=True, **options)

    def output(self, *command):
        return self.run(*command, stdout=subprocess.PIPE, text=True).stdout

    def prepare(self):
        """Copies the commit and builds everything; a copy that is there already is brought to it."""
        if not self.folder.exists():
            subprocess.run(["git", "clone", "-q", str(self.original), str(self.folder)], check=True)
        self.run("git", "fetch", "-q", "origin")
        self.run("git", "checkout", "-q", "--force", "--detach", self.commit)
        self.run(
            "cmake",
            "--preset",
            "release",
            "-DTORVANE_TESTS=ON",
            "-DTORVANE_BENCH=OFF",
            # A changed source may leave a name unused: that is no reason not to compile it.
            "-DCMAKE_CXX_FLAGS=-w",
            "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache",
            "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON",
            stdout=subprocess.DEVNULL,
        )
        self.run("cmake", "--build", self.build, env=self.compiling(), stdout=subprocess.DEVNULL)
        self.programs = self.listed_programs()

    def compiling(self):
        """Copies share what they compile."""
        return {**os.environ, "CCACHE_BASEDIR": str(self.folder), "CCACHE_NOHASHDIR": "1"}

    def changes(self, layers):
        commands = json.loads((self.build / "compile_commands.json").read_text())
        sources = {}
        for command in commands:
            path = pathlib.Path(command["file"])
            if (
                path.is_relative_to(self.folder)
                and path.relative_to(self.folder).parts[0] in layers
            ):
                # Without the compiler in front, and without "-o object -c source" at the end.
                compiler_arguments = shlex.split(command["command"])
                first = next(i for i, word in enumerate(compiler_arguments) if word.startswith("-"))
                sources[path] = compiler_arguments[first : compiler_arguments.index("-o")]
        return changes_of(self.folder, sorted(sources.items()), layers)

    def listed_programs(self):
        """Every test program that ctest knows, each once.

        It knows them in the order of the layers, the models first.
        """
        listed = json.loads(self.output("ctest", "--test-dir", self.build, "--show-only=json-v1"))
        programs = {}
        layers = []
        for test in listed["tests"]:
            labels = next((p["value"] for p in test["properties"] if p["name"] == "LABELS"), [""])
            binaries = [
                word for word in test.get("command", []) if word.startswith(f"{self.build}/bin/")
            ]
            if not binaries or labels[0] not in KINDS:
                continue
            name = pathlib.Path(binaries[0]).name
            layer = self.layer_of(name)
            # Scripts that start the program itself are no test programs.
            if layer and name not in LEFT_OUT and name not in programs:
                before = test["command"][: test["command"].index(binaries[0])]
                # The commands are run in the copy's folder.
                command = [word.removeprefix(f"{self.folder}/") for word in [*before, binaries[0]]]
                if layer not in layers:
                    layers.append(layer)
                rank = (KINDS.index(labels[0]), layers.index(layer))
                programs[name] = Program(name, command, rank)
        return list(programs.values())

    def layer_of(self, name):
        """The folder of a test program's sources; empty for another program."""
        found = re.search(r"tests/(\w+)/CMakeFiles", self.inputs_of(name))
        return found[1] if found else ""

    def started_by(self, name):
        """The programs that a test program starts: they are built before it, but not into it."""
        return re.findall(r"\|\| bin/([\w-]+)", self.inputs_of(name))

    def inputs_of(self, name):
        return self.output("ninja", "-C", self.build, "-t", "query", f"bin/{name}")

    def seconds(self, program):
        """How long a program takes while nothing is changed. It must pass."""
        started = time.monotonic()
        if failed := self.failing_test(program, timeout=1800):
            raise SystemExit(f"{failed} fails although nothing is changed")
        return time.monotonic() - started

    def programs_seeing(self, paths):
        """For each file the test programs that depend on it. Everything must be built."""
        seeing = {}
        run = {p.name: {p.name, *self.started_by(p.name)} for p in self.programs}
        for path in paths:
            file = self.folder / path
            before = file.stat()
            file.touch()
            plan = self.output("ninja", "-C", self.build, "-n", "-v", "all")
            os.utime(file, ns=(before.st_atime_ns, before.st_mtime_ns))
            built = set(re.findall(r"-o bin/([\w-]+)", plan))
            seeing[path] = [program for program in self.programs if built & run[program.name]]
        return seeing

    def judge(self, change, programs, seconds):
        """Makes the change, runs the programs until one fails, and takes the change back.

        `seconds` says how long each program takes otherwise; now it may take ten times as long.
        """
        path = self.folder / change.path
        original = path.read_bytes()
        path.write_bytes(original[: change.start] + change.after.encode() + original[change.end :])
        try:
            return self.verdict(programs, seconds)
        finally:
            path.write_bytes(original)

    def verdict(self, programs, seconds):
        for program in programs:
            if self.compile(program.name) != 0:
                return Verdict(NOT_COMPILED)
            if failed := self.failing_test(program, timeout=30 + 10 * seconds[program.name]):
                return Verdict(KILLED, failed)
        return Verdict(SURVIVED)

    def compile(self, target):
        command = ["ninja", "-C", self.build, "-j1", target]
        # In a session of its own, as the tests are: Ctrl+C must not pass for an error of the compiler.
        return subprocess.run(
            command,
            cwd=self.folder,
            env=self.compiling(),
            capture_output=True,
            start_new_session=True,
        ).returncode

    def failing_test(self, program, timeout):
        """The name of the first test that fails, or nothing."""
        command = [*program.command, "--gtest_fail_fast", "--gtest_brief=1"]
        with tempfile.TemporaryDirectory() as home:
            process = subprocess.Popen(
                command,
                cwd=self.folder,
                env={**os.environ, "HOME": home},
                stdout=subprocess.PIPE,
                stderr=subprocess.STDOUT,
                start_new_session=True,
                preexec_fn=limit_memory,
            )
            try:
                output = process.communicate(timeout=timeout)[0].decode(errors="replace")
            except subprocess.TimeoutExpired:
                os.killpg(process.pid, signal.SIGKILL)
                process.communicate()
                return f"{program.name}, which does not end"
        if process.returncode == 0:
            return ""
        failed = re.search(r"\[  FAILED  \] ([\w/]+\.[\w/]+)", output)
        return f"{program.name} {failed[1] if failed else f'(ended with {process.returncode})'}"


def limit_memory():
    resource.setrlimit(resource.RLIMIT_DATA, (LARGEST_MEMORY, LARGEST_MEMORY))
