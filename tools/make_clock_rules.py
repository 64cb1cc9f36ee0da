#!/usr/bin/env python3
"""Writes libraries/sun/clock_rules_table.cpp from the compiled tz database of this machine.

    tools/make_clock_rules.py [ZONEINFO] > libraries/sun/clock_rules_table.cpp

ZONEINFO (default /usr/share/zoneinfo) holds the TZif files (RFC 9636) and tzdata.zi, which lists the zones and links and
names the release. The same release gives the same bytes.

Kept of every zone: the changes of its offset from 1970 on and the standing rule of its footer. Changes that the standing
rule repeats anyway are left out.
"""
import bisect
import re
import struct
import sys
from datetime import date, timedelta
from pathlib import Path

FOOTER = re.compile(
    r"(?P<std>[A-Za-z]+|<[^>]+>)(?P<stdoff>-?[\d:]+)"
    r"(?:(?P<dst>[A-Za-z]+|<[^>]+>)(?P<dstoff>-?[\d:]+)?,(?P<start>[^,]+),(?P<end>[^,]+))?")
RULE_DAY = re.compile(r"M(\d+)\.(\d)\.(\d)(?:/(-?[\d:]+))?")
RULE_YEARS = range(1969, 2111)


def names_and_release(zoneinfo):
    lines = (zoneinfo / "tzdata.zi").read_text(encoding="ascii").splitlines()
    release = lines[0].split()[-1]
    names = [f[1] for f in map(str.split, lines) if f and f[0] == "Z"]
    names += [f[2] for f in map(str.split, lines) if f and f[0] == "L"]
    return sorted(names), release


def seconds(text):
    sign = -1 if text.startswith("-") else 1
    parts = [int(p) for p in text.lstrip("-").split(":")] + [0, 0]
    return sign * (parts[0] * 3600 + parts[1] * 60 + parts[2])


def read_tzif(path):
    """The list of (moment, offset after it) and the footer, from the 64-bit block."""
    data = path.read_bytes()

    def header(at):
        if data[at:at + 4] != b"TZif" or data[at + 4:at + 5] < b"2":
            raise ValueError(f"{path}: not a TZif file of version 2 or later")
        return struct.unpack(">6l", data[at + 20:at + 44])

    isut, isstd, leap, times, types, chars = header(0)
    second = 44 + times * 5 + types * 6 + chars + leap * 8 + isstd + isut
    isut, isstd, leap, times, types, chars = header(second)
    at = second + 44
    moments = struct.unpack(f">{times}q", data[at:at + 8 * times])
    at += 8 * times
    indexes = data[at:at + times]
    at += times
    offsets = [struct.unpack(">l", data[at + 6 * i:at + 6 * i + 4])[0] for i in range(types)]
    footer = data[at + 6 * types + chars + 12 * leap + isstd + isut:].strip(b"\n").decode("ascii")
    return [(-2**63, offsets[0])] + [(m, offsets[i]) for m, i in zip(moments, indexes)], footer


def parse_rule_day(text):
    match = RULE_DAY.fullmatch(text)
    if not match:
        raise ValueError(f"standing rule {text!r}: only the form Mm.w.d is known to the walker")
    month, week, weekday, time = match.groups()
    return int(month), int(week), int(weekday), seconds(time or "2")


def parse_footer(footer):
    """(standard offset, summer offset, start, end); the offsets are equal and the days empty without summer time."""
    match = FOOTER.fullmatch(footer)
    if not match:
        raise ValueError(f"footer {footer!r} is not understood")
    standard = -seconds(match["stdoff"])
    if not match["dst"]:
        return standard, standard, (1, 1, 0, 0), (1, 1, 0, 0)
    summer = -seconds(match["dstoff"]) if match["dstoff"] else standard + 3600
    return standard, summer, parse_rule_day(match["start"]), parse_rule_day(match["end"])


def rule_moment(year, rule_day, offset):
    month, week, weekday, time = rule_day
    first = date(year, month, 1)
    day = first + timedelta((weekday - first.isoweekday()) % 7 + 7 * (week - 1))
    while day.month != month:
        day -= timedelta(7)
    return (day - date(1970, 1, 1)).days * 86400 + time - offset


def rule_changes(rule):
    standard, summer, start, end = rule
    if standard == summer:
        return []
    changes = [(rule_moment(y, start, standard), summer) for y in RULE_YEARS]
    changes += [(rule_moment(y, end, summer), standard) for y in RULE_YEARS]
    return sorted(changes)


