#!/usr/bin/env python3
"""Runs varn-theme: over the shipped themes, over a theme with faults of all kinds, and as the tutorial says."""

import os
import pathlib
import re
import subprocess
import sys
import tempfile

BIN, DOCS = sys.argv[1], pathlib.Path(sys.argv[2])

FAULTY = """<Config extends="Dark">
  <Palette>
    <ColorsList>
      <Color name="ForegrondColor">#DDDDDD</Color>
      <Color name="BackgroundColor">Blu40</Color>
      <Color name="MainColor" internal="true">#3371E6</Color>
      <Color name="MainColor">#3371E6</Color>
      <Color name="LeftoverColor" internal="true">red</Color>
      <Color name="ACircle" internal="true">BCircle</Color>
      <Color name="BCircle" internal="true">ACircle</Color>
      <Color name="Bad name">red</Color>
      <Color name="Bad{name">red</Color>
      <Color name="NoShare" mix="red">red</Color>
      <Color name="TooLight" lightness="2">red</Color>
      <Color name="Odd" opacity="1">red</Color>
      <Color name="ForegroundColor">#555555</Color>
      <Colr name="Wrong">red</Colr>
      <Color name="ChartGridColor">red</Color>
      <Color name="Faint{A,B}" contrast="3" against="{2}">red</Color>
    </ColorsList>
    <BrushesList>
      <LinearGradientBrush name="CardBorderBrush"><GradientStop offset="0">red</GradientStop></LinearGradientBrush>
      <LinearGradientBrush name="EmptyBrush"/>
      <Brush name="LostBrush">NowhereBrush</Brush>
    </BrushesList>
  </Palette>
  <Opacities><Opacity name="RubberBandOpacity">30</Opacity></Opacities>
  <Factors><Factor name="LightForegrondDisableFactor">150</Factor></Factors>
</Config>
"""

# A word of each kind of finding, by the line that it has to stand in.
EXPECTED = (
    (4, 'was "ForegroundColor" meant'), (5, "neither a color"), (6, "is internal, so"), (7, "another one of this name"),
    (8, "internal and not used"), (9, "leads back to itself"), (11, "needs a name"), (12, "braces"), (13, "need each other"),
    (14, "not a number"), (15, "unknown attribute"), (17, "unknown element"), (18, "say --own"),
    (19, "neither a color"), (22, "is a gradient"), (23, "has no stop"), (24, "no brush of the theme"),
    (27, "not a number from 0 to 1"), (28, 'was "LightForegroundDisableFactor" meant'))

PICTURE = '<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16"><rect width="16" height="16"/></svg>'

# Files with faults: what is in them, and a word of the finding.
FILES = (
    ("Images/Fautly/scalable/action.close.svg", PICTURE, "Images/Fautly:1:1: warning: nothing looks"),
    ("Images/Faulty/scalable/action.clos.svg", PICTURE, '"action.close" meant'),
    ("Images/Faulty/scalable/action.close.ForegrondBrush.svg", PICTURE, '"ForegroundBrush" meant'),
    ("Images/Faulty/scalable/action.open.svg", "<svg", "cannot be read"),
    ("Images/Faulty/scalable/icons.rcc", "qres?", "no resource bundle"),
    ("Images/Faulty/index.theme", "[Icon Theme]\nDirectories=scalabel\n", '"scalabel" is not there'),
    ("Images/Faulty/theme_resources/own.qss", "a {}\nQLabel { color: @colors/MainColr@ }", "own.qss:2:17: error: @colors/MainColr@"))


def run(*arguments, **options):
    return subprocess.run([BIN + "/varn-theme", *arguments], capture_output=True, text=True, check=False, **options)


def test_shipped():
    found = run("check", "--strict")
    assert found.returncode == 0, found.stdout


def test_faults(directory):
    assert run("new", "Faulty", "--repository", directory).returncode == 0
    theme = pathlib.Path(directory, "Faulty")
    assert run("new", "Faulty", "--repository", directory).returncode == 2
    assert run("new", "Grey", "--repository", directory, "--background", "#777777").returncode == 1
    (theme / "config.xml").write_text(FAULTY, encoding="utf-8")
    (theme / "qpaletteMapping.xml").write_text("<QPalette/>", encoding="utf-8")
    for name, content, _ in FILES:
        (theme / name).parent.mkdir(parents=True, exist_ok=True)
        (theme / name).write_text(content, encoding="utf-8")
    found = run("check", str(theme))
    assert found.returncode == 1, found.stdout
    for line, words in EXPECTED:
        column = re.search("<[A-Z]\\w* name", FAULTY.splitlines()[line - 1]).start() + 1
        pattern = rf"Faulty/config.xml:{line}:{column}: (error|warning): .*{re.escape(words)}"
        assert re.search(pattern, found.stdout), f"{pattern}\n{found.stdout}"
    assert "has a contrast of" in found.stdout
    assert re.search("not mapped: .*Window,", found.stdout), found.stdout
    for _, _, words in FILES:
        assert words in found.stdout, f"{words}\n{found.stdout}"
    assert "ChartGridColor" not in run("check", "--own", "^Chart", str(theme)).stdout
    (theme / "theme.xml").write_text("<theme/>", encoding="utf-8")
    assert "has no name" in run("check", str(theme)).stdout


def test_page():
    assert run("names", "--markdown").stdout == (DOCS / "theme-names.md").read_text(encoding="utf-8")


def test_tutorial(directory):
    page = (DOCS / "make-a-theme.md").read_text(encoding="utf-8")
    commands = "\n".join(re.findall(r"```sh\n(.*?)```", page, re.S))
    environment = dict(os.environ, PATH=BIN + os.pathsep + os.environ["PATH"])
    found = subprocess.run(["bash", "-e", "-c", commands], cwd=directory, env=environment, capture_output=True, text=True, check=False)
    assert found.returncode == 0, found.stdout + found.stderr
    assert pathlib.Path(directory, "pictures", "overview.png").exists()


def main():
    test_shipped()
    test_page()
    for test in (test_faults, test_tutorial):
        with tempfile.TemporaryDirectory() as directory:
            test(directory)


if __name__ == "__main__":
    main()
