"""What tools/check-documents finds wrong, in documents of a small tree."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

from documents.checking import Checker
from documents.reading import Document


class DocumentsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree = pathlib.Path(folder.name).resolve()
        self.write("build/bin/torvane-batch", '#!/bin/sh\n[ "$1" = --K13 ] && echo "$2" >figure\n')
        self.write("test", "#!/bin/sh\n[ -d build ]\n")
        self.write(
            "docs/other.md",
            "# The other\n\n## What `it` says: all, or nothing\n\n## Twice\n## Twice\n",
        )
        self.write("math/Sum.h", "")
        self.reported = []

    def write(self, name, text):
        path = self.tree / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
        path.chmod(0o755)
        return path

    def wrong(self, text):
        checker = Checker(self.tree, self.reported.append)
        return checker.check(self.write("README.md", text))

    def test_true_document_is_right(self):
        text = """# Title

See [the other](docs/other.md#what-it-says-all-or-nothing), ![it](docs/other.md), [here](#title) and
`math/Sum`, an option `--K13 0.5`, a fraction `1/2`.

    torvane-batch --K13 \\
        0.7071   # writes a figure

Then, in the same folder,

```sh
grep 0.7071 figure
./test --all
```

and `./test --twice`. No commands are

```make
all: torvane-batch --wrong
```

and the file

    #!/bin/sh
    torvane-batch --wrong
"""
        self.assertEqual(self.wrong(text), [])
        self.assertEqual(
            self.reported,
            [
                "run: torvane-batch --K13 0.7071",
                "run: grep 0.7071 figure",
                "run: ./test --all",
                "run: ./test --twice",
            ],
        )

    def test_wrong_commands_are_found_in_blocks_and_in_sentences(self):
        for text in (
            "    torvane-batch --K31 0.7\n",
            "```sh\ntorvane-bach --K13 0.7\n```\n",
            "Type `torvane-batch --K31 0.7`.\n",
            "Type `build/bin/absent --K13\n0.7`.\n",
            "Type `K=1 ./tset --all`.\n",
        ):
            self.assertRegex(
                " ".join(self.wrong(text)), "^README.md: .*: ended with [0-9]+: ", text
            )

    def test_commands_that_name_a_file_of_the_tree_are_run_there(self):
        self.assertEqual(self.wrong("    cat ./docs/other.md\n"), [])
        self.assertEqual(len(self.wrong("    cat docs/other.md\n")), 1)

    def test_failure_within_a_pipe_is_one(self):
        self.assertEqual(len(self.wrong("    false | cat\n")), 1)

    def test_dead_links_are_found(self):
        for link in ("docs/absent.md", "docs/other.md#absent", "#absent", "docs/other.md#twice-2"):
            for text in (f"See [it]({link}).\n", f'<img src="{link}">\n'):
                self.assertRegex(" ".join(self.wrong(text)), f"^README.md: dead link {link}", text)
        self.assertEqual(
            self.wrong("[once](docs/other.md#twice) [more](docs/other.md#twice-1)\n"), []
        )

    def test_links_beyond_the_tree_are_reported_and_not_followed(self):
        self.assertEqual(self.wrong("[far](https://www.example.org/absent)\n"), [])
        self.assertEqual(self.reported, ["README.md: not followed: https://www.example.org/absent"])

    def test_paths_that_are_not_there_are_found(self):
        self.assertEqual(self.wrong("`docs/absent`\n"), ["README.md: no such path: docs/absent"])
        self.assertEqual(self.wrong("`docs/`, `elsewhere/absent`\n"), [])

    def test_short_forms_are_run_in_place_of_what_is_shown(self):
        marks = "<!-- short forms\n./test --all => ./test\nfalse not run: needs truth\n-->\n"
        self.assertEqual(self.wrong(marks + "`./test --all`\n\n    false\n"), [])
        self.assertEqual(self.reported, ["README.md: not run, needs truth: false", "run: ./test"])

    def test_failing_short_form_is_a_failure(self):
        marks = "<!-- short forms\n./test --all => false\n-->\n"
        self.assertIn("./test --all: ended with 1", self.wrong(marks + "`./test --all`\n")[0])

    def test_short_forms_of_what_is_not_shown_and_unreadable_ones_are_wrong(self):
        stale = self.wrong("<!-- short forms\n./test --all => ./test\n-->\n")
        self.assertEqual(stale, ["README.md: short form of what is not shown: ./test --all"])
        self.assertEqual(len(self.wrong("<!-- short forms\n./test --all\n-->\n")), 1)

    def test_what_is_in_comments_is_not_shown(self):
        self.assertEqual(self.wrong("<!-- `./test --all` [it](absent) -->\n"), [])

    def test_indented_lines_of_a_paragraph_are_no_block(self):
        self.assertEqual(Document("- a point\n    that goes on\n").blocks, [])

    def test_program_fails_and_says_why(self):
        self.write("README.md", "[dead](absent.md)\n\n    torvane-batch --K31 1\n")
        self.write("CONTRIBUTING.md", "Good.\n")
        done = subprocess.run(
            [sys.executable, "-B", "-m", "documents", "--tree", str(self.tree)],
            capture_output=True,
            text=True,
        )
        self.assertEqual(done.returncode, 1)
        self.assertIn("wrong: README.md: dead link absent.md\n", done.stderr)
        self.assertIn("wrong: README.md: torvane-batch --K31 1: ended with 1", done.stderr)
        self.write("README.md", "Good.\n")
        good = [sys.executable, "-B", "-m", "documents", "--tree", str(self.tree)]
        self.assertEqual(subprocess.run(good, stdout=subprocess.DEVNULL).returncode, 0)


if __name__ == "__main__":
    unittest.main()
