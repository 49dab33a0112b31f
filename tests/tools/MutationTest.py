"""Where tools/mutate sees something to change, which programs it runs, and how it is taken up again."""

import contextlib
import io
import os
import pathlib
import tempfile
import unittest

from mutation.changes import Change, changes_of
from mutation.record import KILLED, NOT_COMPILED, SURVIVED, Record, Verdict
from mutation.workshop import Workshop

ROOT = pathlib.Path(__file__).resolve().parents[2]

SOURCE = """\
double area(double width, double height);
void show(double value);
struct Pair { double first; double second; };

double larger(double a, double b, int times)
{
  if (a < b && times != 3) {
    show(b);
    return b;
  }
  double sum = 0.5;
  for (int i = 0; i < times; ++i) {
    sum += area(a, b) * -1.0;
  }
  const Pair pair{a, sum};
  return pair.first;
}
"""


class ChangesTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree = pathlib.Path(folder.name).resolve()

    def changes(self, text, layers=("math",)):
        source = self.tree / "math" / "Area.cpp"
        source.parent.mkdir(exist_ok=True)
        source.write_text(text)
        return changes_of(self.tree, [(source, ["-std=c++17"])], layers)

    def test_every_kind_of_place_is_found_once(self):
        found = [f"{c.line} {c.kind}: {c.before} -> {c.after}" for c in self.changes(SOURCE)]
        self.assertCountEqual(
            found,
            [
                "7 condition: a < b && times != 3 -> !(a < b && times != 3)",
                "7 comparison: < -> <=",
                "7 operator: && -> ||",
                "7 comparison: != -> ==",
                "7 constant: 3 -> 4",
                "8 dropped call: show(b) -> ",
                "9 dropped return: return b -> ",
                "11 constant: 0.5 -> 0.500500000",
                "12 constant: 0 -> 1",
                "12 comparison: < -> <=",
                "12 operator: ++ -> --",
                "13 dropped assignment: sum += area(a, b) * -1.0 -> ",
                "13 operator: += -> -=",
                "13 exchanged: a, b -> b, a",
                "13 operator: * -> /",
                "13 operator: - -> ",
                "13 constant: 1.0 -> 1.00100000",
                "15 exchanged: a, sum -> sum, a",
            ],
        )

    def test_a_change_names_the_characters_that_it_replaces(self):
        for change in self.changes("// grüßend\n" + SOURCE):
            text = (self.tree / change.path).read_bytes()
            self.assertEqual(text[change.start : change.end].decode(), change.before)
            self.assertEqual(text[: change.start].count(b"\n") + 1, change.line)

    def test_headers_of_the_layers_are_read_and_others_are_not(self):
        for layer in ("math", "scene"):
            header = self.tree / layer / "Unit.h"
            header.parent.mkdir(exist_ok=True)
            header.write_text(f"inline int {layer}Unit() {{ return 7; }}\n")
        including = '#include "Unit.h"\n#include "../scene/Unit.h"\n'
        self.assertEqual([c.path for c in self.changes(including)], ["math/Unit.h"])
        both = {c.path for c in self.changes(including, ("math", "scene"))}
        self.assertEqual(both, {"math/Unit.h", "scene/Unit.h"})


class RecordTest(unittest.TestCase):
    CHANGES = [
        Change("math/Area.cpp", start, start + 1, 3, "comparison", "<", "<=") for start in range(40)
    ]

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def record(self, seed=7):
        return Record(self.folder, ["math", "helix"], seed, 9)

    def printed(self, action, *arguments):
        with contextlib.redirect_stdout(io.StringIO()) as output:
            action(*arguments)
        return output.getvalue()

    def test_a_record_of_other_sources_is_refused(self):
        self.printed(self.record().draw, self.CHANGES)
        with self.assertRaisesRegex(SystemExit, "sources have changed"):
            self.record().draw(self.CHANGES[1:])

    def test_survivors_can_be_tried_again(self):
        record = self.record()
        self.printed(record.draw, self.CHANGES)
        for number, outcome in ((3, SURVIVED), (6, KILLED), (8, NOT_COMPILED)):
            self.printed(record.note, number, Verdict(outcome))
        record.forget_survivors()
        self.assertEqual([number for number, _ in record.open_changes()], [0, 1, 2, 3, 4, 5, 7])

    def test_the_seed_alone_decides_what_is_drawn(self):
        one, another = self.record(), self.record(seed=8)
        for record in (one, another):
            self.printed(record.draw, self.CHANGES)
        self.assertEqual(len(set(one.changes)), 9)
        self.assertNotEqual(one.changes, another.changes)
        one.path.unlink()
        anew = self.record()
        self.printed(anew.draw, self.CHANGES)
        self.assertEqual(anew.changes, one.changes)

    def test_a_stopped_run_goes_on_where_it_was(self):
        first = self.record()
        self.printed(first.draw, self.CHANGES)
        first.note_seconds("math_test", 1.5)
        given = first.open_changes()
        self.assertEqual([next(given)[0] for _ in range(3)], [0, 1, 2])
        self.printed(first.note, 1, Verdict(KILLED, "math_test Matrice.Sum"))
        first.stop()
        self.assertEqual(list(given), [])

        second = self.record()
        self.printed(second.draw, self.CHANGES)
        self.assertEqual(second.changes, first.changes)
        self.assertEqual(second.seconds, {"math_test": 1.5})
        self.assertEqual([number for number, _ in second.open_changes()], [0, 2, 3, 4, 5, 6, 7, 8])

    def test_the_summary_counts_and_names_the_survivors(self):
        record = self.record()
        self.printed(record.draw, self.CHANGES)
        for number, outcome in ((0, KILLED), (4, SURVIVED), (5, NOT_COMPILED), (7, KILLED)):
            self.printed(record.note, number, Verdict(outcome))
        summary = self.printed(record.print_summary)
        for line in (
            "   2 killed\n",
            "   1 survived\n",
            "   1 did not compile\n",
            "   5 not tried yet\n",
        ):
            self.assertIn(line, summary)
        self.assertTrue(summary.endswith(f"survived: {record.changes[4]}\n"))


class WorkshopTest(unittest.TestCase):
    def setUp(self):
        self.workshop = Workshop(ROOT, ROOT, "HEAD")
        self.workshop.build = pathlib.Path(os.environ["TORVANE_BUILD"])

    def test_a_program_counts_with_the_tests_that_start_it(self):
        self.assertEqual(self.workshop.started_by("program_test"), ["torvane"])
        self.assertEqual(self.workshop.started_by("batch_program_test"), ["torvane-batch"])
        self.assertEqual(self.workshop.started_by("math_test"), [])

    def test_every_test_program_is_known_and_no_other_those_of_the_models_first(self):
        workshop = self.workshop
        programs = sorted(workshop.listed_programs(), key=lambda program: program.rank)
        names = [program.name for program in programs]
        built = {program.name for program in (workshop.build / "bin").glob("*_test")}
        self.assertEqual(set(names), built - {"long_use_test"})
        self.assertEqual(len(names), len(set(names)))
        self.assertEqual(names[:2], ["math_test", "scene_test"])
        self.assertLess(names.index("batch_test"), names.index("app_widget_test"))
        self.assertLess(names.index("app_widget_test"), names.index("helix_frame_test"))
        commands = {program.name: program.command for program in programs}
        self.assertEqual(len(commands["math_test"]), 1)
        self.assertEqual(commands["viewer_test"][0], "tests/support/on_own_display")


if __name__ == "__main__":
    unittest.main()
