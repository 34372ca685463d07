"""Tests of the icon generator and of the files that it wrote."""

import re
import sys
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools" / "icons"))

# pylint: disable=wrong-import-position
import drawing
import generate
import svg
from compose import PALETTE, REFERENCE, compose

MANIFEST = {row["name"]: row for row in drawing.table(ROOT / "tools/icons/manifest.tsv")}
CURSORS = {row["name"]: row for row in drawing.table(ROOT / "tools/icons/cursors.tsv")}
GLYPHS = drawing.read_glyphs()
GENERATED = generate.files()
ICONS = {name[len("Icons/"):-len(".svg")]: data.decode() for name, data in GENERATED.items() if name.endswith(".svg")}
WITHOUT_REFERENCE = ("mimetype", "swatch")

SHAPES = {"path", "rect", "circle", "ellipse", "line", "polyline", "polygon"}
ELEMENTS = SHAPES | {"svg", "g", "defs", "linearGradient", "radialGradient", "stop"}
ATTRIBUTES = {"width", "height", "viewBox", "d", "x", "y", "rx", "ry", "cx", "cy", "r", "x1", "y1", "x2", "y2", "id",
              "gradientUnits", "offset", "stop-color", "fill", "fill-opacity", "fill-rule", "stroke", "stroke-width",
              "stroke-linecap", "stroke-linejoin"}
# A dotted lower-case word in the sources that begins with an icon group is a name asked for.
ASKED_FOR = re.compile(r'"([a-z]+(?:\.[a-z]+)+)"')
NOT_NAMES = {"svg", "cur", "png", "xml", "qss", "rcc", "theme", "conf"}


def colors_of(text):
    return set(re.findall(r"#[0-9A-Fa-f]{3,8}", text))


class Files(unittest.TestCase):
    def test_are_what_the_tables_give(self):
        self.assertEqual(generate.differences(GENERATED), [])

    def test_color_classes(self):
        with_reference = {name for name, text in ICONS.items() if REFERENCE in colors_of(text)}
        for name, text in ICONS.items():
            colors = colors_of(text)
            expected = {"reference": colors == {REFERENCE}, "mixed": REFERENCE in colors and len(colors) > 1,
                        "colored": REFERENCE not in colors}
            self.assertTrue(expected[MANIFEST[name]["class"]], name)
            group = name.partition(".")[0]
            if group != "swatch":
                self.assertLessEqual(colors, {REFERENCE, *PALETTE.values()}, name)
            plain = name in with_reference or group in WITHOUT_REFERENCE
            self.assertEqual(name.endswith(".colored"), not plain, name)
        # A checked mark is highlighted by replacing its ground, so nothing else may share that color.
        self.assertEqual(colors_of(ICONS["status.checked.circular.colored"]), {PALETTE["warning"], PALETTE["ink"]})

    def test_hold_only_what_a_tiny_renderer_paints(self):
        for name, text in ICONS.items():
            self.assertLessEqual(len(text.encode()), 4096, name)
            root = ElementTree.fromstring(text)
            size = "16" if MANIFEST[name]["base"].endswith("@16") else "24"
            self.assertEqual([root.get(key) for key in ("width", "height", "viewBox")],
                             [size, size, f"0 0 {size} {size}"])
            for element in root.iter():
                tag = element.tag.rpartition("}")[2]
                self.assertIn(tag, ELEMENTS, name)
                self.assertLessEqual(set(element.keys()), ATTRIBUTES, name)
                if tag in SHAPES:
                    self.assertIsNotNone(element.get("fill"), name)
            for color in colors_of(text):
                self.assertRegex(color, "^#[0-9A-F]{6}$", name)

    def test_every_name_that_the_sources_ask_for_exists(self):
        groups = {name.partition(".")[0] for name in ICONS}
        for folder in ("ThemeLibrary", "CommonUtils", "gallery"):
            for path in (ROOT / folder).rglob("*"):
                if path.suffix not in (".cpp", ".h"):
                    continue
                for name in ASKED_FOR.findall(path.read_text(encoding="utf-8")):
                    words = name.split(".")
                    if words[0] in groups and words[-1] not in NOT_NAMES:
                        self.assertTrue(name in ICONS or name in CURSORS, f"{path.name}: {name}")

    def test_every_glyph_is_used(self):
        text = " ".join(f"{row['base']} {row['modifiers']}" for row in MANIFEST.values())
        text += " ".join(row["drawing"] for row in CURSORS.values())
        words = set(re.split(r"[ :;]+", text))
        self.assertEqual(GLYPHS.keys() - words, set())


class Tables(unittest.TestCase):
    def test_faults_are_named(self):
        with self.assertRaisesRegex(ValueError, "icon x: modifier nonsense"):
            compose({"name": "x", "base": "plus", "modifiers": "nonsense"}, GLYPHS)


if __name__ == "__main__":
    unittest.main()
