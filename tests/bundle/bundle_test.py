"""What must be true of Quellbar.app as it is delivered, wherever it was built."""

import os
import pathlib
import plistlib
import re
import sys
import unittest

import macho

FRAMEWORKS = "/System/Library/Frameworks"
LIBRARIES = {
    f"{FRAMEWORKS}/AppKit.framework/Versions/C/AppKit",
    f"{FRAMEWORKS}/ApplicationServices.framework/Versions/A/ApplicationServices",
    f"{FRAMEWORKS}/Carbon.framework/Versions/A/Carbon",
    f"{FRAMEWORKS}/CoreFoundation.framework/Versions/A/CoreFoundation",
    f"{FRAMEWORKS}/CoreGraphics.framework/Versions/A/CoreGraphics",
    f"{FRAMEWORKS}/Foundation.framework/Versions/C/Foundation",
    f"{FRAMEWORKS}/IOKit.framework/Versions/A/IOKit",
    f"{FRAMEWORKS}/ServiceManagement.framework/Versions/A/ServiceManagement",
    "/usr/lib/libobjc.A.dylib",
    "/usr/lib/libSystem.B.dylib",
}
if sys.platform == "darwin":
    # Apple's compiler links the system's C++ library; elsewhere it is part of the program.
    LIBRARIES.add("/usr/lib/libc++.1.dylib")

# What the user sees is made of these: the status item and its menu, the windows and what they hold.
SEEN_CLASSES = {
    "NSStatusBar",
    "NSMenu",
    "NSMenuItem",
    "NSWindow",
    "NSView",
    "NSTextField",
    "NSButton",
    "NSStepper",
    "NSImageView",
    "NSImage",
}

MACOS = 1
OLDEST_SYSTEM = "13.0"


class Bundle(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        contents = pathlib.Path(os.environ["QUELLBAR_BUNDLE"]) / "Contents"
        cls.executables = contents / "MacOS"
        cls.properties = plistlib.loads((contents / "Info.plist").read_bytes())
        cls.file = (cls.executables / "Quellbar").read_bytes()
        cls.programs = list(macho.programs(cls.file))

    def testTheProgramIsBuiltForBothArchitectures(self):
        architectures = [program.architecture for program in self.programs]
        self.assertCountEqual(architectures, ["arm64", "x86_64"])

    def testBothArchitecturesStartOnMacOS13(self):
        for program in self.programs:
            with self.subTest(program.architecture):
                self.assertEqual(program.minimum_system(), (MACOS, OLDEST_SYSTEM))

    def testNothingIsLoadedBesideTheDeclaredFrameworksAndTheSystem(self):
        for program in self.programs:
            with self.subTest(program.architecture):
                self.assertCountEqual(program.libraries(), LIBRARIES)

    def testEverySymbolFromElsewhereIsBoundToADeclaredLibrary(self):
        for program in self.programs:
            imports = dict(program.imports())
            with self.subTest(program.architecture):
                self.assertIn("_NSApp", imports)
            for symbol, library in imports.items():
                with self.subTest(program.architecture, symbol=symbol):
                    self.assertIn(library, LIBRARIES)

    def testWhatTheUserSeesIsMadeOfAppKitsOwnClasses(self):
        wanted = {f"_OBJC_CLASS_$_{name}" for name in SEEN_CLASSES}
        for program in self.programs:
            classes = {
                symbol
                for symbol, library in program.imports()
                if library is not None and library.endswith("/AppKit")
            }
            with self.subTest(program.architecture):
                self.assertEqual(wanted - classes, set())

    def testTheFormatsOfLogMessagesAreWhereTheLogLooksForThem(self):
        for program in self.programs:
            with self.subTest(program.architecture):
                formats = program.section("__TEXT", "__oslogstring")
                self.assertEqual(formats.split(b"\0"), [b"%{public}s", b""])

    def testTheArm64ProgramIsSignedAsItStands(self):
        signed = {p.architecture: p.is_signed_as_it_stands() for p in self.programs}
        self.assertTrue(signed["arm64"])

    def testThePropertyListSaysWhatTheSystemAsksFor(self):
        version = os.environ["QUELLBAR_VERSION"]
        copyright_line = self.properties.pop("NSHumanReadableCopyright", "")
        self.assertIn("the Quellbar authors", copyright_line)
        self.assertEqual(
            self.properties,
            {
                "CFBundleDevelopmentRegion": "en",
                "CFBundleDisplayName": "Quellbar",
                "CFBundleExecutable": "Quellbar",
                "CFBundleIconFile": "Quellbar",
                "CFBundleIdentifier": "io.github.quellbar.Quellbar",
                "CFBundleInfoDictionaryVersion": "6.0",
                "CFBundleName": "Quellbar",
                "CFBundlePackageType": "APPL",
                "CFBundleShortVersionString": version,
                "CFBundleVersion": version,
                "LSApplicationCategoryType": "public.app-category.utilities",
                "LSMinimumSystemVersion": OLDEST_SYSTEM,
                "LSUIElement": True,
                "NSHighResolutionCapable": True,
                "NSPrincipalClass": "NSApplication",
            },
        )

    def testTheImagesAndTheIconAreAmongTheResources(self):
        resources = self.executables.parent / "Resources"
        names = {"icon_512x512.png", self.properties["CFBundleIconFile"] + ".icns"}
        for name in ("menubar_icon", "menubar_icon_active"):
            names |= {f"{name}.png", f"{name}@2x.png"}
        self.assertEqual({entry.name for entry in resources.iterdir()}, names)
        sources = pathlib.Path(__file__).resolve().parents[2] / "resources"
        for name in names:
            with self.subTest(name):
                same = (resources / name).read_bytes() == (sources / name).read_bytes()
                self.assertTrue(same, "not as it is in resources/")

    def testNothingLiesWhereASignatureWouldNotCoverIt(self):
        bundle = pathlib.Path(os.environ["QUELLBAR_BUNDLE"])
        self.assertEqual([entry.name for entry in bundle.iterdir()], ["Contents"])

    def testTheOnlyExecutableIsTheOneThatThePropertyListNames(self):
        named = self.executables / self.properties["CFBundleExecutable"]
        self.assertEqual(list(self.executables.iterdir()), [named])
        self.assertTrue(os.access(named, os.X_OK))

    def testTheOnlyPathOfTheBuildingMachineIsWhereItsImagesWereBuilt(self):
        build = pathlib.Path(os.environ["QUELLBAR_BUNDLE"]).parent
        sources = pathlib.Path(__file__).resolve().parents[2]
        for folder in (sources, build, pathlib.Path.home()):
            for found in re.findall(re.escape(os.fsencode(folder)) + rb"/[^\0]*", self.file):
                path = pathlib.Path(os.fsdecode(found))
                with self.subTest(path=path):
                    self.assertEqual(path.name, "Quellbar_Quellbar.bundle")
                    self.assertTrue(path.is_relative_to(build))


if __name__ == "__main__":
    unittest.main()
