"""Whether what documents show is true: links lead somewhere, commands work, paths are there."""

import os
import re
import subprocess
import tempfile
import urllib.parse

from .reading import Document, UnreadableMark

BUILDERS = {"cmake", "ctest", "cpack"}
PROGRAMS = {"torvane", "torvane-batch"} | BUILDERS
VARIABLE = re.compile(r"^\w+=")
PATIENCE = 900


class Checker:
    """Checks documents of a source tree whose programs have been built in tree/build/bin."""

    def __init__(self, tree, report, folder=None):
        """Without a folder, the commands of each document are run in a temporary one."""
        self.tree = tree
        self.folder = folder
        self.report = report
        self.top = {entry.name for entry in tree.iterdir()}

    def check(self, path):
        """Reports what is done for a document; returns what is wrong with it."""
        try:
            document = Document(path.read_text())
        except UnreadableMark as mark:
            return [f"{self._name(path)}: no short form: {mark}"]
        wrong = self._wrong_links(path, document) + self._wrong_paths(document)
        wrong += self._failing_commands(path, document)
        return [f"{self._name(path)}: {text}" for text in wrong]

    def _name(self, path):
        return path.relative_to(self.tree)

    # Links

    def _wrong_links(self, path, document):
        wrong = []
        for link in document.links:
            target = urllib.parse.urlsplit(link)
            if target.scheme or target.netloc:
                self.report(f"{self._name(path)}: not followed: {link}")
                continue
            file = path.parent / urllib.parse.unquote(target.path) if target.path else path
            if not file.exists():
                wrong.append(f"dead link {link}")
            elif target.fragment:
                anchors = Document(file.read_text()).anchors if file.suffix == ".md" else ()
                if target.fragment not in anchors:
                    wrong.append(f"dead link {link}: no such heading")
        return wrong

    # Paths

    def _wrong_paths(self, document):
        """Code that looks like a path within the tree must be one; a class's names its files."""
        wrong = []
        for span in document.spans:
            path = span.removeprefix("./").rstrip("/")
            looks_so = re.fullmatch(r"(\./)?[\w.\-]+(/[\w.\-]+)*/?", span) and "/" in span
            if not looks_so or path.split("/")[0] not in self.top:
                continue
            if not any((self.tree / (path + ending)).exists() for ending in ("", ".h", ".cpp")):
                wrong.append(f"no such path: {span}")
        return wrong

    # Commands

    def _is_of_the_tree(self, word):
        built = word.startswith(("./", "build/bin/"))
        return word in BUILDERS or built or ("/" in word and (self.tree / word).is_file())

    def _is_command(self, span):
        """Whether a piece of code within a sentence is a command with arguments."""
        words = span.split()
        while words and VARIABLE.match(words[0]):
            words.pop(0)
        if len(words) < 2:
            return False
        return words[0] in PROGRAMS or self._is_of_the_tree(words[0])

    def _commands(self, document):
        commands = [command for block in document.blocks for command in block.commands()]
        commands += [span for span in document.spans if self._is_command(span)]
        return list(dict.fromkeys(commands))

    def _failing_commands(self, path, document):
        commands = self._commands(document)
        wrong = [
            f"short form of what is not shown: {shown}"
            for shown in document.short_forms
            if shown not in commands
        ]
        # The commands of a document build on each other: what one has written, the next reads.
        with tempfile.TemporaryDirectory() as temporary:
            for command in commands:
                short = document.short_forms.get(command)
                if short and not short.command:
                    self.report(f"{self._name(path)}: not run, {short.reason}: {command}")
                    continue
                failure = self._run(short.command if short else command, self.folder or temporary)
                if failure:
                    wrong.append(f"{command}: {failure}")
        return wrong

    def _run(self, command, folder):
        """Why a command failed; empty when it did not."""
        self.report(f"run: {command}")
        words = [word for word in command.split() if not VARIABLE.match(word)]
        in_tree = self._is_of_the_tree(words[0]) or any(word.startswith("./") for word in words)
        environment = dict(os.environ)
        environment["PATH"] = f"{self.tree / 'build' / 'bin'}:{environment['PATH']}"
        environment["XDG_CONFIG_HOME"] = folder
        try:
            done = subprocess.run(
                ["bash", "-e", "-o", "pipefail", "-c", command],
                cwd=self.tree if in_tree else folder,
                env=environment,
                stdin=subprocess.DEVNULL,
                stdout=subprocess.PIPE,
                stderr=subprocess.STDOUT,
                timeout=PATIENCE,
            )
        except subprocess.TimeoutExpired:
            return f"not done after {PATIENCE} seconds"
        if done.returncode == 0:
            return ""
        said = done.stdout.decode(errors="replace").strip().splitlines()[-3:]
        return f"ended with {done.returncode}: {' / '.join(said)}"
