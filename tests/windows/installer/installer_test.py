"""The installer, run in a Wine prefix in which nothing was ever installed: all files and all of the registry are
compared before and after."""

import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from wine_prefix import ROOT, Prefix, windows_path

from tools.session.host import Host
from tools.session.probe import wait_for

SETUP = ROOT / "dist" / "ActiveNeridaToolbar-Setup.exe"
TREE = ROOT / "build" / "installer" / "tree"
CLIENT = ROOT / "tests" / "windows" / "com" / "client.vbs"

EVERYBODYS = r"C:\Program Files\ActiveNeridaToolbar"
MINE = r"C:\users\{user}\AppData\Local\Programs\ActiveNeridaToolbar"
APPS = r"Software\Microsoft\Windows\CurrentVersion\Uninstall\ActiveNeridaToolbar"
PRODUCT = r"Software\Tarnwell\Zephra"
SETTINGS = r"Software\VB and VBA Program Settings\Zephra\Toolbar"
FILES_IN_USE, FOR_EVERYBODY = 10, 11


def escaped(key):
    return key.replace("\\", "\\\\")


def make_older_version(target):
    """An installer of a version that had one file more, one model less and another name for a third."""
    tree = Path(tempfile.mkdtemp(dir=TREE.parent)) / "tree"
    shutil.copytree(TREE, tree)
    (tree / "common" / "Forgotten.txt").write_text("The next version does without.\n")
    index = tree / "common" / "NewModels" / "index.txt"
    lines = index.read_text("utf-8").splitlines(keepends=True)
    number, name, *rest = lines[1].split("\t")
    lines[1] = "\t".join([number, "Old " + name, *rest])
    index.write_text("".join(lines[:-1]), "utf-8")
    subprocess.run([ROOT / "packaging" / "pack", tree, "0.9.0", target, "quick"], check=True,
                   stdout=subprocess.DEVNULL)
    shutil.rmtree(tree.parent)


class InstallerCase(unittest.TestCase):
    maxDiff = None
    architecture = "win64"
    script_hosts = ("syswow64", "sysnative")

    @classmethod
    def setUpClass(cls):
        folder = ROOT / "build" / f"wine-installer-{cls.architecture}"
        # What a failed test has left would be taken for Wine's own.
        if (folder / "used").exists():
            shutil.rmtree(folder)
        cls.prefix = Prefix(folder, cls.architecture)
        (folder / "used").touch()
        cls.addClassCleanup(cls.prefix.stop)
        cls.scratch = Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.scratch)
        cls.settle()
        cls.before = cls.prefix.snapshot()

    @classmethod
    def settle(cls):
        """What is there after some days of use: a key for one's own classes, which Windows gives to every user, and the
        interfaces that Wine's script hosts enter when they first run."""
        cls.prefix.run("reg", "add", r"HKCU\Software\Classes", "/f")
        script = cls.scratch / "nothing.vbs"
        script.write_text('WScript.Echo "nothing"\n')
        for folder in cls.script_hosts:
            cls.prefix.run("cmd", "/c", rf"C:\windows\{folder}\cscript.exe", "//nologo", windows_path(script))

    def clean(self):
        (self.prefix.folder / "used").unlink()

    def install(self, *options, setup=SETUP):
        return self.prefix.run(setup, "/S", *options)

    def uninstall(self, folder=EVERYBODYS):
        """The program goes on in a copy of itself, so that it can remove its own file."""
        self.assertEqual(self.prefix.run(folder + r"\uninstall.exe", "/S"), 0)
        file = self.prefix.path(folder + r"\uninstall.exe")
        wait_for(lambda: not file.exists(), timeout=60, what="the uninstaller to end")

    def printed(self, *words):
        log = self.scratch / "printed"
        self.assertEqual(self.prefix.run(*words, log=log), 0)
        return log.read_text("utf-8", "replace").replace("\r", "")

    def library(self, *words, folder=EVERYBODYS):
        return self.printed(folder + r"\zephra-library.exe", *words)

    def run_script_client(self, system_folder):
        script_host = rf"C:\windows\{system_folder}\cscript.exe"
        # Started by the command interpreter, which takes the path as it is.
        self.assertEqual(self.printed("cmd", "/c", script_host, "//nologo", windows_path(CLIENT)),
                         CLIENT.with_suffix(".vbs.expected").read_text())

    def open_demo_host(self, folder=EVERYBODYS):
        model = sorted(self.prefix.path(folder + r"\Models").rglob("*.twe"))[0]
        host = Host(model, program=self.prefix.path(folder + r"\zephra-host.exe"), environment=self.prefix.environment,
                    options=["--activate"])
        self.addCleanup(host.close)
        host.wait_for_call("let IsToolbarShowing = True")
        return host

    def values(self, snapshot, root, key):
        return snapshot.registry.get(root + "\\\\" + escaped(key), {})

    def assertNothingChanged(self, earlier):
        self.assertEqual(self.prefix.snapshot().changes_since(earlier), [])


