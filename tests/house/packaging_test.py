"""What is installed, and what the packages say of it. Runs where everything is built."""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

SOURCE = pathlib.Path(os.environ["ORVIK_SOURCE"])
BUILD = pathlib.Path(os.environ["ORVIK_BUILD"])
DEBIAN = SOURCE / "packaging/debian"
TIMEOUT = 60


def run(*command, **options):
    return subprocess.run(command, check=False, capture_output=True, text=True, timeout=TIMEOUT, **options)


def fields(text):
    """The fields of each paragraph of a control file."""
    unfolded = re.sub(r"\n[ \t]+", " ", text)
    return [dict(line.split(":", 1) for line in paragraph.splitlines()) for paragraph in unfolded.strip().split("\n\n")]


def names(relation):
    """The packages of a relationship field."""
    return {re.match(r"\s*([^ |(<]+)", part)[1] for part in relation.split(",")}


class Packages(unittest.TestCase):
    def setUp(self):
        self.source, *self.binaries = fields((DEBIAN / "control").read_text())

    def listed(self, *lists):
        """Packages of lists in packages.sh."""
        words = " ".join(f'"${{{name}[@]}}"' for name in lists)
        script = f'source "{SOURCE}/packaging/packages.sh"; printf "%s\\n" {words}'
        return set(run("bash", "-euc", script).stdout.split())

    def test_they_are_built_with_what_the_scripts_install(self):
        compiler = {"g++", "debhelper-compat"}
        self.assertEqual(names(self.source["Build-Depends"]) - compiler,
                         self.listed("packages_build", "packages_bridges") - compiler)

    def test_what_a_module_alone_is_built_with_is_left_out_with_it(self):
        profiles = {package["Build-Profiles"].strip() for package in self.binaries if "Build-Profiles" in package}
        bridges = {name for name in self.source["Build-Depends"].split(",") if "<" in name}
        self.assertEqual({re.search("<.*>", name)[0] for name in bridges}, profiles)
        self.assertEqual({name.split()[0] for name in bridges}, self.listed("packages_bridges"))

    def test_the_panel_comes_with_what_it_uses(self):
        panel = self.binaries[0]
        self.assertEqual(names(panel["Recommends"]), self.listed("packages_panel"))

    def test_what_actions_need_is_recommended(self):
        needed = {line.split()[2] for path in (BUILD / "libexec/orvik-menu").glob("*.needs")
                  for line in path.read_text().splitlines()}
        self.assertLessEqual(needed, names(self.binaries[0]["Recommends"]))

    def test_there_is_one_for_each_file_manager_beside_the_panel_s(self):
        file_managers = self.listed("file_managers")
        self.assertEqual(file_managers, {"caja", "dolphin", "nautilus", "nemo", "thunar"})
        for name in file_managers:
            installed, = (DEBIAN / f"orvik-menu-{name}.install").read_text().split()
            self.assertRegex(installed, rf"/(lib)?orvik-menu-{name}\.so$")

    def test_they_have_the_version_of_the_programs(self):
        version = re.match(r"orvik-menu \((.*?)\)", (DEBIAN / "changelog").read_text())[1]
        self.assertEqual(run(BUILD / "bin/orvik-defaults", "--version").stdout, f"orvik-defaults {version}\n")

    def test_their_home_page_is_the_maker_s(self):
        self.assertIn(f'"{self.source["Homepage"].strip()}"', (SOURCE / "cmake/Deployment.cmake").read_text())


