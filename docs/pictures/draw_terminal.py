#!/usr/bin/env python3
"""Draws what a command prints in a terminal, as SVG for light and dark.

    LANG=C.UTF-8 build/app/bin/tour de-DE ja-JP | docs/pictures/draw_terminal.py './run de-DE ja-JP' >docs/pictures/tour.svg
"""
import html
import re
import sys

COLUMN, LINE, MARGIN, COLUMNS = 8.4, 21, 18, 80
STYLE = """
  rect { fill: #f6f8fa; stroke: #d1d9e0 }
  text { font: 14px ui-monospace, "DejaVu Sans Mono", Menlo, Consolas, monospace; fill: #1f2328; white-space: pre }
  .call { fill: #59636e } .heading { font-weight: 600; fill: #0969da }
  @media (prefers-color-scheme: dark) {
    rect { fill: #151b23; stroke: #3d444d }
    text { fill: #f0f6fc } .call { fill: #9198a1 } .heading { fill: #4493f8 }
  }"""


def words(line, kind):
    """The parts of a line that blanks set apart, each at its column."""
    for part in re.finditer(r"\S+(?: \S+)*", line):
        is_call = kind == "" and part.start() < 10
        yield part.start(), "call" if is_call else kind, part.group()


def picture(command, lines):
    shapes = []
    for row, line in enumerate([f"$ {command}"] + lines):
        y = MARGIN + LINE * row + 14
        kind = "heading" if row > 0 and line and not line.startswith(" ") else "text" if row == 0 else ""
        for column, name, text in words(line, kind):
            x = MARGIN + column * COLUMN
            shapes.append(f'<text class="{name or "text"}" x="{x:.1f}" y="{y}">{html.escape(text)}</text>')
    width, height = MARGIN * 2 + COLUMNS * COLUMN, MARGIN * 2 + LINE * (len(lines) + 1)
    return (
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{width:.0f}" height="{height}" '
        f'viewBox="0 0 {width:.0f} {height}" role="img">\n<title>What {html.escape(command)} prints</title>\n'
        f'<style>{STYLE}\n</style>\n<rect x="0.5" y="0.5" width="{width - 1:.0f}" height="{height - 1}" rx="8"/>\n'
        + "\n".join(shapes) + "\n</svg>"
    )


if __name__ == "__main__":
    print(picture(sys.argv[1], sys.stdin.read().rstrip("\n").split("\n")))
