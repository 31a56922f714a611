#!/usr/bin/env python3
"""What must be true of the images that are committed. check_images.py <tree>"""

import pathlib
import struct
import subprocess
import sys
import unittest

RESOURCES = pathlib.Path(sys.argv.pop(1)) / "resources"
PNG_SIGNATURE = b"\x89PNG\r\n\x1a\n"


def size_of(png):
    assert png.startswith(PNG_SIGNATURE)
    return struct.unpack(">II", png[16:24])


def pixels_of(name):
    """Each pixel as red, green, blue and alpha."""
    raw = subprocess.run(
        ["convert", RESOURCES / name, "-depth", "8", "rgba:-"], check=True, stdout=subprocess.PIPE
    ).stdout
    return [raw[i : i + 4] for i in range(0, len(raw), 4)]


def icon_entries(content):
    assert content[:4] == b"icns" and struct.unpack(">I", content[4:8])[0] == len(content)
    position = 8
    while position < len(content):
        kind, length = struct.unpack(">4sI", content[position : position + 8])
        yield kind.decode(), content[position + 8 : position + length]
        position += length


class Images(unittest.TestCase):
    def test_have_the_sizes_that_their_names_say(self):
        sizes = {f"hicolor/{size}.png": size for size in (16, 22, 24, 32, 48, 64, 128, 256, 512)}
        sizes["icon_512x512.png"] = 512
        for name in ("menubar_icon", "menubar_icon_active"):
            sizes |= {f"{name}.png": 18, f"{name}@2x.png": 36}
        for name, pixels in sizes.items():
            with self.subTest(name):
                self.assertEqual(size_of((RESOURCES / name).read_bytes()), (pixels, pixels))

    def test_of_the_idle_menu_bar_are_black_and_alpha_alone(self):
        for name in ("menubar_icon.png", "menubar_icon@2x.png"):
            with self.subTest(name):
                pixels = pixels_of(name)
                self.assertEqual({bytes(pixel[:3]) for pixel in pixels if pixel[3]}, {b"\0\0\0"})
                self.assertTrue(any(pixel[3] == 0 for pixel in pixels))

    def test_of_the_menu_bar_share_one_silhouette(self):
        for suffix in (".png", "@2x.png"):
            with self.subTest(suffix):
                idle = [pixel[3] for pixel in pixels_of("menubar_icon" + suffix)]
                active = [pixel[3] for pixel in pixels_of("menubar_icon_active" + suffix)]
                self.assertEqual(idle, active)

    def test_in_the_icon_file_have_the_sizes_of_their_entries(self):
        sizes = {"icp4": 16, "icp5": 32, "ic07": 128, "ic08": 256, "ic09": 512, "ic10": 1024,
                 "ic11": 32, "ic12": 64, "ic13": 256, "ic14": 512}
        entries = dict(icon_entries((RESOURCES / "Quellbar.icns").read_bytes()))
        self.assertEqual({kind: size_of(png)[0] for kind, png in entries.items()}, sizes)


unittest.main()
