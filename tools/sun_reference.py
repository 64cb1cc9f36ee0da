#!/usr/bin/env python3
"""Writes the moments that tests/core/sun_reference_test.cpp compares the sun's theory with.

    /usr/bin/python3 tools/sun_reference.py > tests/core/sun_reference_moments.h

PyEphem (Debian's python3-ephem) gives the sun's apparent geocentric right ascension and declination and the sidereal
time; the horizon and the choice of the day are written out here, independently of the library. No parallax.

PyEphem's own delta T runs ahead of the one that the library documents (225 s instead of 127 s in 2100). How the Earth
will turn is a guess in both, so the same guess is made in both: the sun is asked for at the Terrestrial Time that the
library's delta T makes of a moment, the sidereal time at the moment itself. tests/core/sun_position_test.cpp checks
delta T by itself.
"""

import datetime
import math
import random

import ephem

EARTH_RADIUS_METRES = 6356900.0
SUNRISE_DEPRESSION_DEGREES = 50 / 60
DEPRESSIONS_DEGREES = [8, 8.5, 16.1, 19.8]  # the columns of tests/core/sun_reference_test.cpp
NOON_OF_J2000 = float(ephem.Date("2000/1/1 12:00:00"))

# name, packed latitude and longitude, zone hours and minutes, elevations in metres
PLACES = [
    ("Jerusalem", 3147, 3514, 2, 0, [0, 754]),
    ("Safed", 3258, 3530, 2, 0, [0, 850]),
    ("Tel Aviv", 3205, 3447, 2, 0, [0]),
    ("New York", 4043, -7400, -5, 0, [0, 10]),
    ("Los Angeles", 3403, -11815, -8, 0, [0, 90]),
    ("Miami", 2546, -8012, -5, 0, [0]),
    ("Denver", 3944, -10459, -7, 0, [0, 1609]),
    ("St. John's", 4734, -5243, -3, -30, [0]),
    ("Mexico City", 1926, -9908, -6, 0, [0, 2240]),
    ("Bogota", 437, -7405, -5, 0, [0, 2640]),
    ("Quito", -13, -7831, -5, 0, [2850]),
    ("La Paz", -1630, -6809, -4, 0, [0, 3640]),
    ("Sao Paulo", -2333, -4638, -3, 0, [0, 760]),
    ("Buenos Aires", -3437, -5823, -3, 0, [0]),
    ("Ushuaia", -5448, -6818, -3, 0, [0]),
    ("Stanley", -5142, -5751, -3, 0, [0]),
    ("Azores", 3744, -2540, -1, 0, [0]),
    ("London", 5130, -8, 0, 0, [0, 35]),
    ("Madrid", 4025, -342, 1, 0, [0, 657]),
    ("Paris", 4851, 221, 1, 0, [0]),
    ("Aachen", 5047, 605, 1, 0, [0, 173]),
    ("Zurich", 4722, 833, 1, 0, [0, 408]),
    ("Rome", 4154, 1230, 1, 0, [0]),
    ("Vienna", 4813, 1622, 1, 0, [0]),
    ("Stockholm", 5920, 1804, 1, 0, [0]),
    ("Helsinki", 6010, 2456, 2, 0, [0]),
    ("Oulu", 6501, 2528, 2, 0, [0]),
    ("Trondheim", 6326, 1024, 1, 0, [0]),
    ("Reykjavik", 6409, -2157, 0, 0, [0]),
    ("Tromso", 6939, 1858, 1, 0, [0]),
    ("Fairbanks", 6450, -14743, -9, 0, [0, 136]),
    ("Anchorage", 6113, -14954, -9, 0, [0]),
    ("Whitehorse", 6043, -13503, -7, 0, [0, 670]),
    ("Edmonton", 5333, -11328, -7, 0, [0, 645]),
    ("Moscow", 5545, 3737, 3, 0, [0, 156]),
    ("Istanbul", 4101, 2858, 3, 0, [0]),
    ("Cairo", 3003, 3115, 2, 0, [0]),
    ("Casablanca", 3335, -737, 0, 0, [0]),
    ("Addis Ababa", 902, 3845, 3, 0, [0, 2355]),
    ("Nairobi", -117, 3649, 3, 0, [0, 1795]),
    ("Johannesburg", -2612, 2803, 2, 0, [0, 1753]),
    ("Cape Town", -3355, 1825, 2, 0, [0]),
    ("Tehran", 3542, 5125, 3, 30, [0, 1200]),
    ("Kabul", 3432, 6910, 4, 30, [0, 1790]),
    ("Mumbai", 1905, 7253, 5, 30, [0]),
    ("Kathmandu", 2743, 8519, 5, 45, [0, 1400]),
    ("Yangon", 1648, 9609, 6, 30, [0]),
    ("Urumqi", 4348, 8735, 8, 0, [0, 860]),
    ("Yakutsk", 6202, 12944, 9, 0, [0]),
    ("Anadyr", 6444, 17731, 12, 0, [0]),
    ("Singapore", 117, 10351, 8, 0, [0]),
    ("Tokyo", 3541, 13942, 9, 0, [0]),
    ("Perth", -3157, 11552, 8, 0, [0]),
    ("Eucla", -3141, 12853, 8, 45, [0]),
    ("Adelaide", -3456, 13836, 9, 30, [0]),
    ("Lord Howe Island", -3133, 15905, 10, 30, [0]),
    ("Hobart", -4253, 14720, 10, 0, [0]),
    ("Macquarie Island", -5430, 15857, 10, 0, [0]),
    ("Auckland", -3651, 17446, 12, 0, [0]),
    ("Suva", -1808, 17826, 12, 0, [0]),
    ("Chatham", -4357, -17633, 12, 45, [0]),
    ("Apia", -1350, -17145, 13, 0, [0]),
    ("Nukualofa", -2108, -17512, 13, 0, [0]),
    ("Kiritimati", 152, -15729, 14, 0, [0]),
    ("Pago Pago", -1417, -17042, -11, 0, [0]),
    ("Honolulu", 2118, -15751, -10, 0, [0, 3055]),
    ("Marquesas", -855, -14006, -9, -30, [0]),
    ("South Georgia", -5417, -3630, -2, 0, [0]),
    ("King George Island", -6212, -5858, -3, 0, [0]),
    ("Seymour Island", -6414, -5637, -3, 0, [0, 208]),
    ("Southern Ocean", -6500, 6000, 5, 0, [0]),
]
# Ends of centuries, a leap day, the solstices.
FIXED_DATES = [(1900, 1, 1), (1900, 2, 28), (2000, 2, 29), (2026, 6, 21), (2026, 12, 21), (2100, 12, 31)]
DRAWN_DATES_PER_PLACE = 50
FIRST_DATE, LAST_DATE = datetime.date(1900, 1, 1), datetime.date(2100, 12, 31)

