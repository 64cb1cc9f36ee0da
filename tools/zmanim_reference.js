#!/usr/bin/env node
// Writes the moments that tests/core/zmanim_reference_test.cpp compares the catalogue of zmanim with.
//
//   npm install --prefix FOLDER kosher-zmanim@0.9.0
//   NODE_PATH=FOLDER/node_modules node tools/zmanim_reference.js > tests/core/zmanim_reference_moments.h
//
// kosher-zmanim reckons the sun by the formulas of NOAA. What it has a name for is asked for by name; the rest is put
// together from its moments by degrees, its offsets and its proportional hours. What it does differently is kept out: it
// is told to reckon with elevation throughout; no place lies east of +12 h, where dates are counted otherwise; and no
// date lies before March 2000, because its Julian day is a day late in the twentieth century.
"use strict";

const { ComplexZmanimCalendar, GeoLocation, JewishCalendar } = require("kosher-zmanim");

const SECONDS_NEVER = "kNever";

// name, packed latitude and longitude, zone hours and minutes, elevation in metres
const PLACES = [
  ["Jerusalem", 3147, 3514, 2, 0, 754],
  ["Tel Aviv", 3205, 3447, 2, 0, 0],
  ["New York", 4043, -7400, -5, 0, 0],
  ["Aachen", 5047, 605, 1, 0, 173],
  ["St. John's", 4734, -5243, -3, -30, 0],
  ["Stockholm", 5920, 1804, 1, 0, 0],
  ["Melbourne", -3749, 14458, 10, 0, 0],
  ["Auckland", -3651, 17446, 12, 0, 0],
  ["Buenos Aires", -3437, -5823, -3, 0, 0],
  ["Quito", -13, -7831, -5, 0, 2850],
];
// Solstices, equinoxes, a leap day, days between them, and two eves of Pesach (2024-04-22 and 2026-04-01).
const DATES = [
  "2001-11-05", "2004-02-29", "2016-08-14", "2024-03-20", "2024-04-22", "2024-06-21",
  "2024-09-22", "2024-12-21", "2026-01-31", "2026-04-01", "2026-05-17", "2049-10-09",
];

const degreesOf = (packed) => Math.trunc(packed / 100) + (packed % 100) / 60;

