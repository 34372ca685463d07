#!/usr/bin/env python3
"""Draws the pictures of README.md, docs/theme-format.md and docs/make-a-theme.md: tools/docs_pictures.py BIN, where BIN
holds varn-theme and varn-gallery. Colors are those that varn-theme computes; pages are rendered, and cut and packed with
ImageMagick's "convert"."""

import html
import os
import pathlib
import re
import subprocess
import sys
import tempfile

import sourcetree

IMAGES = sourcetree.ROOT / "docs/images"
FONT = 'font-family="DejaVu Sans Mono, Menlo, Consolas, monospace" font-size="12"'
GROUND, INK = "#1E2329", "#D5DCE4"

# What a derivation is tried on, and its attributes, each a color of its own.
DERIVATIONS = (
    ("#2F7FD0", [f'lighter="{percent}"' for percent in (105, 110, 120, 135, 150)]),
    ("#2F7FD0", [f'darker="{percent}"' for percent in (110, 120, 140, 170, 200)]),
    ("#2F7FD0", [f'mix="#F2C14E" share="{share}"' for share in (0.2, 0.4, 0.6, 0.8, 1)]),
    ("#2F7FD0", [f'lightness="{lightness}"' for lightness in (0.1, 0.3, 0.5, 0.7, 0.9)]),
    ("#2F7FD0", [f'lightness="{shift}"' for shift in ("-0.2", "-0.1", "+0.1", "+0.2", "+0.3")]),
    ("#2F7FD0", [f'chroma="{factor}"' for factor in (0, 0.5, 0.8, 1.2, 1.5)]),
    ("white", [f'or="black" against="{ground}"' for ground in ("#123B66", "#2F7FD0", "#7FB2E5", "#F2C14E", "#C04040")]),
    ("#2F7FD0", [f'contrast="{ratio}" against="{GROUND}"' for ratio in (3, 4.5, 6, 7, 10)]),
    ("#2F7FD0", [f'alpha="{alpha}"' for alpha in (0.2, 0.4, 0.6, 0.8, 1)]),
)


def text(x, y, words, color=INK, anchor="start"):
    return f'<text x="{x}" y="{y}" fill="{color}" text-anchor="{anchor}" {FONT}>{html.escape(words)}</text>\n'


def swatch(x, y, color, width=92, height=30):
    return f'<rect x="{x}" y="{y}" width="{width}" height="{height}" rx="3" stroke="{INK}" stroke-opacity="0.3" {svg_fill(color)}/>\n'


def svg_fill(color):
    """`color` may have its opacity in front, as Qt writes it."""
    if len(color) == 9:
        return f'fill="#{color[3:]}" fill-opacity="{int(color[1:3], 16) / 255:.2f}"'
    return f'fill="{color}"'


def svg(width, height, content):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" viewBox="0 0 {width} {height}">\n'
            f'<rect width="{width}" height="{height}" rx="6" fill="{GROUND}"/>\n{content}</svg>\n')


class Tools:
    def __init__(self, directory):
        self.bin = pathlib.Path(directory).resolve()
        self.environment = dict(os.environ, QT_FONT_DPI="96", NO_COLOR="1", XDG_RUNTIME_DIR=tempfile.gettempdir())

    def run(self, *arguments):
        return subprocess.run([self.bin / arguments[0], *arguments[1:]], env=self.environment, capture_output=True,
                              text=True, check=False).stdout


def derived_colors(tools, directory):
    """The colors of all derivations, by their names."""
    theme = pathlib.Path(directory, "Derived")
    theme.mkdir()
    lines = [f'<Color name="Row{row}At{column}" {attributes}>{start}</Color>'
             for row, (start, variants) in enumerate(DERIVATIONS) for column, attributes in enumerate(variants)]
    (theme / "config.xml").write_text("<Config><Palette><ColorsList>" + "".join(lines) + "</ColorsList></Palette></Config>")
    return dict(re.findall(r"^(Row\d+At\d+) (#\w+)  ", tools.run("varn-theme", "show", str(theme), "^Row"), re.M))


