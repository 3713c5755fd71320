#!/usr/bin/python3
"""The Debian package as it comes out of a build.

    package_test.py BUILD_FOLDER SOURCE_FOLDER
"""
import pathlib
import subprocess
import sys
import tempfile
import unittest

BUILD = pathlib.Path()
SOURCE = pathlib.Path()
DICTIONARY = "usr/share/dravolin/dicom.dic"


def output(*command, **options):
    return subprocess.run([str(word) for word in command], check=True, text=True, stdout=subprocess.PIPE,
                          **options).stdout


class Package(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.scratch.cleanup)
        folder = pathlib.Path(cls.scratch.name)
        output("cpack", "-G", "DEB", "-B", folder, "--config", BUILD / "CPackConfig.cmake", cwd=BUILD)
        cls.package, = folder.glob("dravolin_*.deb")
        cls.control, cls.root = folder / "control", folder / "root"
        output("dpkg-deb", "-e", cls.package, cls.control)
        output("dpkg-deb", "-x", cls.package, cls.root)

    def field(self, name):
        return output("dpkg-deb", "-f", self.package, name).strip()

    def maintain(self, script, action, root):
        output(self.control / script, action, env={"DPKG_ROOT": str(root), "PATH": "/usr/bin:/bin"})

    def save_dictionary(self, root, folder):
        file = root / "usr/share" / folder / "dicom.dic"
        file.parent.mkdir(parents=True)
        file.touch()
        return "/" + str(file.relative_to(root))

    def test_passes_the_checkers_of_the_distribution(self):
        output(SOURCE / "packaging/check.sh", self.package)

    def test_needs_the_tools_and_the_libraries(self):
        needed = {entry.split()[0] for entry in self.field("Depends").split(",")}
        self.assertLessEqual({"dcmtk", "xdg-utils", "libqt6widgets6", "libqt6gui6", "libqt6dbus6", "libc6",
                              "libqt6sql6-sqlite", "libdcmtk17", "libgdcm3.0", "qt6-translations-l10n"}, needed)

    def test_holds_a_whole_program_that_a_desktop_finds(self):
        files = {str(path.relative_to(self.root / "usr")) for path in self.root.rglob("*") if not path.is_dir()}
        icons = {f"share/icons/hicolor/{n}x{n}/apps/dravolin.png" for n in (16, 22, 24, 32, 48, 64, 128, 256)}
        resources = {f"share/dravolin/{name}" for name in (
            "AnonymizationLUT_Example.txt", "DefaultAnonymizationConfiguration.txt", "DragImage.png", "LutImage.png",
            "dcmodify", "dcmdump")}
        self.assertLessEqual(icons | resources | {
            "bin/Dravolin", "bin/dravolin-cli", "lib/dravolin/dravolin-gdcm.so", "share/dravolin/translations/dravolin_de.qm", "share/applications/example.dravolin.Dravolin.desktop",
            "share/metainfo/example.dravolin.Dravolin.metainfo.xml", "share/icons/hicolor/scalable/apps/dravolin.svg",
            "share/man/man1/Dravolin.1.gz", "share/man/man1/dravolin-cli.1.gz", "share/doc/dravolin/copyright",
            "share/doc/dravolin/user-guide.md", "share/doc/dravolin/pictures/window.png"}, files)
        self.assertEqual((self.root / "usr/share/dravolin/dcmodify").readlink(), pathlib.Path("../../bin/dcmodify"))
        self.assertFalse((self.root / DICTIONARY).is_symlink(), "it would point at one version of the library")

    def test_its_check_needs_nothing_else_of_the_build(self):
        data = self.root / "usr/share/doc/dravolin/pictures"  # the names of its files are found
        checked = subprocess.run([self.root / "usr/bin/dravolin-cli", "check", "--quiet", data, data], check=False,
                                 text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        self.assertEqual((checked.returncode, checked.stdout), (1, ""))

    def test_links_the_newest_dictionary_and_follows_an_update(self):
        with tempfile.TemporaryDirectory() as name:
            root = pathlib.Path(name)
            (root / "usr/share/dravolin").mkdir(parents=True)
            first = self.save_dictionary(root, "libdcmtk9")
            self.maintain("postinst", "configure", root)
            self.assertEqual(str((root / DICTIONARY).readlink()), first)
            second = self.save_dictionary(root, "libdcmtk17")
            self.maintain("postinst", "triggered", root)
            self.assertEqual(str((root / DICTIONARY).readlink()), second)
            self.maintain("prerm", "upgrade", root)
            self.assertTrue((root / DICTIONARY).is_symlink())
            self.maintain("prerm", "remove", root)
            self.assertFalse((root / DICTIONARY).is_symlink())

    def test_an_update_of_the_tools_sets_the_link_anew(self):
        self.assertEqual((self.control / "triggers").read_text(encoding="ascii"), "interest-noawait /usr/bin/dcmodify\n")


if __name__ == "__main__":
    BUILD, SOURCE = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
    unittest.main(argv=sys.argv[:1], verbosity=2)
