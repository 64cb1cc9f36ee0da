#!/usr/bin/env node
// Writes libraries/sun/zone_map_table.cpp: which zones of the tz database hold where on land, as a quadtree of the world.
//
//   npm install --prefix FOLDER geo-tz@8.1.9
//   tools/make_zone_map.js FOLDER > libraries/sun/zone_map_table.cpp
//
// geo-tz brings the boundaries of the project timezone-boundary-builder, which are made from OpenStreetMap (Open Database
// License). It keeps them in a quadtree of its own; this one goes to cells of 1/46 degrees of longitude and 1/91 of
// latitude, of which each takes the zones at its middle, and lets the seas take whatever lies beside them. The same
// release gives the same bytes. zone_map_table.h has the layout.
"use strict";

const fs = require("fs");
const path = require("path");

const FOLDER = path.resolve(process.argv[2] ?? ".");
const load = (name) => require(path.join(FOLDER, "node_modules", name));
const geobuf = load("geobuf");
const Pbf = load("pbf");
const DATA = path.join(FOLDER, "node_modules", "geo-tz", "data", "timezones.geojson.");
const { timezones: ZONES, lookup } = JSON.parse(fs.readFileSync(`${DATA}index.json`));
const boundaries = fs.readFileSync(`${DATA}geo.dat`);
const { version } = JSON.parse(fs.readFileSync(path.join(FOLDER, "node_modules", "geo-tz", "package.json")));

const DEPTH = 14; // of the smallest cells
const ROOT_DEPTH = 6; // of those that the table finds at once
const SET_BITS = 9;
const RECENT = 4;
const SEA = ""; // no zone; others are indexes of zones, joined by commas

// The quarters of a cell in the order of geo-tz and of the table: north-east, north-west, south-west, south-east.
function quarters({ west, east, south, north }) {
  const x = (west + east) / 2;
  const y = (south + north) / 2;
  return [
    { west: x, east, south: y, north },
    { west, east: x, south: y, north },
    { west, east: x, south, north: y },
    { west: x, east, south, north: y },
  ];
}

const middle = ({ west, east, south, north }) => [(west + east) / 2, (south + north) / 2];

function isInRing(ring, [x, y]) {
  let isIn = false;
  for (let i = 0, before = ring.length - 1; i < ring.length; before = i++) {
    const [x1, y1] = ring[i];
    const [x2, y2] = ring[before];
    if (y1 > y !== y2 > y && x < ((x2 - x1) * (y - y1)) / (y2 - y1) + x1) isIn = !isIn;
  }
  return isIn;
}

const isIn = ({ rings }, point) => isInRing(rings[0], point) && !rings.slice(1).some((hole) => isInRing(hole, point));

function polygonsOf({ pos, len }) {
  const { features } = geobuf.decode(new Pbf(boundaries.subarray(pos, pos + len)));
  return features.flatMap(({ geometry: { type, coordinates }, properties: { tzid } }) =>
    (type === "Polygon" ? [coordinates] : coordinates).map((rings) => ({ zone: ZONES.indexOf(tzid), rings })));
}

function zonesAt(polygons, point) {
  const zones = new Set(polygons.filter((polygon) => isIn(polygon, point)).map(({ zone }) => zone));
  return [...zones].sort((a, b) => a - b).join();
}

// Whether a polygon's edge may run through the cell.
function crosses({ rings }, { west, east, south, north }) {
  return rings.some((ring) => ring.some(([x, y], i) => {
    const [x2, y2] = ring[i ? i - 1 : ring.length - 1];
    return Math.max(x, x2) >= west && Math.min(x, x2) <= east && Math.max(y, y2) >= south && Math.min(y, y2) <= north;
  }));
}

// Four quarters that say the same, the sea aside, are one cell.
function merged(children) {
  const said = [...new Set(children.filter((child) => child !== SEA))];
  if (said.length === 0) return SEA;
  return said.length === 1 && typeof said[0] === "string" ? said[0] : children;
}

function refined(polygons, cell, depth) {
  const here = polygons.filter((polygon) => crosses(polygon, cell) || isIn(polygon, middle(cell)));
  if (depth === DEPTH || !here.some((polygon) => crosses(polygon, cell))) return zonesAt(here, middle(cell));
  return merged(quarters(cell).map((quarter) => refined(here, quarter, depth + 1)));
}

