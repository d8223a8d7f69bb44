#!/usr/bin/env python3
"""Draws what a lookup costs beside other systems, from the benchmark's measurements, as SVG for light and dark.

    benchmarks/draw_chart.py MEASUREMENTS.json >CHART.svg
"""
import json
import sys

KINDS = {
    "plain": "plain text",
    "counted": "counted text",
    "1 substitution": "1 placeholder",
    "3 substitutions": "3 placeholders",
}
SYSTEMS = {"module": "ZKStrings", "gettext": "gettext", "ICU": "ICU"}
BAR, GAP, LEFT, RIGHT, WIDTH = 18, 22, 200, 60, 760
STYLE = """
  text { font: 14px system-ui, sans-serif; fill: #1f2328 }
  .title { font-weight: 600; font-size: 16px }
  .note { font-size: 12px; fill: #59636e }
  .module { fill: #0969da } .gettext { fill: #8c959f } .ICU { fill: #bf8700 }
  @media (prefers-color-scheme: dark) {
    text { fill: #f0f6fc } .note { fill: #9198a1 }
    .module { fill: #4493f8 } .gettext { fill: #6e7681 } .ICU { fill: #d29922 }
  }"""


def medians(path):
    """The times of all rows in nanoseconds, by name."""
    with open(path, encoding="utf-8") as file:
        runs = json.load(file)["benchmarks"]
    return {
        "/".join(run["run_name"].split("/")[:2]): run["real_time"] / run["per iteration"]
        for run in runs
        if run.get("aggregate_name") == "median"
    }


def chart(times):
    scale = (WIDTH - LEFT - RIGHT) / max(
        times[f"{kind}/{system}"] / times[f"{kind}/module"] for kind in KINDS for system in SYSTEMS
    )
    shapes = ['<text class="title" x="16" y="28">Time for a lookup, as a multiple of ZKStrings’ own</text>']
    y = 48
    for kind, title in KINDS.items():
        shapes.append(f'<text x="16" y="{y + 14}">{title}</text>')
        for system, name in SYSTEMS.items():
            ratio = times[f"{kind}/{system}"] / times[f"{kind}/module"]
            end = LEFT + ratio * scale
            shapes.append(f'<text class="note" x="{LEFT - 8}" y="{y + 13}" text-anchor="end">{name}</text>')
            shapes.append(
                f'<rect class="{system}" x="{LEFT}" y="{y}" width="{ratio * scale:.1f}" height="{BAR - 3}" rx="2"/>'
            )
            shapes.append(f'<text class="note" x="{end + 6:.1f}" y="{y + 12}">{ratio:.1f}</text>')
            y += BAR
        y += GAP
    note = "Shorter is faster. Medians of one run, German texts copied into a std::string; made by ./bench --chart."
    shapes.append(f'<text class="note" x="16" y="{y}">{note}</text>')
    return (
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{y + 16}" '
        f'viewBox="0 0 {WIDTH} {y + 16}" role="img">\n<title>Time for a lookup beside other systems</title>\n'
        f"<style>{STYLE}\n</style>\n" + "\n".join(shapes) + "\n</svg>"
    )


if __name__ == "__main__":
    print(chart(medians(sys.argv[1])))