class ForEverybody(InstallerCase):
    def test_life_of_an_installation(self):
        older = self.scratch / "older.exe"
        make_older_version(older)
        self.install_older(older)
        self.use_it()
        self.leave_something_of_ones_own()
        self.refuse_while_in_use()
        self.upgrade()
        self.keep_out_for_one_person()
        self.uninstall_all_but_ones_own()
        self.take_ones_own_up_again()
        self.clean()

    def install_older(self, older):
        self.assertEqual(self.install(setup=older), 0)
        now = self.prefix.snapshot()
        self.assertTrue(self.prefix.path(EVERYBODYS + r"\Forgotten.txt").exists())
        entry = self.values(now, "HKLM", APPS)
        self.assertEqual(entry['"DisplayVersion"'], '"0.9.0"')
        self.assertEqual(entry['"Publisher"'], '"Tarnwell"')
        self.assertEqual(entry['"InstallLocation"'], f'"{escaped(EVERYBODYS)}"')
        self.assertGreater(int(entry['"EstimatedSize"'].removeprefix("dword:"), 16), 20000)
        links = [file for file in now.files if file.endswith("Programs/Zephra/Zephra Document.lnk")]
        self.assertEqual(len(links), 1)

    def use_it(self):
        for folder in self.script_hosts:
            self.run_script_client(folder)
        self.assertIn("Old ", self.library("list"))
        self.assertIn("all whole", self.library("check"))

    def leave_something_of_ones_own(self):
        model = self.scratch / "mine.obj"
        model.write_text("v 0 0 0\nv 1 0 0\nv 0 1 0\nv 0 0 1\nf 1 3 2\nf 1 2 4\nf 1 4 3\nf 2 3 4\n")
        self.library("add", windows_path(model), "--name", "Pyramid")
        self.printed("reg", "add", "HKCU\\" + SETTINGS, "/v", "Color0", "/d", "255", "/f")
        self.printed("reg", "add", "HKLM\\" + PRODUCT, "/v", "Expansion", "/d", "1", "/f", "/reg:32")

    def refuse_while_in_use(self):
        before = self.prefix.snapshot()
        host = self.open_demo_host()
        self.assertEqual(self.install(), FILES_IN_USE)
        # Told where it lies, the uninstaller does all of its work itself, and its exit code can be had.
        # It takes the place without quotation marks, as two words.
        uninstaller = EVERYBODYS + r"\uninstall.exe"
        self.assertEqual(self.prefix.run(uninstaller, "/S", *f"_?={EVERYBODYS}".split()), FILES_IN_USE)
        host.close()
        self.assertNothingChanged(before)

    def upgrade(self):
        self.assertEqual(self.install(), 0)
        now = self.prefix.snapshot()
        self.assertEqual(self.values(now, "HKLM", APPS)['"DisplayVersion"'], '"1.0.0"')
        self.assertFalse(self.prefix.path(EVERYBODYS + r"\Forgotten.txt").exists())
        shipped = (TREE / "common" / "NewModels" / "index.txt").read_text("utf-8").count("\n")
        models = self.library("list")
        self.assertEqual(models.count("\n"), shipped + 1)
        self.assertIn("Pyramid", models)
        self.assertNotIn("Old ", models)
        self.assertIn(f"{shipped + 1} models, all whole", self.library("check"))
        self.assertIn('"Color0"', self.values(now, "HKCU", SETTINGS))
        self.assertIn('"Expansion"', self.values(now, "HKLM", r"Software\Wow6432Node\Tarnwell\Zephra"))
        self.open_demo_host().close()
        self.run_script_client("sysnative")

    def keep_out_for_one_person(self):
        before = self.prefix.snapshot()
        self.assertEqual(self.install("/CurrentUser"), FOR_EVERYBODY)
        self.assertNothingChanged(before)

    # An expansion's entry was made by somebody else.
    EXPANSION_KEY = "HKLM\\\\" + escaped(r"Software\Wow6432Node\Tarnwell\Zephra")
    OWN = [
        "+ Program Files/ActiveNeridaToolbar",
        "+ Program Files/ActiveNeridaToolbar/Models",
        "+ Program Files/ActiveNeridaToolbar/Models.db",
        "+ Program Files/ActiveNeridaToolbar/Models/dv50000",
        "+ Program Files/ActiveNeridaToolbar/Models/dv50000/dv50000",
        "+ Program Files/ActiveNeridaToolbar/Models/dv50000/dv50000/dv50000",
        "+ Program Files/ActiveNeridaToolbar/Models/dv50000/dv50000/dv50000/dv50000.twe",
        "+ Program Files/ActiveNeridaToolbar/Models/index.txt",
        "+ " + EXPANSION_KEY,
        "+ " + EXPANSION_KEY + ' "Expansion"',
    ]

    def uninstall_all_but_ones_own(self):
        self.uninstall()
        now = self.prefix.snapshot()
        self.assertIn('"Color0"', self.values(now, "HKCU", SETTINGS))
        settings = "HKCU\\\\" + escaped(SETTINGS)
        changes = now.changes_since(self.before)
        self.assertEqual([line for line in changes if not line[2:].startswith(settings)], self.OWN)

    def take_ones_own_up_again(self):
        self.assertEqual(self.install(), 0)
        self.assertIn("Pyramid", self.library("list"))
        self.library("remove", "50000")
        self.uninstall()
        self.printed("reg", "delete", r"HKCU\Software\VB and VBA Program Settings", "/f")
        self.printed("reg", "delete", r"HKLM\Software\Tarnwell", "/f", "/reg:32")
        self.assertNothingChanged(self.before)


