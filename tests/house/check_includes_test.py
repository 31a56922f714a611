#!/usr/bin/env python3
"""Breaks each rule of check_includes.py once, in a tree of its own, and sees it found."""
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CHECK = Path(__file__).with_name("check_includes.py")


def complaints_about(path, text):
    with tempfile.TemporaryDirectory() as root:
        file = Path(root, path)
        file.parent.mkdir(parents=True)
        file.write_text(text)
        result = subprocess.run([sys.executable, CHECK, root], capture_output=True, text=True)
        return result.stdout if result.returncode else ""


class CheckIncludes(unittest.TestCase):
    def assert_found(self, path, line):
        self.assertIn(f"{path}:1:", complaints_about(path, line + "\n"))

    def assert_accepted(self, path, line):
        self.assertEqual("", complaints_about(path, line + "\n"))

    def test_a_room_that_knows_a_host_is_found(self):
        self.assert_found("minimize/A.cpp", '#include "platform/linux/x11/Connection.h"')

    def test_a_room_that_knows_a_toolkit_is_found(self):
        self.assert_found("app/A.cpp", "#include <QApplication>")
        self.assert_found("app/A.cpp", "#include <xcb/xcb.h>")

    def test_a_room_that_knows_a_room_it_does_not_build_on_is_found(self):
        self.assert_found("settings/A.h", '#include "hotkey/HotKeyManager.h"')

    def test_a_seam_header_that_knows_a_room_or_a_system_is_found(self):
        self.assert_found("platform/A.h", '#include "settings/KeyCombo.h"')
        self.assert_found("platform/A.h", "#include <unistd.h>")

    def test_a_host_that_knows_a_room_or_another_host_is_found(self):
        self.assert_found("platform/linux/A.cpp", '#include "settings/KeyCombo.h"')
        self.assert_found("platform/linux/A.cpp", '#include "platform/macos/Holder.h"')

    def test_a_condition_on_a_system_outside_a_host_is_found(self):
        self.assert_found("settings/A.cpp", "#ifdef __APPLE__")

    def test_what_the_rules_allow_is_accepted(self):
        self.assert_accepted("hotkey/A.cpp", '#include "settings/KeyCombo.h"')
        self.assert_accepted("settings/A.cpp", "#include <nlohmann/json.hpp>")
        self.assert_accepted("platform/macos/A.mm", "#import <AppKit/AppKit.h>")
        self.assert_accepted("platform/linux/A.cpp", "#if QT_VERSION >= 0x060400")


if __name__ == "__main__":
    unittest.main()