# F. Espenak, "Polynomial Expressions for Delta T" (2014): up to the year, origin, coefficients of rising powers.
DELTA_T_SECONDS = [
    (1900, 1860, [7.62, 0.5737, -0.251754, 0.01680668, -0.0004473624, 1 / 233174]),
    (1920, 1900, [-2.79, 1.494119, -0.0598939, 0.0061966, -0.000197]),
    (1941, 1920, [21.20, 0.84493, -0.076100, 0.0020936]),
    (1961, 1950, [29.07, 0.407, -1 / 233, 1 / 2547]),
    (1986, 1975, [45.45, 1.067, -1 / 260, -1 / 718]),
    (2005, 2000, [63.86, 0.3345, -0.060374, 0.0017275, 0.000651814, 0.00002373599]),
    (2015, 2005, [64.69, 0.2930]),
    (3000, 2015, [67.62, 0.3645, 0.0039755]),
]


def delta_t_seconds(day):
    year = 2000 + (day - NOON_OF_J2000) / 365.2425
    _, origin, coefficients = next(row for row in DELTA_T_SECONDS if year < row[0])
    return sum(coefficient * (year - origin) ** power for power, coefficient in enumerate(coefficients))


def degrees(packed):
    whole, minutes = divmod(abs(packed), 100)
    return math.copysign(whole + minutes / 60, packed)


