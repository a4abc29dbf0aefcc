"""Draws which folder of the library uses which, from the includes of its files.

usage: architecture.py [--check]
Writes docs/architecture.svg; with --check it fails when that is not what it would write.
"""
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
FOLDERS = {
    "crl": "revocation lists",
    "pkcs": "requests and messages",
    "x509": "names, certificates",
    "keys": "RSA, EC and SM2 keys",
    "der": "nodes, tags, universal types",
    "text": "Base64, PEM, GB2312, UTF-8",
    "platform": "allocator, time, processor",
}
WIDE, HIGH, GAP_X, GAP_Y, TOP = 196, 54, 36, 56, 84
INCLUDE = re.compile(r'^#include "([a-z0-9]+)/', re.MULTILINE)


def sources(folder):
    return sorted(path for path in (ROOT / folder).iterdir() if path.suffix in (".h", ".cpp"))


def read_uses():
    """The folders that each folder includes headers of."""
    return {folder: {used for path in sources(folder) for used in INCLUDE.findall(path.read_text())
                     if used in FOLDERS and used != folder} for folder in FOLDERS}


def layers(uses):
    """The folders by the length of the longest way down from them, the topmost first."""
    def depth(folder):
        return 1 + max((depth(used) for used in uses[folder]), default=0)
    depths = {folder: depth(folder) for folder in FOLDERS}
    return [[folder for folder in FOLDERS if depths[folder] == level]
            for level in range(max(depths.values()), 0, -1)]


def draw(uses):
    rows = layers(uses)
    width = max(len(row) for row in rows) * (WIDE + GAP_X) + GAP_X
    height = TOP + len(rows) * (HIGH + GAP_Y)
    places = {}
    for level, row in enumerate(rows):
        left = (width - len(row) * (WIDE + GAP_X) + GAP_X) / 2
        for at, folder in enumerate(row):
            places[folder] = (left + at * (WIDE + GAP_X), TOP + GAP_Y / 2 + level * (HIGH + GAP_Y))

    shapes = []
    for folder, used in ((folder, used) for folder in FOLDERS for used in sorted(uses[folder])):
        # What is used through another folder too is told by the arrows of that.
        if any(used in uses[between] for between in uses[folder]):
            continue
        (x, y), (to_x, to_y) = places[folder], places[used]
        shapes.append(f'<line x1="{x + WIDE / 2:.0f}" y1="{y + HIGH:.0f}" x2="{to_x + WIDE / 2:.0f}" '
                      f'y2="{to_y - 2:.0f}" stroke="#57606a" stroke-width="1.5" '
                      'marker-end="url(#arrow)"/>')
    for folder, (x, y) in places.items():
        middle = x + WIDE / 2
        shapes.append(f'<rect x="{x:.0f}" y="{y:.0f}" width="{WIDE}" height="{HIGH}" rx="6" '
                      'fill="#eaf2fb" stroke="#0060a8"/>')
        for offset, style, text in ((22, ' font-weight="bold"', f"{folder}/"),
                                    (40, "", FOLDERS[folder])):
            shapes.append(f'<text x="{middle:.0f}" y="{y + offset:.0f}" text-anchor="middle"'
                          f'{style}>{text}</text>')
    body = "\n".join(shapes)
    return f"""<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" \
width="{width}" height="{height}" role="img" font-family="Helvetica, Arial, sans-serif" \
font-size="13" fill="#1f2328">
<title>The folders of the library, each above those whose headers it includes</title>
<defs><marker id="arrow" markerWidth="9" markerHeight="9" refX="7" refY="4" orient="auto">
<path d="M0,0 L8,4 L0,8 z" fill="#57606a"/></marker></defs>
<rect width="{width}" height="{height}" fill="#ffffff"/>
<rect x="{GAP_X}" y="28" width="{width - 2 * GAP_X}" height="44" rx="6" fill="#1f2328"/>
<text x="{width / 2:.0f}" y="55" text-anchor="middle" font-weight="bold" fill="#ffffff">\
include/Velkord.h: all functions, in plain C</text>
{body}
</svg>
"""


def main():
    target = ROOT / "docs/architecture.svg"
    image = draw(read_uses())
    if sys.argv[1:] == ["--check"]:
        if target.read_text() != image:
            sys.exit("docs/architecture.svg is not up to date. Run python3 docs/architecture.py.")
    elif sys.argv[1:]:
        sys.exit(__doc__)
    else:
        target.write_text(image)


main()