// Every zman of the catalogue by its id. It has no name for the middle of the night between sunset and sunrise, nor for
// the one twelve hours after fixed noon.
function zmanimOf(cal) {
  const rise = cal.getElevationAdjustedSunrise();
  const set = cal.getElevationAdjustedSunset();
  const before = (minutes) => cal.constructor.getTimeOffset(rise, -minutes * 60000);
  const after = (minutes) => cal.constructor.getTimeOffset(set, minutes * 60000);
  const dawn = (degrees) => cal.getSunriseOffsetByDegrees(90 + degrees);
  const night = (degrees) => cal.getSunsetOffsetByDegrees(90 + degrees);
  const hours = (start, end, count) => (start && end ? cal.getShaahZmanisBasedZman(start, end, count) : null);
  const bht = [cal.getSunriseBaalHatanya(), cal.getSunsetBaalHatanya()];
  const nextDay = new ComplexZmanimCalendar(cal.getGeoLocation());
  nextDay.setUseElevation(true);
  nextDay.setDate(cal.getDate().plus({ days: 1 }));
  const nextRise = nextDay.getElevationAdjustedSunrise();
  const ateret = [cal.getAlos72Zmanis(), cal.getTzaisAteretTorah()];
  const z = {
    "sunrise-baal-hatanya": bht[0], "sunrise": rise, "sunrise-sea-level": cal.getSeaLevelSunrise(),
    "dawn-120-min": cal.getAlos120(), "dawn-96-min": cal.getAlos96(), "dawn-90-min": cal.getAlos90(),
    "dawn-72-min": cal.getAlos72(), "dawn-60-min": cal.getAlos60(), "dawn-120-zmanis": cal.getAlos120Zmanis(),
    "dawn-96-zmanis": cal.getAlos96Zmanis(), "dawn-90-zmanis": cal.getAlos90Zmanis(),
    "dawn-72-zmanis": cal.getAlos72Zmanis(), "dawn-26": cal.getAlos26Degrees(), "dawn-19.8": cal.getAlos19Point8Degrees(),
    "dawn-19": cal.getAlos19Degrees(), "dawn-18": cal.getAlos18Degrees(), "dawn-16.9": cal.getAlosBaalHatanya(),
    "dawn-16.1": cal.getAlos16Point1Degrees(),
    "tallit-12.85": dawn(12.85), "tallit-11.5": cal.getMisheyakir11Point5Degrees(),
    "tallit-11": cal.getMisheyakir11Degrees(), "tallit-10.2": cal.getMisheyakir10Point2Degrees(),
    "tallit-9.5": cal.getMisheyakir9Point5Degrees(), "tallit-7.65": cal.getMisheyakir7Point65Degrees(),
    "shema-mga-120-min": cal.getSofZmanShmaMGA120Minutes(), "shema-mga-96-min": cal.getSofZmanShmaMGA96Minutes(),
    "shema-mga-120-zmanis": hours(cal.getAlos120Zmanis(), cal.getTzais120Zmanis(), 3),
    "shema-mga-96-zmanis": cal.getSofZmanShmaMGA96MinutesZmanis(), "shema-mga-90-min": cal.getSofZmanShmaMGA90Minutes(),
    "shema-mga-90-zmanis": cal.getSofZmanShmaMGA90MinutesZmanis(),
    "shema-mga-19.8": cal.getSofZmanShmaMGA19Point8Degrees(), "shema-mga-18": cal.getSofZmanShmaMGA18Degrees(),
    "shema-mga-16.1": cal.getSofZmanShmaMGA16Point1Degrees(), "shema-mga-72-min": cal.getSofZmanShmaMGA72Minutes(),
    "shema-mga-72-zmanis": cal.getSofZmanShmaMGA72MinutesZmanis(),
    "shema-16.1-to-sunset": cal.getSofZmanShmaAlos16Point1ToSunset(),
    "shema-16.1-to-7.083": cal.getSofZmanShmaAlos16Point1ToTzaisGeonim7Point083Degrees(),
    "shema-ateret-torah": cal.getSofZmanShmaAteretTorah(),
    "shema-18-fixed-noon": cal.getSofZmanShmaMGA18DegreesToFixedLocalChatzos(),
    "shema-16.1-fixed-noon": cal.getSofZmanShmaMGA16Point1DegreesToFixedLocalChatzos(),
    "shema-90-min-fixed-noon": cal.getSofZmanShmaMGA90MinutesToFixedLocalChatzos(),
    "shema-72-min-fixed-noon": cal.getSofZmanShmaMGA72MinutesToFixedLocalChatzos(),
    "shema-sunrise-fixed-noon": cal.getSofZmanShmaGRASunriseToFixedLocalChatzos(),
    "shema-gra": cal.getSofZmanShmaGRA(), "shema-3-clock-hours": cal.getSofZmanShma3HoursBeforeChatzos(),
    "shema-baal-hatanya": cal.getSofZmanShmaBaalHatanya(),
    "tefila-mga-120-min": cal.getSofZmanTfilaMGA120Minutes(), "tefila-mga-96-min": cal.getSofZmanTfilaMGA96Minutes(),
    "tefila-mga-96-zmanis": cal.getSofZmanTfilaMGA96MinutesZmanis(),
    "tefila-mga-90-min": cal.getSofZmanTfilaMGA90Minutes(),
    "tefila-mga-90-zmanis": cal.getSofZmanTfilaMGA90MinutesZmanis(),
    "tefila-mga-19.8": cal.getSofZmanTfilaMGA19Point8Degrees(), "tefila-mga-18": cal.getSofZmanTfilaMGA18Degrees(),
    "tefila-mga-16.1": cal.getSofZmanTfilaMGA16Point1Degrees(), "tefila-mga-72-min": cal.getSofZmanTfilaMGA72Minutes(),
    "tefila-mga-72-zmanis": cal.getSofZmanTfilaMGA72MinutesZmanis(),
    "tefila-ateret-torah": cal.getSofZmanTfilaAteretTorah(), "tefila-gra": cal.getSofZmanTfilaGRA(),
    "tefila-2-clock-hours": cal.getSofZmanTfila2HoursBeforeChatzos(),
    "tefila-sunrise-fixed-noon": cal.getSofZmanTfilaGRASunriseToFixedLocalChatzos(),
    "tefila-baal-hatanya": cal.getSofZmanTfilaBaalHatanya(),
    "chametz-eat-gra": cal.getSofZmanAchilasChametzGRA(),
    "chametz-eat-mga-72-min": cal.getSofZmanAchilasChametzMGA72Minutes(),
    "chametz-eat-mga-72-zmanis": cal.getSofZmanAchilasChametzMGA72MinutesZmanis(),
    "chametz-burn-mga-72-zmanis": cal.getSofZmanBiurChametzMGA72MinutesZmanis(),
    "chametz-eat-mga-16.1": cal.getSofZmanAchilasChametzMGA16Point1Degrees(),
    "chametz-eat-baal-hatanya": cal.getSofZmanAchilasChametzBaalHatanya(),
    "chametz-burn-gra": cal.getSofZmanBiurChametzGRA(),
    "chametz-burn-mga-72-min": cal.getSofZmanBiurChametzMGA72Minutes(),
    "chametz-burn-mga-16.1": cal.getSofZmanBiurChametzMGA16Point1Degrees(),
    "chametz-burn-baal-hatanya": cal.getSofZmanBiurChametzBaalHatanya(),
    "midday": cal.getSunTransit(), "midday-half": cal.getChatzosAsHalfDay(), "midday-fixed": cal.getFixedLocalChatzos(),
    "mincha-gedola-30-min": cal.getMinchaGedola30Minutes(), "mincha-gedola-gra": cal.getMinchaGedola(),
    "mincha-gedola-fixed-noon": cal.getMinchaGedolaGRAFixedLocalChatzos30Minutes(),
    "mincha-gedola-baal-hatanya-later": cal.getMinchaGedolaBaalHatanyaGreaterThan30(),
    "mincha-ketana-fixed-noon": cal.getMinchaKetanaGRAFixedLocalChatzosToSunset(),
    "mincha-gedola-later": cal.getMinchaGedolaGreaterThan30(),
    "mincha-gedola-baal-hatanya": cal.getMinchaGedolaBaalHatanya(),
    "mincha-gedola-mga-72-min": cal.getMinchaGedola72Minutes(),
    "mincha-gedola-mga-16.1": cal.getMinchaGedola16Point1Degrees(),
    "mincha-gedola-ateret-torah": cal.getMinchaGedolaAteretTorah(),
    "samuch-gra": cal.getSamuchLeMinchaKetanaGRA(), "samuch-mga-72-min": cal.getSamuchLeMinchaKetana72Minutes(),
    "samuch-mga-16.1": cal.getSamuchLeMinchaKetana16Point1Degrees(),
    "mincha-ketana-gra": cal.getMinchaKetana(), "mincha-ketana-baal-hatanya": cal.getMinchaKetanaBaalHatanya(),
    "mincha-ketana-ateret-torah": cal.getMinchaKetanaAteretTorah(),
    "mincha-ketana-mga-72-min": cal.getMinchaKetana72Minutes(),
    "mincha-ketana-mga-16.1": cal.getMinchaKetana16Point1Degrees(),
    "plag-fixed-noon": cal.getPlagHaminchaGRAFixedLocalChatzosToSunset(),
    "plag-16.1-to-sunset": cal.getPlagAlosToSunset(),
    "plag-16.1-to-7.083": cal.getPlagAlos16Point1ToTzaisGeonim7Point083Degrees(),
    "plag-ateret-torah": cal.getPlagHaminchaAteretTorah(), "plag-mga-72-zmanis": cal.getPlagHamincha72MinutesZmanis(),
    "plag-mga-90-zmanis": cal.getPlagHamincha90MinutesZmanis(),
    "plag-mga-96-zmanis": cal.getPlagHamincha96MinutesZmanis(),
    "plag-mga-120-zmanis": cal.getPlagHamincha120MinutesZmanis(), "plag-mga-26": cal.getPlagHamincha26Degrees(),
    "plag-gra": cal.getPlagHamincha(), "plag-baal-hatanya": cal.getPlagHaminchaBaalHatanya(),
    "plag-mga-60-min": cal.getPlagHamincha60Minutes(), "plag-mga-72-min": cal.getPlagHamincha72Minutes(),
    "plag-mga-90-min": cal.getPlagHamincha90Minutes(), "plag-mga-96-min": cal.getPlagHamincha96Minutes(),
    "plag-mga-16.1": cal.getPlagHamincha16Point1Degrees(), "plag-mga-18": cal.getPlagHamincha18Degrees(),
    "plag-mga-19.8": cal.getPlagHamincha19Point8Degrees(), "plag-mga-120-min": cal.getPlagHamincha120Minutes(),
    "sunset-sea-level": cal.getSeaLevelSunset(), "sunset": set, "sunset-baal-hatanya": bht[1],
    "twilight-yereim-18-min": cal.getBainHashmashosYereim18Minutes(),
    "twilight-yereim-16.875-min": cal.getBainHashmashosYereim16Point875Minutes(),
    "twilight-yereim-13.5-min": cal.getBainHashmashosYereim13Point5Minutes(),
    "twilight-13.5-min-before-7.083": cal.getBainHashmashosRT13Point5MinutesBefore7Point083Degrees(),
    "twilight-yereim-3.05": cal.getBainHashmashosYereim3Point05Degrees(),
    "twilight-yereim-2.8": cal.getBainHashmashosYereim2Point8Degrees(),
    "twilight-yereim-2.1": cal.getBainHashmashosYereim2Point1Degrees(),
    "twilight-two-stars": cal.getBainHashmashosRT2Stars(),
    "twilight-58.5-min": cal.getBainHashmashosRT58Point5Minutes(),
    "twilight-13.24": cal.getBainHashmashosRT13Point24Degrees(),
    "nightfall-3.65": cal.getTzaisGeonim3Point65Degrees(), "nightfall-3.676": cal.getTzaisGeonim3Point676Degrees(),
    "nightfall-4.37": cal.getTzaisGeonim4Point37Degrees(), "nightfall-4.61": cal.getTzaisGeonim4Point61Degrees(),
    "nightfall-5.88": cal.getTzaisGeonim5Point88Degrees(), "nightfall-26": cal.getTzais26Degrees(),
    "nightfall-3.7": cal.getTzaisGeonim3Point7Degrees(), "nightfall-3.8": cal.getTzaisGeonim3Point8Degrees(),
    "nightfall-4.42": night(4.42), "nightfall-4.66": night(4.66), "nightfall-4.8": cal.getTzaisGeonim4Point8Degrees(),
    "nightfall-5.95": cal.getTzaisGeonim5Point95Degrees(), "nightfall-6": cal.getTzaisBaalHatanya(),
    "nightfall-6.45": cal.getTzaisGeonim6Point45Degrees(), "nightfall-7.083": cal.getTzaisGeonim7Point083Degrees(),
    "nightfall-7.5": night(7.5), "nightfall-7.67": cal.getTzaisGeonim7Point67Degrees(),
    "nightfall-8.5": cal.getTzaisGeonim8Point5Degrees(), "nightfall-8.75": night(8.75),
    "nightfall-9.3": cal.getTzaisGeonim9Point3Degrees(), "nightfall-9.75": cal.getTzaisGeonim9Point75Degrees(),
    "nightfall-11": night(11), "nightfall-36-min": after(36), "nightfall-40-min": after(40),
    "nightfall-42-min": after(42), "nightfall-45-min": after(45), "nightfall-50-min": cal.getTzais50(),
    "nightfall-60-min": cal.getTzais60(), "nightfall-72-min": cal.getTzais72(), "nightfall-90-min": cal.getTzais90(),
    "nightfall-96-min": cal.getTzais96(), "nightfall-120-min": cal.getTzais120(),
    "nightfall-72-zmanis": cal.getTzais72Zmanis(), "nightfall-90-zmanis": cal.getTzais90Zmanis(),
    "nightfall-96-zmanis": cal.getTzais96Zmanis(), "nightfall-120-zmanis": cal.getTzais120Zmanis(),
    "nightfall-16.1": cal.getTzais16Point1Degrees(), "nightfall-18": cal.getTzais18Degrees(),
    "nightfall-19.8": cal.getTzais19Point8Degrees(), "midnight": cal.getSolarMidnight(),
    "midnight-half": hours(set, nextRise, 6), "midnight-fixed": cal.getFixedLocalChatzos().plus({ hours: 12 }),
  };
  for (const minutes of [40, 30, 22, 20, 18, 15]) z[`candles-${minutes}-min`] = after(-minutes);
  for (const minutes of [96, 90]) {
    if (Math.abs(z[`dawn-${minutes}-min`] - before(minutes)) > 1000) throw new Error("offsets differ");
  }
  if (Math.abs(z["shema-ateret-torah"] - hours(...ateret, 3)) > 1000) throw new Error("hours differ");
  // It answers the last time to eat chametz on every day; what it means is the eve of Pesach.
  const jewish = new JewishCalendar(cal.getDate());
  const isPesachEve = jewish.getJewishMonth() === JewishCalendar.NISSAN && jewish.getJewishDayOfMonth() === 14;
  for (const id of Object.keys(z)) if (id.startsWith("chametz") && !isPesachEve) z[id] = null;
  return z;
}

