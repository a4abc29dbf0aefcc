"""Makes a table and a chart of the results of the bench.

usage: report.py RESULTS FOLDER
RESULTS is a JSON file of Google Benchmark that holds medians. Writes table.md, chart.svg and
chart_short.svg, a few cases for a narrow screen, into FOLDER and prints the table.
"""
import json
import math
import sys
from pathlib import Path
from typing import NamedTuple
from xml.sax.saxutils import escape

# The colours differ in brightness too, and all stand out on white.
CONTENDERS = {
    "velkord": ("Velkord", "#1f2328"),
    "limit": ("Limit", "#7d838b"),
    "openssl": ("OpenSSL", "#0060a8"),
    "mbedtls": ("mbedTLS", "#c26a00"),
    "iconv": ("iconv", "#b0508a"),
    "icu": ("ICU", "#7a3b00"),
}
PEERS = list(CONTENDERS)[2:]
# The cases of the short chart: of the texts in each direction the one that suits Velkord least.
SHORT = ("certificate_decode", "certificate_write", "list_decode", "base64_encode_1536",
         "base64_decode_1m", "der_to_pem", "gb_to_utf8_ascii", "utf8_to_gb_hanzi")
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


class Case(NamedTuple):
    """What is timed, and how: at most `limit` times the time of the limit, and at least so many
    times as fast as each of `peers`."""
    title: str
    item: str
    limit: float | None = None
    peers: dict[str, float] = {}


def known_cases():
    cases = {
        "certificate_decode": Case(
            "Certificate: both decodes and frees", "certificate", 1.2, {"mbedtls": 3}),
        "certificate_decode_bundle": Case("The same over the whole bundle", "certificate"),
        "certificate_write": Case("Certificate: both writers and frees", "certificate"),
    }
    for entries in 10, 1000, 10_000, 100_000, 1_000_000:
        cases[f"list_split_{entries}"] = Case(
            f"List of {entries:,} entries: split and free", "entry", 1.15)
    cases["list_decode"] = Case("List of 10,000, decoded whole", "entry", None, {"openssl": 1})
    cases["list_dates"] = Case("Its dates alone", "date")
    for name, entries in ("list_build", 10_000), ("list_build_100000", 100_000):
        cases[name] = Case(f"List of {entries:,}: entries written and joined", "entry")

    for way in "encode", "decode":
        for name, size in ("1536", "1.5 KiB"), ("1m", "1 MiB"):
            cases[f"base64_{way}_{name}"] = Case(
                f"Base64 {way}, {size}", "byte", None, {"openssl": 6})
    cases["pem_to_der"] = Case("PEM to DER, a certificate", "certificate", None, {"openssl": 15})
    cases["der_to_pem"] = Case("DER to PEM, a certificate", "certificate", None, {"openssl": 8})

    texts = {
        "hanzi": "hanzi only",
        "mixed": "30 % ASCII drawn singly",
        "mixed_runs": "30 % ASCII in runs of 8",
        "ascii": "ASCII only",
        "name": "a name of 18 characters",
    }
    for way, title in ("gb_to_utf8", "GB2312 to UTF-8"), ("utf8_to_gb", "UTF-8 to GB2312"):
        for name, text in texts.items():
            cases[f"{way}_{name}"] = Case(
                f"{title}, {text}", "character", None, {"iconv": 3, "icu": 1.3})

    for name, title in {
            "ctouni": "One GB2312 code to its code point",
            "unitoc": "One code point to its GB2312 code",
            "integer_write": "INTEGER written",
            "integer_read": "INTEGER read",
            "object_id_write": "OBJECT IDENTIFIER written",
            "object_id_to_bytes": "OBJECT IDENTIFIER, text to octets",
            "string_write": "UTF8String written",
            "string_read": "UTF8String read",
            "time_write": "UTCTime written",
    }.items():
        cases[name] = Case(title, "call")
    # The limit is one look at the zone.
    cases["time_read"] = Case("UTCTime read", "call", 4)
    return cases


def read_times(path):
    """The nanoseconds per item, by case and contender."""
    times = {}
    for result in json.loads(path.read_text(encoding="utf-8"))["benchmarks"]:
        if result.get("aggregate_name") == "median":
            case, contender = result["run_name"].split("/")[:2]
            if contender not in CONTENDERS:
                sys.exit(f"{case}: unknown contender {contender}")
            nanoseconds = result["real_time"] * NANOSECONDS[result["time_unit"]]
            times.setdefault(case, {})[contender] = nanoseconds / result["items"]
    return times


