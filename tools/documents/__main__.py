"""Checks that documents do not lie.

    tools/check-documents README.md docs/*.md

Every link and every path must lead to something that is there. Every command of a block of code, and
every one with arguments within a sentence, is run. Those that begin with a path of the source tree, with
cmake, ctest or cpack, or that name a file by ./, are run in the tree; all others in an empty folder, one
after the other, with build/bin on the path.
What takes too long or cannot be run here has a short form, in a comment of its document:

    <!-- short forms
    ./test --sanitize => cmake --list-presets | grep sanitize
    sbatch one.sh not run: needs a cluster
    -->

Without arguments, README.md, CONTRIBUTING.md and docs/*.md are checked. The programs must have been
built.
"""

import argparse
import pathlib
import sys

from .checking import Checker

ROOT = pathlib.Path(__file__).resolve().parents[2]


def main():
    parser = argparse.ArgumentParser(
        prog="tools/check-documents",
        description=__doc__,
        formatter_class=argparse.RawDescriptionHelpFormatter,
    )
    parser.add_argument("documents", nargs="*", type=pathlib.Path)
    parser.add_argument("--tree", type=pathlib.Path, default=ROOT, help="the source tree")
    parser.add_argument(
        "--folder", type=pathlib.Path, help="where commands are run, and what they write is kept"
    )
    options = parser.parse_args()
    tree = options.tree.resolve()
    documents = [path.resolve() for path in options.documents] or [
        tree / "README.md",
        tree / "CONTRIBUTING.md",
        *sorted((tree / "docs").glob("*.md")),
    ]
    checker = Checker(tree, lambda text: print(text, flush=True), options.folder)
    wrong = [text for document in documents for text in checker.check(document)]
    for text in wrong:
        print(f"wrong: {text}", file=sys.stderr)
    sys.exit(1 if wrong else 0)


main()