function firstSaid(node) {
  return typeof node === "string" ? node : node.map(firstSaid).find((zones) => zones !== SEA) ?? SEA;
}

function built(node, cell, depth) {
  if (node === undefined) return SEA;
  if (Array.isArray(node)) return [...node].sort((a, b) => a - b).join();
  if (node.len) return refined(polygonsOf(node), cell, depth);
  const children = quarters(cell).map((quarter, i) => built(node["abcd"[i]], quarter, depth + 1));
  return depth < DEPTH ? merged(children) : firstSaid(children);
}

const sets = [];
function setIndex(zones) {
  if (!sets.includes(zones)) sets.push(zones);
  return sets.indexOf(zones);
}

// The bits of what hangs from a cell of the root depth.
function encoded(root) {
  const bits = [];
  const recent = [];
  const putLeaf = (zones) => {
    const said = zones === SEA && recent.length > 0 ? recent[0] : zones;
    const index = recent.indexOf(said);
    for (let i = 0; i < (index < 0 ? recent.length : index); ++i) bits.push(1);
    if (index < 0) {
      const set = setIndex(said);
      for (let bit = SET_BITS - 1; bit >= 0; --bit) bits.push((set >> bit) & 1);
    } else {
      bits.push(0);
      recent.splice(index, 1);
    }
    recent.unshift(said);
    recent.length = Math.min(recent.length, RECENT);
  };
  const put = (node, depth) => {
    const isSplit = typeof node !== "string";
    if (depth < DEPTH) bits.push(isSplit ? 1 : 0);
    if (isSplit) node.forEach((child) => put(child, depth + 1));
    else putLeaf(node);
  };
  put(root, ROOT_DEPTH);
  return bits;
}

// The nodes of the root depth, row by row from the south, each row from the west.
function rootsOf(tree) {
  const side = 2 ** ROOT_DEPTH;
  const nodeAt = (node, x, y, size) => {
    if (size === 1 || typeof node === "string") return node;
    const half = size / 2;
    const [east, north] = [x >= half, y >= half];
    const quarter = north ? (east ? 0 : 1) : east ? 3 : 2;
    return nodeAt(node[quarter], x % half, y % half, half);
  };
  return Array.from({ length: side * side }, (_, i) => nodeAt(tree, i % side, Math.floor(i / side), side));
}

function inLines(items, perLine) {
  const lines = [];
  for (let i = 0; i < items.length; i += perLine) lines.push(`    ${items.slice(i, i + perLine).join(", ")},`);
  return lines.join("\n");
}

const tree = built(lookup, { west: -180, east: 180, south: -90, north: 90 }, 0);
const bits = [];
const starts = [];
for (const root of rootsOf(tree)) {
  starts.push(bits.length);
  for (const bit of encoded(root)) bits.push(bit);
}
const words = [];
for (let i = 0; i < bits.length; i += 64) {
  const word = Array.from({ length: 64 }, (_, bit) => bits[i + bit] ?? 0).join("");
  words.push(`0x${BigInt(`0b${word}`).toString(16)}`);
}
if (sets.length > 2 ** SET_BITS) throw new Error("more sets of zones than the table has bits for");
const setTexts = sets.map((zones) => {
  const ids = zones === SEA ? [] : zones.split(",").map((zone) => `"${ZONES[zone]}"`);
  if (ids.length > 2) throw new Error(`three zones in one place: ${ids}`);
  return `{${[...ids, "nullptr", "nullptr"].slice(0, 2).join(", ")}}`;
});

console.log(`// Generated by tools/make_zone_map.js from geo-tz ${version}: timezone-boundary-builder, made from OpenStreetMap data,
// (c) OpenStreetMap contributors, Open Database License (ODbL) 1.0. Do not edit.
#include "libraries/sun/zone_map_table.h"

// clang-format off
namespace sun::zone_map_table {
namespace {

constexpr ZoneSet kSets[] = {
${inLines(setTexts, 3)}
};

constexpr uint32_t kStarts[] = {
${inLines(starts, 14)}
};

constexpr uint64_t kBits[] = {
${inLines(words, 6)}
};

}  // namespace

const std::span<const ZoneSet> sets = kSets;
const std::span<const uint32_t> starts = kStarts;
const std::span<const uint64_t> bits = kBits;

}  // namespace sun::zone_map_table
// clang-format on`);