class InstalledTestCase(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.root = pathlib.Path(tempfile.mkdtemp(prefix="orvik-packaging-"))
        cls.addClassCleanup(shutil.rmtree, cls.root)
        done = run("cmake", "--install", BUILD, "--prefix", "/opt/orvik", env={**os.environ, "DESTDIR": str(cls.root)})
        if done.returncode:
            raise AssertionError(done.stderr)
        cls.prefix = cls.root / "opt/orvik"
        cls.share = cls.prefix / "share"
        cls.commands = sorted(path.name for path in (cls.prefix / "bin").iterdir())


class Files(InstalledTestCase):
    def assertSilent(self, *command):
        done = run(*command)
        self.assertEqual((done.returncode, done.stdout + done.stderr), (0, ""))

    def test_the_desktop_entries_are_valid(self):
        entries = sorted((self.share / "applications").iterdir())
        self.assertEqual(len(entries), 2)
        self.assertSilent("desktop-file-validate", *entries)

    def test_the_description_for_software_catalogues_is_valid(self):
        description, = (self.share / "metainfo").iterdir()
        done = run("appstreamcli", "validate", "--no-net", description)
        self.assertEqual(done.returncode, 0, done.stdout)
        self.assertNotRegex(done.stdout, "(?m)^[EW]:")

    def test_every_command_has_a_dated_manual_page_without_faults(self):
        pages = sorted((self.share / "man/man1").iterdir())
        self.assertEqual(sorted(page.stem for page in pages), self.commands)
        for page in pages:
            self.assertRegex(page.read_text(), rf"^\.TH {page.stem.upper()} 1 20\d\d-\d\d-\d\d ")
            done = run("man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z", page)
            self.assertEqual((done.returncode, done.stderr), (0, ""), page.name)

    def test_the_bus_starts_the_panel_that_was_installed(self):
        service, = (self.share / "dbus-1/services").iterdir()
        self.assertEqual(service.read_text(),
                         f"[D-BUS Service]\nName={service.stem}\nExec=/opt/orvik/bin/orvik-menu\n")
        self.assertTrue((self.share / f"applications/{service.stem}.desktop").is_file())


class Completions(InstalledTestCase):
    """Each shell is asked what it offers after some words. A dot is the word that is typed."""

    maxDiff = None

    def setUp(self):
        home = pathlib.Path(tempfile.mkdtemp(dir=self.root))
        self.environment = {"HOME": str(home), "XDG_CONFIG_HOME": str(home), "LANG": "C.UTF-8",
                            "PATH": f"{self.prefix}/bin:/usr/bin:/bin"}
        run("orvik-defaults", "write", "suite", "some key", "-int", "1", env=self.environment)

    def bash(self, *words):
        script = ('source "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _orvik_commands "$1"\n'
                  'printf "%s\\n" "${COMPREPLY[@]}"')
        return self.offered("bash", "-c", script, "-", self.share / "bash-completion/completions" / words[0], *words)

    def fish(self, *words):
        line = " ".join(word.replace(" ", "\\ ") for word in words)
        file = self.share / "fish/vendor_completions.d" / f"{words[0]}.fish"
        return self.offered("fish", "--no-config", "-c", f"source {file}; complete --do-complete '{line}'")

    def zsh(self, *words):
        # The builtin works in the line editor alone.
        script = ('compadd() { [[ $1 != -- ]] || shift; print -rl -- "$@" }; _files() { }\n'
                  'file=$1; shift; words=("$@"); CURRENT=$#; run() { source $file }; run')
        offered = self.offered("zsh", "-fc", script, "-", self.share / "zsh/site-functions/_orvik-menu", *words)
        return [word for word in offered if word.startswith(words[-1])]

    def offered(self, *command):
        done = run(*command, env=self.environment)
        self.assertEqual(done.stderr, "")
        return [line.replace("\\", "") for line in done.stdout.splitlines() if line]

    def assertOffered(self, words, expected):
        for shell in (self.bash, self.zsh, self.fish):
            with self.subTest(shell=shell.__name__):
                self.assertEqual(sorted(shell(*words)), sorted(expected))

    def test_the_options_of_each_command(self):
        self.assertOffered(["orvik-menu", "--"], ["--tab", "--help", "--version"])
        self.assertOffered(["orvik-menu-extensions", "--v"], ["--version"])
        self.assertOffered(["orvik-notify", "--"], ["--help", "--version"])

    def test_the_tabs_of_the_panel(self):
        self.assertOffered(["orvik-menu", "--tab", ""],
                           ["Menu Items", "Folders", "General", "About", "Custom Folders"])
        self.assertOffered(["orvik-menu", "--tab", "C"], ["Custom Folders"])

    def test_the_actions_that_can_be_done(self):
        actions = [path.name for path in (self.prefix / "libexec/orvik-menu").iterdir()]
        self.assertIn("open-terminal", actions)
        self.assertOffered(["orvik-menu-extension", "--run", ""], actions)

    def test_the_notifications(self):
        self.assertOffered(["orvik-notify", ""], ["AttachFileToMail", "ReloadCustomFolders", "ShowUtilityKit"])

    def test_the_commands_of_the_settings_tool(self):
        self.assertOffered(["orvik-defaults", "re"], ["read", "repair"])
        self.assertOffered(["orvik-defaults", "--v"], ["--version"])

    def test_the_domains_and_keys_of_the_settings(self):
        self.assertOffered(["orvik-defaults", "read", "suite", ""], ["some key"])
        self.assertOffered(["orvik-defaults", "read", "s"], ["suite"])
        self.assertOffered(["orvik-defaults", "read", "ORVIK"], run("orvik-defaults", "domains", env=self.environment)
                           .stdout.split())

    def test_the_kinds_of_value(self):
        self.assertOffered(["orvik-defaults", "write", "suite", "key", "-d"], ["-date", "-data", "-dict"])
        self.assertOffered(["orvik-defaults", "write", "suite", "key", "-bool", ""], ["true", "false"])


if __name__ == "__main__":
    unittest.main()
