#!/usr/bin/env node
// Compares the numbers of the King James Version and of the Synodal Bible, verse by verse, with the files "eng.vrs" and
// "rsc.vrs" of the Paratext program, which map them to the Biblia Hebraica; the package below brings the files along.
//
//   npm install --prefix FOLDER @bibletags/bibletags-versification@2.1.0
//   cmake --preset native && cmake --build --preset native --target print_answers
//   node tools/compare_verse_numbers.js FOLDER build/native/tools/print_answers
//
// Lists every difference and counts the verses. The files map whole verses alone: what is half a verse in one of the
// Bibles (Numbers 25:19, Isaiah 63:19) is listed. Exit code 0 whatever differs.
"use strict";

const fs = require("fs");
const path = require("path");
const { execFileSync } = require("child_process");

// In the order of Book in passage.h.
const BOOKS = ("GEN EXO LEV NUM DEU JOS JDG 1SA 2SA 1KI 2KI ISA JER EZK HOS JOL AMO OBA JON MIC HAB ZEC MAL SNG RUT LAM" +
  " ECC EST").split(" ");
const FILES = [
  { name: "King James Version", language: 1, file: "eng.vrs.txt" },
  { name: "Synodal Bible", language: 17, file: "rsc.vrs.txt" },
];
// Where the tables have four of the Ten Commandments in one verse.
const DECALOGUES = { "EXO 20": 13, "DEU 5": 17 };
const MERGED = 3;

const [folder, printAnswers] = process.argv.slice(2);
const files = path.join(folder, "node_modules/@bibletags/bibletags-versification/imports/uw-api-files");
const linesOf = (file) => fs.readFileSync(path.join(files, file), "utf8").split(/\r?\n/);

// "GEN 1" to the number of its verses.
function lengthsOf(file) {
  const lengths = new Map();
  for (const line of linesOf(file)) {
    if (!/^[0-9A-Z]{3} \d+:\d+(?: |$)(?!=)/.test(line) || line.includes("=")) continue;
    const book = line.slice(0, 3);
    for (const [, chapter, verses] of line.matchAll(/(\d+):(\d+)/g)) lengths.set(`${book} ${chapter}`, Number(verses));
  }
  return lengths;
}

// "GEN 32:1" of the Biblia Hebraica to the verses that it is in the file's Bible.
function mappingOf(file) {
  const mapping = new Map();
  for (const line of linesOf(file)) {
    const match = /^(\w{3}) (\d+):(\d+)(?:-(\d+))? = (\w{3}) (\d+):(\d+)(?:-(\d+))?$/.exec(line.trim());
    if (!match) continue;
    const [, , ownChapter, ownFirst, , book, chapter, first, last = first] = match;
    for (let verse = Number(first); verse <= Number(last); ++verse) {
      const key = `${book} ${chapter}:${verse}`;
      const own = `${ownChapter}:${Number(ownFirst) + verse - Number(first)}`;
      mapping.set(key, [...(mapping.get(key) ?? []), own]);
    }
  }
  return mapping;
}

// The Biblia Hebraica's verses that one of the tables is.
function scholarly(chapterKey, verse) {
  const commandment = DECALOGUES[chapterKey] ?? Infinity;
  if (verse < commandment) return [verse, verse];
  return verse === commandment ? [verse, verse + MERGED] : [verse + MERGED, verse + MERGED];
}

const lengths = lengthsOf("org.vrs.txt");
for (const { name, language, file } of FILES) {
  const mapping = mappingOf(file);
  const asked = [];
  BOOKS.forEach((book, index) => {
    for (let chapter = 1; lengths.has(`${book} ${chapter}`); ++chapter) {
      const key = `${book} ${chapter}`;
      const verses = lengths.get(key) - (key in DECALOGUES ? MERGED : 0);
      for (let verse = 1; verse <= verses; ++verse) asked.push({ index, book, chapter, verse });
    }
  });
  const input = asked.map(({ index, chapter, verse }) => `${language} ${index} ${chapter} ${verse}\n`).join("");
  const answers = execFileSync(printAnswers, ["verse-numbers"], { input, maxBuffer: 1 << 26, encoding: "utf8" });
  let differences = 0;
  answers.trim().split("\n").forEach((answer, i) => {
    const { book, chapter, verse } = asked[i];
    const [first, last] = scholarly(`${book} ${chapter}`, verse);
    const begin = (mapping.get(`${book} ${chapter}:${first}`) ?? [`${chapter}:${first}`])[0];
    const end = (mapping.get(`${book} ${chapter}:${last}`) ?? [`${chapter}:${last}`]).at(-1);
    if (answer === `${begin} ${end}`) return;
    ++differences;
    console.log(`${name}: ${book} ${chapter}:${verse} is ${answer} here, ${begin} ${end} there`);
  });
  console.log(`${name}: ${asked.length} verses, ${differences} differences`);
}