class ForOnePerson(InstallerCase):
    """Without an administrator's rights, which Wine's users always have: they are waived by a switch. On 32-bit Windows,
    which has one kind of controls only."""
    architecture = "win32"
    script_hosts = ("system32",)

    def test_life_of_an_installation(self):
        self.assertEqual(self.install("/CurrentUser"), 0)
        installed = self.prefix.snapshot()
        self.only_ones_own_is_touched(installed)
        self.borrow_classes()
        self.run_script_client("system32")
        self.open_demo_host(self.folder()).close()
        # Found again without the switch: the installation is renewed where it is.
        self.assertEqual(self.install(), 0)
        self.return_classes()
        self.only_ones_own_is_touched(self.prefix.snapshot())
        self.uninstall(self.folder())
        self.printed("reg", "delete", r"HKCU\Software\VB and VBA Program Settings", "/f")
        self.assertNothingChanged(self.before)
        self.clean()

    def folder(self):
        return MINE.format(user=next((self.prefix.drive / "users").glob("[!P]*")).name)

    def only_ones_own_is_touched(self, installed):
        changes = installed.changes_since(self.before)
        foreign = [line for line in changes if line[2:].startswith("HKLM")
                   or not line[2:].startswith(("HKCU", "users/" + self.folder().split("\\")[2] + "/"))]
        self.assertEqual(foreign, [])
        paths = self.values(installed, "HKCU", PRODUCT)
        for name in ("Dictionary", "Expansion"):
            self.assertEqual(paths[f'"{name}"'], f'"{escaped(self.folder())}"')
        self.assertEqual(self.values(installed, "HKCU", APPS)['"DisplayVersion"'], '"1.0.0"')
        self.assertFalse(self.prefix.path(self.folder() + r"\x64").exists())

    def borrow_classes(self):
        """Wine looks for classes among everybody's only; Windows looks among one's own first."""
        file = self.scratch / "classes.reg"
        self.printed("reg", "export", r"HKCU\Software\Classes", windows_path(file), "/y")
        heading, _, *below = file.read_text("utf-16").replace("HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE").split("\n[")
        borrowed = "\n[".join([heading, *below])
        file.write_text(borrowed, "utf-16")
        self.printed("reg", "import", windows_path(file))
        self.borrowed = sorted({line[1:].partition("]")[0] for line in borrowed.splitlines() if line.startswith("[")},
                               key=len, reverse=True)

    def return_classes(self):
        """Back to what was there before."""
        known = [key.replace("\\\\", "\\").lower() + "\\" for key in self.before.registry]
        for key in self.borrowed:
            below = key.replace("HKEY_LOCAL_MACHINE", "HKLM").lower() + "\\"
            if not any(each.startswith(below) for each in known):
                self.prefix.run("reg", "delete", key, "/f")


if __name__ == "__main__":
    unittest.main(verbosity=2)