def sun_at(day, longitude):
    """Local hour angle (radians, -pi to pi) and declination at an ephem day number."""
    same_terrestrial_time = day + (delta_t_seconds(day) - ephem.delta_t(ephem.Date(day))) / 86400
    body = ephem.Sun()
    body.compute(ephem.Date(same_terrestrial_time))
    greenwich = ephem.Observer()
    greenwich.lon, greenwich.lat, greenwich.pressure, greenwich.date = "0", "0", 0, ephem.Date(day)
    hour_angle = float(greenwich.sidereal_time()) + longitude - float(body.g_ra)
    return math.remainder(hour_angle, 2 * math.pi), float(body.g_dec)


def altitude(day, latitude, longitude):
    hour_angle, declination = sun_at(day, longitude)
    sine = math.sin(latitude) * math.sin(declination)
    sine += math.cos(latitude) * math.cos(declination) * math.cos(hour_angle)
    return math.asin(max(-1.0, min(1.0, sine)))


def moment_of_hour_angle(guess, longitude, wanted):
    day = guess
    for _ in range(6):
        hour_angle, _ = sun_at(day, longitude)
        day -= math.remainder(hour_angle - wanted, 2 * math.pi) / (2 * math.pi)
    return day


def crossing(high, low, wanted, latitude, longitude):
    """The day between a high and a low point of the sun at which its altitude is wanted; None when it is not."""
    if not altitude(low, latitude, longitude) < wanted < altitude(high, latitude, longitude):
        return None
    while abs(high - low) > 1e-8:
        middle = (high + low) / 2
        if altitude(middle, latitude, longitude) > wanted:
            high = middle
        else:
            low = middle
    return (high + low) / 2


def dates(generator):
    yield from FIXED_DATES
    for _ in range(DRAWN_DATES_PER_PLACE):
        drawn = datetime.date.fromordinal(generator.randint(FIRST_DATE.toordinal(), LAST_DATE.toordinal()))
        yield drawn.year, drawn.month, drawn.day


def row(place_index, date, elevation):
    _, packed_latitude, packed_longitude, zone_hours, zone_minutes, _ = PLACES[place_index]
    latitude, longitude = math.radians(degrees(packed_latitude)), math.radians(degrees(packed_longitude))
    midnight = float(ephem.Date(date))
    noon = midnight + 0.5 - (zone_hours * 60 + zone_minutes) / 1440
    transit = moment_of_hour_angle(noon, longitude, 0)
    before = moment_of_hour_angle(transit - 0.5, longitude, math.pi)
    after = moment_of_hour_angle(transit + 0.5, longitude, math.pi)
    horizon = -math.radians(SUNRISE_DEPRESSION_DEGREES) - math.acos(
        EARTH_RADIUS_METRES / (EARTH_RADIUS_METRES + elevation)
    )
    moments = []
    for wanted in [horizon] + [-math.radians(depression) for depression in DEPRESSIONS_DEGREES]:
        for low in (before, after):
            found = crossing(transit, low, wanted, latitude, longitude)
            moments.append("kNever" if found is None else f"{(found - midnight) * 86400:.2f}")
    year, month, day = date
    return f"    {{{place_index}, {year}, {month}, {day}, {elevation}, {{{', '.join(moments)}}}}},"


def main():
    generator = random.Random(5786)
    print("// Made by tools/sun_reference.py; not edited by hand.")
    print("#pragma once")
    print("// clang-format off")
    print("inline constexpr ReferencePlace kReferencePlaces[] = {")
    for name, latitude, longitude, zone_hours, zone_minutes, _ in PLACES:
        print(f'    {{"{name}", {latitude}, {longitude}, {zone_hours}, {zone_minutes}}},')
    print("};")
    print("inline constexpr ReferenceDay kReferenceDays[] = {")
    for place_index, place in enumerate(PLACES):
        elevations = place[-1]
        for number, date in enumerate(dates(generator)):
            print(row(place_index, date, elevations[number % len(elevations)]))
    print("};")
    print("// clang-format on")


if __name__ == "__main__":
    main()