function calendarAt([name, latitude, longitude, zoneHours, zoneMinutes, elevation], date) {
  const offset = zoneHours * 60 + zoneMinutes;
  const sign = offset < 0 ? "-" : "+";
  const pad = (number) => String(Math.floor(number)).padStart(2, "0");
  const zone = `UTC${sign}${pad(Math.abs(offset) / 60)}:${pad(Math.abs(offset) % 60)}`;
  const cal = new ComplexZmanimCalendar(
    new GeoLocation(name, degreesOf(latitude), degreesOf(longitude), elevation, zone));
  cal.setUseElevation(true);
  cal.setDate(date);
  return cal;
}

const ids = Object.keys(zmanimOf(calendarAt(PLACES[0], DATES[0])));
const lines = ["// Made by tools/zmanim_reference.js with kosher-zmanim 0.9.0; not edited by hand.", "#pragma once",
  "// clang-format off"];
lines.push("inline constexpr const char* kReferenceIds[] = {");
for (const id of ids) lines.push(`    "${id}",`);
lines.push("};", "inline constexpr ReferencePlace kReferencePlaces[] = {");
for (const [name, ...numbers] of PLACES) lines.push(`    {"${name}", ${numbers.join(", ")}},`);
lines.push("};", "inline constexpr ReferenceDay kReferenceDays[] = {");
PLACES.forEach((place, index) => {
  for (const date of DATES) {
    const zmanim = zmanimOf(calendarAt(place, date));
    const midnight = Date.parse(`${date}T00:00:00Z`);
    const seconds = ids.map((id) => (zmanim[id] ? Math.round((zmanim[id].toMillis() - midnight) / 1000) : SECONDS_NEVER));
    const [year, month, day] = date.split("-").map(Number);
    lines.push(`    {${index}, ${year}, ${month}, ${day}, {${seconds.join(", ")}}},`);
  }
});
lines.push("};", "// clang-format on");
process.stdout.write(`${lines.join("\n")}\n`);
