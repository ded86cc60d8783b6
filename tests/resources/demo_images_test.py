"""The demo book: a picture a page, named in the order of the pages.

Environment: FOLVERO_SOURCE_RESOURCES and FOLVERO_BUILT_RESOURCES, the resources in the source and in
the build tree.
"""

import os
import struct
import unittest
from pathlib import Path

SOURCE = Path(os.environ["FOLVERO_SOURCE_RESOURCES"]) / "DemoImgs"
BUILT = Path(os.environ["FOLVERO_BUILT_RESOURCES"]) / "DemoImgs"


def jpeg_size(data):
    """Width and height that the frame header of a JPEG file states."""
    at = 2
    while at < len(data):
        marker, length = struct.unpack(">xBH", data[at:at + 4])
        if marker in (0xC0, 0xC1, 0xC2):
            height, width = struct.unpack(">HH", data[at + 5:at + 9])
            return width, height
        at += 2 + length
    return None


class DemoImages(unittest.TestCase):
    def test_names_in_the_order_of_text_are_the_order_of_the_pages(self):
        names = sorted(path.name for path in BUILT.iterdir())
        self.assertEqual(names, [f"page-{number:02}.jpg" for number in range(1, 13)])

    def test_pages_are_jpeg_files_of_one_size_and_light(self):
        for path in sorted(SOURCE.iterdir()):
            with self.subTest(path.name):
                data = path.read_bytes()
                self.assertEqual((data[:2], data[-2:]), (b"\xff\xd8", b"\xff\xd9"))
                self.assertEqual(jpeg_size(data), (1200, 1600))
                self.assertLess(len(data), 200_000)

    def test_no_page_is_there_twice(self):
        pages = [path.read_bytes() for path in SOURCE.iterdir()]
        self.assertEqual(len(set(pages)), len(pages))


if __name__ == "__main__":
    unittest.main()