def derivations(tools, directory):
    colors = derived_colors(tools, directory)
    content, top = "", 14
    for row, (start, variants) in enumerate(DERIVATIONS):
        attributes = re.findall(r'(\S+)="([^"]*)"', variants[0])
        varying = next(key for key, value in attributes if f'{key}="{value}"' not in variants[1])
        title = " ".join(f'{key}="{"…" if key == varying else value}"' for key, value in attributes)
        content += text(14, top + 12, title) + swatch(14, top + 20, start)
        for column, variant in enumerate(variants):
            color, left = colors[f"Row{row}At{column}"], 130 + column * 104
            value = re.search(rf'{varying}="([^"]*)"', variant).group(1)
            if varying == "against":
                content += swatch(left, top + 20, value) + text(left + 46, top + 40, "words", color, "middle")
            else:
                content += swatch(left, top + 20, color)
            content += text(left + 46, top + 66, value, INK, "middle")
        top += 84
    return svg(130 + 5 * 104 + 6, top + 2, content)


def terminal(lines):
    """Lines of output, with a swatch before each color."""
    content = ""
    for row, line in enumerate(lines):
        left, baseline = 14, 26 + row * 20
        for part in re.split(r"(?<![\"\w])(#[0-9a-f]{6})\b", line):
            if re.fullmatch(r"#[0-9a-f]{6}", part):
                content += swatch(left, baseline - 11, part, 22, 14)
                left += 29
            content += f'<text x="{left}" y="{baseline}" fill="{INK}" xml:space="preserve" {FONT}>{html.escape(part)}</text>\n'
            left += len(part) * 7.23
    return svg(round(max(map(len, lines)) * 7.23) + 60, 20 * len(lines) + 22, content)


def pack(name, *arguments, colors=64):
    subprocess.run(["convert", *arguments, "-strip", "+dither", "-colors", str(colors), "PNG8:" + str(IMAGES / name)], check=True)


def cut(page, geometry):
    return ["(", str(page), "-crop", geometry, "+repage", ")"]


def overviews(tools, directory):
    for theme in ("Dark", "Light"):
        pages = pathlib.Path(directory, theme)
        tools.run("varn-theme", "render", str(sourcetree.ROOT / "Themes" / theme), str(pages))
        pack(f"overview-{theme.lower()}.png", str(pages / "overview.png"), colors=256)


def tutorial(tools, directory):
    page = (sourcetree.ROOT / "docs/make-a-theme.md").read_text(encoding="utf-8")
    repository, plum = pathlib.Path(directory, "themes"), pathlib.Path(directory, "themes/Plum")
    new = re.search(r'varn-theme new Plum.*--background "(\S+)" --foreground "(\S+)" --accent "(\S+)"', page).groups()
    tools.run("varn-theme", "new", "Plum", "--repository", str(repository), "--background", new[0], "--foreground", new[1],
              "--accent", new[2])
    before, after, dark = (pathlib.Path(directory, name) for name in ("before", "after", "Dark"))
    tools.run("varn-theme", "render", str(plum), str(before))
    shown = tools.run("varn-theme", "show", str(plum), "^MainColor$").splitlines()
    (plum / "config.xml").write_text(re.search(r"<<'XML'\n(.*?)XML\n", page, re.S).group(1), encoding="utf-8")
    tools.run("varn-theme", "render", str(plum), str(after))

    pack("theme-seeds.png", *cut(dark / "overview.png", "276x450+806+160"), *cut(before / "overview.png", "276x450+806+160"), "+append")
    pack("theme-page.png", *cut(before / "overview.png", "1056x714+32+84"))
    pack("theme-taste.png", *cut(before / "menus.png", "570x130+32+915"), *cut(after / "menus.png", "570x130+32+915"), "+append")
    places = [re.sub(r"\S*/themes/", "themes/", line) for line in shown[:9]]
    (IMAGES / "theme-chain.svg").write_text(terminal(places), encoding="utf-8")
    table = tools.run("varn-theme", "contrast", str(plum)).splitlines()
    (IMAGES / "theme-contrast.svg").write_text(terminal([line.strip() for line in table[:8]]), encoding="utf-8")


def main():
    tools = Tools(sys.argv[1])
    with tempfile.TemporaryDirectory() as directory:
        (IMAGES / "derivations.svg").write_text(derivations(tools, directory), encoding="utf-8")
        overviews(tools, directory)
        tutorial(tools, directory)


if __name__ == "__main__":
    main()