def decimals(value, digits):
    return max(0, digits - 1 - math.floor(math.log10(value)))


def figure(time, item):
    if item == "byte":
        value, unit = 1 / time, "GB/s"
    elif time < 10_000:
        value, unit = time, "ns"
    else:
        value, unit = time / 1000, "µs"
    return f"{value:,.{decimals(value, 3)}f} {unit}"


def velkord_figure(times, case):
    text = figure(times["velkord"], case.item)
    return text if case.item == "byte" else f"{text}/{case.item}"


def rounded(ratio, rounding):
    """The ratio as text. It is rounded against Velkord, so that no goal is met by rounding."""
    places = min(2, decimals(ratio, 3))
    return f"{rounding(ratio * 10**places) / 10**places:.{places}f}"


def goal_text(sign, goal, met):
    if goal is None:
        return ""
    return f" ({sign} {goal:g})" + ("" if met(goal) else " **missed**")


def limit_cells(times, case):
    if "limit" not in times:
        return "–", "–"
    ratio = times["velkord"] / times["limit"]
    return (figure(times["limit"], case.item),
            rounded(ratio, math.ceil) + goal_text("≤", case.limit, lambda goal: ratio <= goal))


def peer_text(peer, times, case):
    ratio = times[peer] / times["velkord"]
    return (f"{CONTENDERS[peer][0]} {figure(times[peer], case.item)}, "
            f"{rounded(ratio, math.floor)}×" +
            goal_text("≥", case.peers.get(peer), lambda goal: ratio >= goal))


def make_table(rows):
    table = [("Case", "Velkord", "Limit", "Velkord ÷ limit", "Peers")]
    for case, times in rows:
        peers = "<br>".join(peer_text(peer, times, case) for peer in PEERS if peer in times)
        table.append((case.title, velkord_figure(times, case), *limit_cells(times, case),
                      peers or "–"))
    # The last column stays ragged: it would only make the lines longer.
    widths = [max(len(row[column]) for row in table) for column in range(4)] + [5]
    lines = ["| " + " | ".join(map(str.ljust, row, widths)) + " |" for row in table]
    bars = ["-" * widths[0]] + ["-" * (width - 1) + ":" for width in widths[1:4]] + ["-----"]
    lines.insert(1, "| " + " | ".join(bars) + " |")
    return "\n".join(lines) + """

Each figure is a median over all runs. The limit is code that does only what no implementation can
leave out. The factor after a peer's figure says how many times as fast Velkord is. Goals are in
brackets.
"""


BAR = 11
PLOT = 440
BAR_LABEL = 40
TOP = 82


def text(x, y, content, anchor="start", more=""):
    return (f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}"{more}>'
            f'{escape(content)}</text>')


def box(x, y, wide, high, colour):
    return (f'<rect x="{x:.1f}" y="{y:.1f}" width="{wide:.1f}" height="{high:.1f}" '
            f'fill="{colour}"/>')


def svg(width, height, title, body):
    return f"""<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" \
width="{width}" height="{height}" role="img" font-family="Helvetica, Arial, sans-serif" \
font-size="12" fill="#1f2328">
<title>{title}</title>
<rect width="{width}" height="{height}" fill="#ffffff"/>
{body}
</svg>
"""


