#!/usr/bin/env python3
"""Tests floors.py on small trees, each with one thing wrong."""
import pathlib
import tempfile
import unittest

import floors

MODULE_LIST = """vantore_library(location_points SOURCES weighted_points.cpp LINKS vantore_base)
vantore_library(location_plot SOURCES point_plot.cpp LINKS vantore_forms)
vantore_module(COG
    CORE problem method # the record and its method
    CORE_LINKS location_points
    WINDOW report COG LINKS location_plot)
"""
SOUND = {
    "location/CMakeLists.txt": MODULE_LIST,
    "location/COG/problem.h": '#include "shell/base/table.h"\n#include "location/COG/index.h"\n',
    "location/COG/index.h": '#include "location/weighted_points.h"\n',
    "location/weighted_points.h": '#include "shell/base/number.h"\n',
    "location/COG/method.cpp": '#include "location/COG/problem.h"\n',
    "location/COG/report.cpp": '#include "location/COG/problem.h"\n#include "shell/forms/palette.h"\n',
    "location/COG/COG.cpp": '#include "location/COG/report.h"\n#include "location/point_plot.h"\n',
    "solvers/PMED/main.cpp": '#include "location/COG/problem.h"\n#include "shell/base/text.h"\n',
    "desktop/main.cpp": "#include <QApplication>\n",
}


class Floors(unittest.TestCase):
    def faults(self, **changes):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            for name, text in {**SOUND, **changes.pop("files", {})}.items():
                path = root / name
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            return list(floors.faults(root))

    def check(self, name, text, *words):
        found = self.faults(files={name: text})
        self.assertEqual(len(found), 1, found)
        for word in (name, *words):
            self.assertIn(word, found[0])

    def test_a_sound_tree_has_no_faults(self):
        self.assertEqual(self.faults(), [])

    def test_no_folder_reaches_upwards(self):
        self.check("shell/base/text.cpp", '#include "shell/suite.h"\n', "upwards")
        self.check("location/point_plot.cpp", '#include "mathprog/matrix_grid.h"\n', "upwards")
        self.check("shell/suite.cpp", '#include "desktop/look.h"\n', "upwards")

    def test_no_logic_sees_a_toolkit(self):
        self.check("shell/suite.cpp", "#include <QString>\n", "toolkit")
        self.check("script/main.cpp", "#include <QtGui/QPainter>\n", "toolkit")

    def test_a_core_sees_no_frame(self):
        self.check("location/COG/method.cpp", '#include "shell/suite.h"\n', "record or method")
        self.check("location/COG/problem.h", '#include "shell/forms/palette.h"\n', "record or method")

    def test_a_core_sees_no_window(self):
        self.check("location/COG/method.cpp", '#include "location/COG/report.h"\n', "below the windows")
        self.check("location/COG/method.cpp", '#include "location/point_plot.h"\n', "below the windows")
        self.check("location/weighted_points.cpp", '#include "location/COG/COG.h"\n', "below the windows")

    def test_a_solver_sees_no_window(self):
        self.check("solvers/PMED/main.cpp", '#include "location/COG/COG.h"\n', "below the windows")
        self.check("solvers/PMED/main.cpp", '#include "shell/forms/palette.h"\n', "upwards")

    def test_every_source_of_a_module_is_listed(self):
        self.check("location/COG/extra.cpp", "", "neither")


if __name__ == "__main__":
    unittest.main()
