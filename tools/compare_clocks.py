#!/usr/bin/env python3
"""Compares the clock rules with CPython's zoneinfo, in every zone and link of the tz database that both read.

    cmake --preset native && cmake --build --preset native --target print_answers
    /usr/bin/python3 tools/compare_clocks.py [TZDATA] | less

TZDATA (default /usr/share/zoneinfo) holds the TZif files; take the release that libraries/sun/clock_rules_table.cpp
names, others have other rules. Asked for are, from 1970 on, the second before and the second of every change of the
years to 2099, and a moment of every 25th day to the year 3000. Lists every difference; exit code 1 then.
"""

import datetime
import subprocess
import sys
import zoneinfo
from pathlib import Path

ANSWERS = Path(__file__).resolve().parent.parent / "build/native/tools/print_answers"
DAY = 86400
LAST_CHANGE = int(datetime.datetime(2100, 1, 1, tzinfo=datetime.timezone.utc).timestamp())
LAST_SAMPLE = int(datetime.datetime(3000, 12, 31, tzinfo=datetime.timezone.utc).timestamp())
SAMPLE_DAYS = 25
EPOCH = datetime.datetime(1970, 1, 1, tzinfo=datetime.timezone.utc)


def offset(zone, moment):
    return int((EPOCH + datetime.timedelta(seconds=moment)).astimezone(zone).utcoffset().total_seconds())


def changes(zone):
    """The first seconds of new offsets: found between two days of unlike offsets by halving."""
    before = offset(zone, 0)
    for day in range(DAY, LAST_CHANGE, DAY):
        after = offset(zone, day)
        if after != before:
            low, high = day - DAY, day
            while high - low > 1:
                middle = (low + high) // 2
                low, high = (middle, high) if offset(zone, middle) == before else (low, middle)
            yield high
        before = after


def moments(zone):
    for change in changes(zone):
        yield change - 1
        yield change
    yield from range(0, LAST_SAMPLE, SAMPLE_DAYS * DAY)


def main():
    folder = sys.argv[1] if len(sys.argv) > 1 else "/usr/share/zoneinfo"
    zoneinfo.reset_tzpath([folder])
    with open(Path(folder) / "tzdata.zi", encoding="ascii") as lines:
        fields = [line.split() for line in lines]
    release = fields[0][2]
    names = sorted({row[1] for row in fields if row[0] == "Z"} | {row[2] for row in fields if row[0] == "L"})
    questions = []
    for name in names:
        zone = zoneinfo.ZoneInfo(name)
        questions += [(name, moment, offset(zone, moment)) for moment in moments(zone)]
    asked = "".join(f"{name} {moment}\n" for name, moment, _ in questions)
    answers = subprocess.run([ANSWERS, "clocks"], input=asked, capture_output=True, text=True, check=True).stdout.split()
    assert len(answers) == len(questions), "an answer to each question"
    differences = 0
    for (name, moment, theirs), ours in zip(questions, answers):
        if ours != str(theirs):
            differences += 1
            print(f"{name} {EPOCH + datetime.timedelta(seconds=moment)}: {ours} here, {theirs} by zoneinfo")
    print(f"tz {release}, {len(names)} zones: {len(questions)} moments, {differences} differ")
    sys.exit(1 if differences or not questions else 0)


if __name__ == "__main__":
    main()
