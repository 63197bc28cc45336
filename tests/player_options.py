#!/usr/bin/env python3
"""How vantore-script answers its command line, and how it ends: player_options.py PROGRAM"""
import os
import subprocess
import sys
import tempfile
import unittest

PROGRAM = os.path.abspath(sys.argv.pop(1))
PROBLEM = '"Two towns",.5,1\r\n1\r\n"A",1,2,3,4\r\n'


class Player(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        with open(os.path.join(self.folder.name, "COG01.dat"), "w", newline="") as file:
            file.write(PROBLEM)

    def tearDown(self):
        self.folder.cleanup()

    def run_with(self, *words, script="", out=subprocess.PIPE):
        return subprocess.run([PROGRAM, *words], input=script, stdout=out, stderr=subprocess.PIPE, text=True, timeout=60)

    def play(self, script, *words):
        return self.run_with("--io", self.folder.name, *words, "-", script="module COG\nfile COG01.dat\npress cmdOpen\n" + script)

    def test_tells_its_usage_and_version_on_standard_output(self):
        for word, start in (("--help", "usage: vantore-script "), ("--version", "vantore-script ")):
            answer = self.run_with(word)
            self.assertEqual((answer.returncode, answer.stderr), (0, ""))
            self.assertTrue(answer.stdout.startswith(start), answer.stdout)

    def test_refuses_wrong_usage(self):
        for words in (["--screen", "800x", "-"], ["--screen", "x600", "-"], ["--screen", "99999999999x1", "-"],
                      ["--screen", "800", "-"], ["--io", "", "-"], ["--io"], ["--nothing", "-"], [], ["-", "-"]):
            answer = self.run_with(*words)
            self.assertEqual((answer.returncode, answer.stdout), (2, ""), words)
            self.assertTrue(answer.stderr.startswith("usage: "), words)

    def test_stops_at_a_cell_outside_its_grid_and_changes_nothing(self):
        for step in ("cell COGGrid 9 1 x", "select COGGrid 1 1 9 1", "current COGGrid 1 9", "click COGGrid 9 9",
                     "doubleclick COGGrid 9 1"):
            answer = self.play(step)
            self.assertEqual(answer.returncode, 1, step)
            self.assertTrue(answer.stderr.startswith("error: line 4: COGGrid has no cell"), answer.stderr)

    def test_stops_when_it_is_strict_at_the_first_step_that_fails(self):
        failing = {
            "a run-time error": "cell COGGrid 1 2 1E400\npress cmdSolve",
            "a refused step": "press cmdContinue",
            "a new file": "file COG77.dat\npress cmdOpen",
            "a Save that fails": "file no/such/folder/COG01.dat\npress cmdSave",
        }
        for name, script in failing.items():
            self.assertEqual(self.play(script).returncode, 0, name)
            self.tearDown()
            self.setUp()
            answer = self.play(script, "--strict")
            self.assertEqual(answer.returncode, 1, name)
            self.assertTrue(answer.stderr.startswith("error: line "), name)
        self.assertEqual(self.play("cell COGGrid 1 2 5\nanswer close\npress cmdExit", "--strict").returncode, 0)

    def test_tells_of_a_transcript_that_can_not_be_written(self):
        with open("/dev/full", "w") as full:
            answer = self.run_with("--io", self.folder.name, "-", script="module COG\ntitle\n", out=full)
        self.assertEqual(answer.returncode, 1)
        self.assertIn("the transcript can't be written", answer.stderr)


if __name__ == "__main__":
    unittest.main()
