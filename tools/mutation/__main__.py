"""Changes one place of the program at a time, and says which changes no test notices.

    tools/mutate --seed 7 --count 150 math scene helix hyperboloid

draws 150 places of these folders' sources: an operator, a constant, a comparison, a dropped call,
exchanged arguments, a negated condition, a dropped return. Each change is made in a copy of the last
commit; what depends on it is built, and the tests that can see it run, those of the nearest layer
first, until one fails. At the end stand the counts and the change of every survivor.

The copies and what is known so far stay in --folder. Stopped at any time, the same command goes on
where it was; Ctrl+C lets the changes in hand come to their end. Random users and long use do not take
part: what only they find counts as survived, because chance found it.
"""

import argparse
import pathlib
import subprocess
from concurrent.futures import ThreadPoolExecutor

from .record import Record
from .workshop import Workshop

ROOT = pathlib.Path(__file__).resolve().parents[2]


def arguments():
    parser = argparse.ArgumentParser(
        prog="tools/mutate",
        description=__doc__,
        formatter_class=argparse.RawDescriptionHelpFormatter,
    )
    parser.add_argument("--seed", type=int, required=True, help="of the drawn places")
    parser.add_argument("--count", type=int, required=True, help="how many places")
    parser.add_argument(
        "--jobs", type=int, default=2, help="copies worked on at a time [%(default)s]"
    )
    parser.add_argument(
        "--again", action="store_true", help="try those again that have survived: tests are new"
    )
    parser.add_argument(
        "--without",
        action="append",
        default=[],
        metavar="PROGRAM",
        help="a test program that does not run, as closing_test",
    )
    parser.add_argument(
        "--folder",
        type=pathlib.Path,
        default=ROOT / "build" / "mutation",
        help="where copies and results are kept [build/mutation]",
    )
    parser.add_argument(
        "layers", nargs="+", metavar="LAYER", help="folders of the program, as math"
    )
    return parser.parse_args()


def main():
    options = arguments()
    commit = subprocess.check_output(["git", "rev-parse", "HEAD"], cwd=ROOT, text=True).strip()
    record = Record(options.folder, options.layers, options.seed, options.count)
    workshops = [
        Workshop(ROOT, options.folder / f"copy-{number}", commit) for number in range(options.jobs)
    ]
    for workshop in workshops:
        workshop.prepare()
    record.draw(workshops[0].changes(options.layers))
    if options.again:
        record.forget_survivors()
    seeing = workshops[0].programs_seeing({change.path for change in record.changes})

    def measure(number):
        workshop = workshops[number]
        for program in workshop.programs[number :: len(workshops)]:
            if program.name not in record.seconds:
                record.note_seconds(program.name, workshop.seconds(program))

    def judge(number):
        for change_number, change in record.open_changes():
            programs = [p for p in seeing[change.path] if p.name not in options.without]
            programs.sort(key=lambda program: (program.rank, record.seconds[program.name]))
            record.note(change_number, workshops[number].judge(change, programs, record.seconds))

    with ThreadPoolExecutor(options.jobs) as pool:
        try:
            list(pool.map(measure, range(options.jobs)))
            list(pool.map(judge, range(options.jobs)))
        except KeyboardInterrupt:
            record.stop()
    record.print_summary()


if __name__ == "__main__":
    main()