def make_chart(rows):
    rows = [(case, times) for case, times in rows if len(times) > 1]
    ratios = [time / times["velkord"] for _, times in rows for time in times.values()]
    first = math.floor(math.log10(min(ratios, default=1)))
    last = max(first + 1, math.ceil(math.log10(max(ratios, default=1))))
    left = 30 + 7 * max((len(case.title) for case, _ in rows), default=0) + BAR_LABEL
    width = left + PLOT + BAR_LABEL + 150

    def place(ratio):
        return left + PLOT * (math.log10(ratio) - first) / (last - first)

    bands, axis, bars = [], [], []
    y = TOP
    for index, (case, times) in enumerate(rows):
        others = [name for name in CONTENDERS if name in times and name != "velkord"]
        height = BAR * max(2, len(others)) + 10
        middle = y + height / 2
        if index % 2 == 0:
            bands.append(box(0, y, width, height, "#f3f5f7"))
        bars += [text(16, middle + 4, case.title),
                 text(width - 16, middle + 4, velkord_figure(times, case), "end")]
        for position, name in enumerate(others):
            ratio = times[name] / times["velkord"]
            bar_y = middle + (position - len(others) / 2) * BAR
            start, end = sorted((place(1), place(ratio)))
            bars.append(box(start, bar_y + 1, max(end - start, 1), BAR - 2, CONTENDERS[name][1]))
            x, anchor = (start - 4, "end") if ratio < 1 else (end + 4, "start")
            bars.append(text(x, bar_y + 9, f"{ratio:.{decimals(ratio, 2)}f}", anchor,
                             ' font-size="10"'))
        y += height

    for step in (10.0**power for power in range(first, last + 1)):
        colour, thick = ("#1f2328", 2) if step == 1 else ("#d0d7de", 1)
        axis.append(f'<line x1="{place(step):.1f}" x2="{place(step):.1f}" y1="{TOP}" y2="{y}" '
                    f'stroke="{colour}" stroke-width="{thick}"/>')
        axis += [text(place(step), label_y, f"{step:g}", "middle") for label_y in (TOP - 6, y + 15)]

    title = "Time per item as a multiple of Velkord's, on a logarithmic scale"
    heading = [text(16, 26, title, "start", ' font-size="15" font-weight="bold"'),
               text(width - 16, TOP - 6, "Velkord", "end", ' font-weight="bold"')]
    x = 16
    for name, (label, colour) in CONTENDERS.items():
        if any(name in times for _, times in rows):
            swatch = (x + 5, 38, 2, 14) if name == "velkord" else (x, 40, 12, 10)
            heading += [box(*swatch, colour), text(x + 18, 49, label)]
            x += 40 + 7 * len(label)
    body = "\n".join(bands + axis + bars + heading)
    return svg(width, y + 26, title, body)


def make_short_chart(rows):
    """The peers alone, each named at its bar, narrow enough to be read on a telephone."""
    width, decade, one = 400, 72, 98

    def place(ratio):
        return one + decade * math.log10(ratio)

    title = "How many times as long the peers take"
    shapes = [text(12, 24, title, "start", ' font-size="15" font-weight="bold"')]
    y = 40
    for case, times in rows:
        shapes += [text(12, y + 16, case.title, "start", ' font-size="13"'),
                   text(width - 12, y + 16, figure(times["velkord"], case.item), "end")]
        y += 22
        peers = [peer for peer in PEERS if peer in times]
        for peer in peers:
            ratio = times[peer] / times["velkord"]
            start, end = sorted((one, place(ratio)))
            name, colour = CONTENDERS[peer]
            shapes += [box(start, y + 2, max(end - start, 1), 13, colour),
                       text(max(end, one) + 5, y + 13, f"{name} {rounded(ratio, math.floor)}×")]
            y += 17
        shapes.append(f'<line x1="{one}" x2="{one}" y1="{y - 17 * len(peers)}" y2="{y}" '
                      'stroke="#1f2328" stroke-width="2"/>')
        y += 8
    shapes += [text(12, y + 14, "Right of the line Velkord is faster, left of it slower. The scale is"),
               text(12, y + 30, "logarithmic. The figure at the right is Velkord's own.")]
    return svg(width, y + 42, title, "\n".join(shapes))


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    times = read_times(Path(sys.argv[1]))
    cases = known_cases()
    for name in times:
        if name not in cases:
            sys.exit(f"{name}: unknown case")
    rows = [(case, times[name]) for name, case in cases.items() if "velkord" in times.get(name, {})]
    if not rows:
        sys.exit(f"{sys.argv[1]} holds no medians of Velkord")
    folder = Path(sys.argv[2])
    table = make_table(rows)
    (folder / "table.md").write_text(table, encoding="utf-8")
    (folder / "chart.svg").write_text(make_chart(rows), encoding="utf-8")
    short = [(cases[name], times[name]) for name in SHORT if len(times.get(name, {})) > 1]
    (folder / "chart_short.svg").write_text(make_short_chart(short), encoding="utf-8")
    print(table, end="")


main()
