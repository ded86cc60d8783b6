"""The demo book: a picture a page, named in the order of the pages.

Environment: FOLVERO_SOURCE_RESOURCES and FOLVERO_BUILT_RESOURCES, the resources in the source and in
the build tree.
"""

import os
import re
import struct
import unittest
from pathlib import Path

NAMES = [f"page-{number:02}.jpg" for number in range(1, 13)]
# The frame header of a JPEG file: height and width.
FRAME = re.compile(rb"\xff[\xc0-\xc2]..\x08(....)", re.S)


class DemoImages(unittest.TestCase):
    def test_pages_are_there_once_and_of_one_size_and_light(self):
        for variable in ("FOLVERO_SOURCE_RESOURCES", "FOLVERO_BUILT_RESOURCES"):
            folder = Path(os.environ[variable]) / "DemoImgs"
            self.assertEqual(sorted(path.name for path in folder.iterdir()), NAMES)
            pages = [(folder / name).read_bytes() for name in NAMES]
            self.assertEqual(len(set(pages)), len(pages))
            for page in pages:
                self.assertEqual((page[:2], page[-2:]), (b"\xff\xd8", b"\xff\xd9"))
                self.assertEqual(struct.unpack(">HH", FRAME.search(page)[1]), (1600, 1200))
                self.assertLess(len(page), 200_000)


if __name__ == "__main__":
    unittest.main()
