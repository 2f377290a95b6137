"""The programs with windows where there is no display to show them on, and what they answer without one."""

import os
import resource
import socket
import subprocess
import tempfile
import unittest

PROGRAMS = {
    "orvik-menu": "orvik-menu: there is no display to show the panel on",
    "orvik-menu-extensions": "orvik-menu-extensions: there is no display to show the window on",
    "orvik-menu-problem": "orvik-menu-problem: there is no display to show the window on",
}

TIMEOUT = 60


def without_core_file():
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


class NoDisplay(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="orvik-no-display-")
        self.addCleanup(folder.cleanup)
        self.home = folder.name
        os.chmod(self.home, 0o700)

    def run_program(self, name, *arguments, **variables):
        sanitizers = {name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")}
        environment = {**sanitizers, "HOME": self.home, "XDG_RUNTIME_DIR": self.home, "PATH": "/usr/bin:/bin",
                       **variables}
        return subprocess.run([os.path.join(os.environ["ORVIK_PROGRAMS"], name), *arguments], env=environment,
                              check=False, capture_output=True, text=True, timeout=TIMEOUT,
                              preexec_fn=without_core_file)

    def assertSaysSo(self, *arguments, **variables):
        for name, line in PROGRAMS.items():
            with self.subTest(program=name):
                answer = self.run_program(name, *arguments, **variables)
                self.assertEqual((answer.returncode, answer.stdout, answer.stderr), (1, "", line + "\n"))
                self.assertEqual(os.path.exists(os.path.join(self.home, ".config")), False)

    def free_display(self):
        """A display that nobody is at: no socket of its number, of either kind."""
        def is_taken(number):
            for address in (f"\0/tmp/.X11-unix/X{number}", f"/tmp/.X11-unix/X{number}"):
                with socket.socket(socket.AF_UNIX) as client:
                    if client.connect_ex(address) == 0:
                        return True
            return os.path.exists(f"/tmp/.X11-unix/X{number}")

        return next(f":{number}" for number in range(4000, 5000) if not is_taken(number))

    def test_no_display_at_all(self):
        self.assertSaysSo()

    def test_a_display_that_nobody_is_at(self):
        self.assertSaysSo(DISPLAY=self.free_display())
        self.assertSaysSo("-display", self.free_display())

    def test_a_display_whose_name_is_none(self):
        self.assertSaysSo(DISPLAY="nonsense")

    def test_a_compositor_that_is_not_there(self):
        self.assertSaysSo(WAYLAND_DISPLAY="wayland-gone")
        self.assertSaysSo(WAYLAND_DISPLAY=os.path.join(self.home, "gone"), XDG_SESSION_TYPE="wayland")
        self.assertSaysSo(WAYLAND_DISPLAY="wayland-gone", QT_QPA_PLATFORM="wayland")

    def test_a_compositor_and_a_display_that_are_not_there(self):
        self.assertSaysSo(WAYLAND_DISPLAY="wayland-gone", DISPLAY=self.free_display())

    def test_a_way_to_displays_that_is_not_installed(self):
        self.assertSaysSo(QT_QPA_PLATFORM="carrier-pigeon")
        self.assertSaysSo("-platform", "carrier-pigeon")

    def test_a_way_to_displays_that_is_broken(self):
        platforms = os.path.join(self.home, "platforms")
        os.mkdir(platforms)
        with open(os.path.join(platforms, "libqxcb.so"), "wb") as plugin:
            plugin.write(b"\x7fELF")
        self.assertSaysSo(QT_QPA_PLATFORM_PLUGIN_PATH=platforms, DISPLAY=self.free_display())

    def test_the_options_need_none(self):
        for name in PROGRAMS:
            for option, beginning in (("--help", f"Usage: {name} [OPTION]\n"), ("--version", f"{name} ")):
                with self.subTest(program=name, option=option):
                    answer = self.run_program(name, "--unheard-of", option)
                    self.assertEqual((answer.returncode, answer.stderr), (0, ""))
                    self.assertTrue(answer.stdout.startswith(beginning), answer.stdout)
                    self.assertEqual(answer.stdout.endswith("\n"), True)

    def test_an_unknown_argument_is_refused_with_the_usage(self):
        for name in PROGRAMS:
            with self.subTest(program=name):
                usage = self.run_program(name, "--help").stdout
                # The toolkit's own arguments are no concern of the program's.
                answer = self.run_program(name, "-platform", "offscreen", "--loud")
                self.assertEqual((answer.returncode, answer.stdout), (2, ""))
                self.assertEqual(answer.stderr, f"{name}: unknown argument: --loud\n{usage}")

    def test_wrong_usage_is_told_before_the_display_is_missed(self):
        for name in PROGRAMS:
            usage = self.run_program(name, "--help").stdout
            for arguments in (["--loud"], ["loud"], ["-platform", "xcb", "--loud"]):
                with self.subTest(program=name, arguments=arguments):
                    answer = self.run_program(name, *arguments)
                    self.assertEqual((answer.returncode, answer.stdout), (2, ""))
                    self.assertEqual(answer.stderr, f"{name}: unknown argument: {arguments[-1]}\n{usage}")
        answer = self.run_program("orvik-menu", "--tab")
        self.assertEqual((answer.returncode, answer.stdout), (2, ""))
        self.assertTrue(answer.stderr.startswith("orvik-menu: --tab needs a title\n"), answer.stderr)
        answer = self.run_program("orvik-menu", "--tab", "Folders")
        self.assertEqual((answer.returncode, answer.stderr), (1, PROGRAMS["orvik-menu"] + "\n"))

    def test_what_the_toolkit_complains_of_on_the_way_to_a_display_is_said(self):
        for name in PROGRAMS:
            with self.subTest(program=name):
                answer = self.run_program(name, "--loud", QT_QPA_PLATFORM="carrier-pigeon;offscreen",
                                          QT_DEBUG_PLUGINS="1")
                self.assertEqual(answer.returncode, 2)
                self.assertIn("libqoffscreen.so", answer.stderr)


if __name__ == "__main__":
    unittest.main()
