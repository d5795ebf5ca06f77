#!/usr/bin/python3
"""Runs tests of the whole program on screens as people have them, with a window manager: on_screens.py TEST_BINARY.

Nothing lies beyond a small screen or a sharp one, nothing is cut off, and each job can be done with keys alone there.
"""
import os
import subprocess
import sys
import unittest

BINARY = sys.argv.pop()
FILTER = "AccessibleTest.*:KeyboardTest.*:DialogPlacesTest.*:FirstMinute*:StartPageTest.*:TourTest.*"


class Screen:
    """A screen without a monitor, and a window manager on it."""

    def __init__(self, size):
        reading, writing = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-screen", "0", f"{size}x24", "-nolisten", "tcp", "-displayfd", str(writing)],
                                       pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as numbers:
            self.display = ":" + numbers.readline().strip()
        self.manager = subprocess.Popen(["openbox"], env=self.environment(), stderr=subprocess.DEVNULL)

    def environment(self, **more):
        return {**os.environ, "DISPLAY": self.display, "QT_QPA_PLATFORM": "xcb", **more}

    def close(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()


class OnScreens(unittest.TestCase):
    def expect_to_pass(self, size, scale):
        screen = Screen(size)
        self.addCleanup(screen.close)
        done = subprocess.run([BINARY, f"--gtest_filter={FILTER}", "--gtest_brief=1"], capture_output=True, text=True,
                              errors="replace", env=screen.environment(QT_SCALE_FACTOR=scale))
        self.assertEqual(done.returncode, 0, done.stdout[-8000:] + done.stderr[-2000:])
        self.assertNotIn("[  PASSED  ] 0 tests", done.stdout)

    def test_a_small_one(self):
        self.expect_to_pass("1366x768", "1")

    def test_a_sharp_one(self):
        self.expect_to_pass("1920x1080", "2")


unittest.main(verbosity=1)
