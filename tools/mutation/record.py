"""What a run has drawn and found so far, in a file, so that it can be stopped and taken up again."""

import collections
import dataclasses
import json
import random
import sys
import threading

from .changes import Change

KILLED, SURVIVED, NOT_COMPILED = "killed", "survived", "did not compile"


@dataclasses.dataclass(frozen=True)
class Verdict:
    """What became of a change: one of the three words above, and the test that failed."""

    outcome: str
    test: str = ""


class Record:
    """Changes drawn by a seed, and the verdicts on them.

    The file has a line for each drawn change, each test program's time and each verdict. Several threads may use it.
    """

    def __init__(self, folder, layers, seed, count):
        folder.mkdir(parents=True, exist_ok=True)
        self.path = folder / f"{'-'.join(layers)}-{seed}-{count}.jsonl"
        self.seed, self.count = seed, count
        self.changes = []
        self.verdicts = {}
        self.seconds = {}
        self.lock = threading.Lock()
        self.given = set()
        self.stopped = False
        if self.path.exists():
            for line in self.path.read_text().splitlines():
                self.read(json.loads(line))

    def read(self, entry):
        if "number" in entry:
            self.verdicts[entry["number"]] = Verdict(entry["outcome"], entry["test"])
        elif "program" in entry:
            self.seconds[entry["program"]] = entry["seconds"]
        else:
            self.changes.append(Change(**entry))

    def draw(self, changes):
        """Draws from all changes of the sources; with a record, they must be those drawn before."""
        count = min(self.count, len(changes))
        drawn = random.Random(self.seed).sample(changes, count)
        if not self.changes:
            print(f"{count} of {len(changes)} changes drawn with the seed {self.seed}")
            self.changes = drawn
            self.write(*(dataclasses.asdict(change) for change in drawn))
        elif self.changes != drawn:
            raise SystemExit(f"The sources have changed: remove {self.path} to begin anew")

    def forget_survivors(self):
        """They are open again: there may be new tests."""
        self.verdicts = {
            number: verdict
            for number, verdict in self.verdicts.items()
            if verdict.outcome != SURVIVED
        }

    def write(self, *entries):
        with self.path.open("a") as file:
            file.write("".join(json.dumps(entry) + "\n" for entry in entries))

    def note_seconds(self, program, seconds):
        """How long a test program takes when nothing is changed."""
        with self.lock:
            self.seconds[program] = seconds
            self.write({"program": program, "seconds": seconds})

    def open_changes(self):
        """Numbers and changes without a verdict, each given to one caller only."""
        for number, change in enumerate(self.changes):
            with self.lock:
                if self.stopped or number in self.verdicts or number in self.given:
                    continue
                self.given.add(number)
            yield number, change

    def stop(self):
        """Nothing more is given out."""
        self.stopped = True

    def note(self, number, verdict):
        with self.lock:
            self.verdicts[number] = verdict
            self.write({"number": number, **dataclasses.asdict(verdict)})
            self.print_verdict(number)

    def print_verdict(self, number):
        verdict = self.verdicts[number]
        by = f" by {verdict.test}" if verdict.test else ""
        print(
            f"[{len(self.verdicts)}/{len(self.changes)}] {verdict.outcome}{by}: {self.changes[number]}"
        )
        sys.stdout.flush()

    def print_summary(self):
        counts = collections.Counter(verdict.outcome for verdict in self.verdicts.values())
        print(f"\nOf {len(self.changes)} changes drawn with the seed {self.seed}:")
        for outcome in (KILLED, SURVIVED, NOT_COMPILED):
            print(f"  {counts[outcome]:4} {outcome}")
        print(f"  {len(self.changes) - len(self.verdicts):4} not tried yet")
        for number, verdict in sorted(self.verdicts.items()):
            if verdict.outcome == SURVIVED:
                print(f"survived: {self.changes[number]}")