def reduce_history(changes, rule):
    """(offset at the start of 1970, changes since), without changes of the name only and without the rule's own."""
    start = bisect.bisect_right(changes, 0, key=lambda c: c[0]) - 1
    initial = changes[start][1]
    kept, last = [], initial
    for moment, offset in changes[start + 1:]:
        if offset != last:
            kept.append((moment, offset))
            last = offset
    standing = rule_changes(rule)
    if not standing:
        if last != rule[0]:
            raise ValueError("the last change does not lead into the standing offset")
        return initial, kept
    at = bisect.bisect_left(standing, kept[-1]) if kept else 0
    dropped = 0
    while dropped < len(kept) and standing[at - dropped] == kept[-1 - dropped]:
        dropped += 1
    # The rule takes over at the last change kept, so that one has to be the rule's own or to hold until its next.
    before_first_dropped = kept[len(kept) - dropped - 1] if dropped < len(kept) else None
    rule_before = standing[at - dropped]
    if dropped and not (before_first_dropped and rule_before[0] <= before_first_dropped[0]
                        and rule_before[1] == before_first_dropped[1]):
        dropped -= 1
    elif not dropped:
        raise ValueError("the listed changes do not lead into the standing rule")
    return initial, kept[:len(kept) - dropped]


def write_rows(out, rows, per_line):
    for i in range(0, len(rows), per_line):
        out.write("    " + " ".join(f"{r}," for r in rows[i:i + per_line]) + "\n")


def main():
    zoneinfo = Path(sys.argv[1] if len(sys.argv) > 1 else "/usr/share/zoneinfo")
    names, release = names_and_release(zoneinfo)
    offsets, rules, histories, moments, offsets_after, zones = [], [], [], [], [], []
    seen = {}

    def index_of(items, item):
        if item not in items:
            items.append(item)
        return items.index(item)

    for name in names:
        changes, footer = read_tzif(zoneinfo / name)
        rule = parse_footer(footer)
        initial, kept = reduce_history(changes, rule)
        key = (initial, tuple(kept), rule)
        if key not in seen:
            seen[key] = len(histories)
            histories.append((len(moments), len(kept), index_of(offsets, initial), index_of(rules, rule)))
            moments += [m for m, _ in kept]
            offsets_after += [index_of(offsets, o) for _, o in kept]
        zones.append((name, seen[key]))
    if moments and max(moments) >= 2**32 or len(offsets) > 256 or len(rules) > 256 or len(moments) > 65535:
        raise ValueError("the table's integers are too narrow for this release")

    out = sys.stdout
    out.write(f"""// Generated by tools/make_clock_rules.py from the tz database, release {release} (public domain). Do not edit.
#include "libraries/sun/clock_rules_table.h"

// clang-format off
namespace sun::clock_rules_table {{
namespace {{

constexpr Zone kZones[] = {{
""")
    write_rows(out, [f'{{"{n}", {h}}}' for n, h in zones], 3)
    out.write("};\n\nconstexpr History kHistories[] = {\n")
    write_rows(out, ["{%d, %d, %d, %d}" % h for h in histories], 6)
    out.write("};\n\nconstexpr StandingRule kStandingRules[] = {\n")
    write_rows(out, ["{%d, %d, {%d, %d, %d, %d}, {%d, %d, %d, %d}}" % (r[0], r[1], *r[2], *r[3]) for r in rules], 1)
    out.write("};\n\nconstexpr int32_t kOffsetsSeconds[] = {\n")
    write_rows(out, [str(o) for o in offsets], 12)
    out.write("};\n\nconstexpr uint32_t kChangeMoments[] = {\n")
    write_rows(out, [str(m) for m in moments], 10)
    out.write("};\n\nconstexpr uint8_t kOffsetsAfter[] = {\n")
    write_rows(out, [str(o) for o in offsets_after], 28)
    out.write("""};

}  // namespace

constinit const std::span<const Zone> zones{kZones};
constinit const std::span<const History> histories{kHistories};
constinit const std::span<const StandingRule> standingRules{kStandingRules};
constinit const std::span<const int32_t> offsetsSeconds{kOffsetsSeconds};
constinit const std::span<const uint32_t> changeMoments{kChangeMoments};
constinit const std::span<const uint8_t> offsetsAfter{kOffsetsAfter};

}  // namespace sun::clock_rules_table
// clang-format on
""")


if __name__ == "__main__":
    main()
