// What Hebcal (@hebcal/core) answers about occasions. It reckons the sun by the formulas of NOAA.
"use strict";

const path = require("path");
const { pathToFileURL } = require("url");
const { ADAR_OF_COMMON_YEAR, MINUTE, isoOf, dateOf, plusDays, weekdayOf, simchatTorahIn, moladTime, dawnAt, nightAt,
  levanaTimes } = require("./occasions_reference_facts.js");

const HEBCAL_DAYS = {
  "Rosh Hashana II": ["rosh-hashana", 2], "Yom Kippur": ["yom-kippur", 0],
  "Sukkot I": ["sukkot", 1], "Sukkot II": ["sukkot", 2], "Sukkot VII (Hoshana Raba)": ["hoshana-rabba", 0],
  "Shmini Atzeret": ["shemini-atzeret", 0], "Simchat Torah": ["simchat-torah", 0],
  "Pesach I": ["pesach", 1], "Pesach II": ["pesach", 2], "Pesach VII": ["pesach", 7], "Pesach VIII": ["pesach", 8],
  "Shavuot": ["shavuot", 1], "Shavuot I": ["shavuot", 1], "Shavuot II": ["shavuot", 2],
  "Tzom Gedaliah": ["fast-of-gedaliah", 0], "Asara B'Tevet": ["10-tevet", 0], "Ta'anit Esther": ["fast-of-esther", 0],
  "Ta'anit Bechorot": ["fast-of-firstborn", 0], "Tzom Tammuz": ["17-tammuz", 0], "Tish'a B'Av": ["tisha-beav", 0],
  "Tish'a B'Av (observed)": ["tisha-beav", 0], "Purim": ["purim", 0], "Shushan Purim": ["shushan-purim", 0],
  "Purim Meshulash": ["purim-meshulash", 0], "Purim Katan": ["purim-katan", 0],
  "Shushan Purim Katan": ["shushan-purim-katan", 0], "Tu BiShvat": ["tu-bishvat", 0],
  "Pesach Sheni": ["pesach-sheni", 0], "Lag BaOmer": ["lag-baomer", 0], "Tu B'Av": ["tu-beav", 0],
  "Shabbat Shekalim": ["shabbat-shekalim", 0], "Shabbat Zachor": ["shabbat-zachor", 0],
  "Shabbat Parah": ["shabbat-parah", 0], "Shabbat HaChodesh": ["shabbat-hachodesh", 0],
  "Shabbat HaGadol": ["shabbat-hagadol", 0], "Shabbat Chazon": ["shabbat-chazon", 0],
  "Shabbat Nachamu": ["shabbat-nachamu", 0], "Shabbat Shuva": ["shabbat-shuva", 0],
  "Shabbat Shirah": ["shabbat-shira", 0], "Yom HaShoah": ["yom-hashoah", 0], "Yom HaZikaron": ["yom-hazikaron", 0],
  "Yom HaAtzma'ut": ["yom-haatzmaut", 0], "Yom Yerushalayim": ["yom-yerushalayim", 0],
  "Birkat Hachamah": ["blessing-of-the-sun", 0], "Leil Selichot": ["selichot", 0],
};
const ROMAN = { II: 2, III: 3, IV: 4, V: 5, VI: 6 };

class Hebcal {
  static async open(folder) {
    const core = path.resolve(folder, "node_modules", "@hebcal", "core", "dist", "esm", "index.js");
    return new Hebcal(await import(pathToFileURL(core)));
  }

  constructor(core) {
    this.core = core;
    this.name = "Hebcal";
    this.offers = new Set([...Object.values(HEBCAL_DAYS).map(([id]) => id), "rosh-hashana", "chol-hamoed-sukkot",
      "chol-hamoed-pesach", "chanukah", "omer", "rosh-chodesh", "shabbat-mevarchim", "behab"]);
  }

  typeOf(year) {
    const { HDate } = this.core;
    return `${new HDate(1, 7, year).getDay()} ${HDate.daysInYear(year)}`;
  }

  // The civil dates of the year, first and last.
  rangeOf(year) {
    const { HDate } = this.core;
    return [isoOf(new HDate(1, 7, year).greg()), plusDays(isoOf(new HDate(1, 7, year + 1).greg()), -1)];
  }

  monthOf(date, ahead) {
    const next = date.getDate() === 30 || ahead ? date.add(8, "day") : date;
    const isCommonAdar = next.getMonth() === 12 && !next.isLeapYear();
    return isCommonAdar ? ADAR_OF_COMMON_YEAR : next.getMonth();
  }

  factOf(event, iso, count) {
    const description = event.getDesc();
    if (/^Rosh Hashana \d/.test(description)) return [iso, "rosh-hashana", 1];
    if (HEBCAL_DAYS[description]) return [iso, ...HEBCAL_DAYS[description]];
    const chol = /^(Sukkot|Pesach) ([IV]+) \(CH''M\)$/.exec(description);
    if (chol) return [iso, `chol-hamoed-${chol[1].toLowerCase()}`, ROMAN[chol[2]]];
    const light = /^Chanukah: (\d) Candle/.exec(description);
    if (light) return [plusDays(iso, 1), "chanukah", Number(light[1])];  // told on the evening, kept on the day after
    if (description.startsWith("Omer ")) return [iso, "omer", Number(description.slice(5))];
    if (description.startsWith("Rosh Chodesh ")) return [iso, "rosh-chodesh", this.monthOf(event.getDate(), false)];
    if (description.startsWith("Shabbat Mevarchim")) {
      return [iso, "shabbat-mevarchim", this.monthOf(event.getDate(), true)];
    }
    if (description === "Ta'anit BeHaB") return [iso, "behab", (count.behab++ % 3) + 1];
    return null;
  }

  facts(year, isIsrael) {
    const events = this.core.HebrewCalendar.calendar({ year, isHebrewYear: true, il: isIsrael, omer: true,
      shabbatMevarchim: true, behab: true });
    const count = { behab: 0 };
    const facts = new Set();
    for (const event of events) {
      const fact = this.factOf(event, isoOf(event.getDate().greg()), count);
      if (fact) facts.add(simchatTorahIn(fact, isIsrael).join(" "));
    }
    return facts;
  }

  locationOf(place, isIsrael) {
    return new this.core.Location(place.latitude, place.longitude, isIsrael, place.zone, place.name);
  }

  times(year, isIsrael, place, customs) {
    const { HebrewCalendar, Zmanim } = this.core;
    const location = this.locationOf(place, isIsrael);
    const events = HebrewCalendar.calendar({ year, isHebrewYear: true, il: isIsrael, location, candlelighting: true,
      omer: true, candleLightingMins: place.candleMinutes, fastEndDeg: 7.083,
      ...(customs.endDegrees ? { havdalahDeg: customs.endDegrees } : { havdalahMins: customs.endMinutes }) });
    const times = [];
    const sun = (date) => new Zmanim(location, date, false);
    for (const event of events) {
      const iso = isoOf(event.getDate().greg());
      const zmanim = sun(event.getDate());
      const add = (what, exact, rounding, plus = 0, shown = event.eventTime) => times.push({ key: `${iso} ${what}`,
        program: this.name, exact: exact.getTime(), shown: shown?.getTime(), rounding, plus });
      const end = (what) => (customs.endDegrees ? add(what, zmanim.tzeit(customs.endDegrees), "up")
        : add(what, zmanim.sunset(), "nearest", customs.endMinutes));
      const description = event.getDesc();
      const linked = event.linkedEvent?.getDesc() ?? "";
      if (description === "Havdalah") end("end");
      if (description === "Candle lighting") {
        if (event.eventTime < zmanim.sunset()) add("candles", zmanim.sunset(), "nearest", -place.candleMinutes);
        else end("candles");
      }
      if (description === "Fast begins" && linked.startsWith("Erev Tish")) {
        add("fast-begins tisha-beav", zmanim.sunset(), "nearest");
      } else if (description === "Fast begins" && customs.dawn === 16.1) {
        add(`fast-begins ${HEBCAL_DAYS[linked][0]}`, zmanim.alotHaShachar(), "down");
      }
      if (description === "Fast ends") {
        const isAv = linked.startsWith("Tish");
        add(`fast-ends ${HEBCAL_DAYS[linked][0]}`, zmanim.tzeit(isAv ? customs.nightfallOfAv : 7.083), "up", 0,
          isAv && customs.nightfallOfAv !== 6.45 ? null : event.eventTime);
      }
      const isGra = customs.chametz === "gra";
      if (description === "Finish eating chametz" && isGra) add("eating-ends", zmanim.sofZmanTfilla(), "down");
      if (description === "Biur Chametz" && isGra) add("burning-ends", zmanim.sofZmanBiurChametzGRA(), "down");
      if (event.omer) {
        const eve = sun(event.getDate().prev());
        times.push({ key: `${plusDays(iso, -1)} count ${event.omer}`, program: this.name,
          exact: eve.tzeit(7.083).getTime(), rounding: "up", plus: 0 });
      }
      const light = /^Chanukah: (\d) Candle/.exec(description);
      if (!light) continue;
      const what = `lights ${light[1]}`;
      const dusk = customs.chanukah === "HalfTwilight" ? zmanim.beinHaShmashos() : zmanim.tzeit(7.083);
      const isDusk = weekdayOf(iso) < 5 || (weekdayOf(iso) === 6 && dusk > this.endOf(zmanim, customs));
      if (weekdayOf(iso) === 5) add(what, zmanim.sunset(), "nearest", -place.candleMinutes);
      else if (isDusk) add(what, dusk, "up", 0, customs.chanukah === "HalfTwilight" ? event.eventTime : null);
      else end(what);
    }
    return times.concat(this.moonTimes(year, place, location, customs));
  }

  endOf(zmanim, customs) {
    return customs.endDegrees ? zmanim.tzeit(customs.endDegrees)
      : new Date(zmanim.sunset().getTime() + customs.endMinutes * MINUTE);
  }

  // After the molad, at night.
  moonTimes(year, place, location, customs) {
    const { Molad, HDate, Zmanim } = this.core;
    const times = [];
    const months = Array.from({ length: HDate.monthsInYear(year) }, (_, index) => [year, index + 1]);
    for (const [moladYear, month] of [...months, [year + 1, 7]]) {
      const molad = new Molad(moladYear, month);
      const isCommonAdar = month === 12 && !HDate.isLeapYear(moladYear);
      times.push(moladTime(this.name, molad.getInstant().epochMilliseconds,
        isCommonAdar ? ADAR_OF_COMMON_YEAR : month));
      const from = customs.levanaDays === 7 ? molad.getTchilasZmanKidushLevana7Days()
        : molad.getTchilasZmanKidushLevana3Days();
      const until = customs.levanaHalf ? molad.getSofZmanKidushLevanaBetweenMoldos()
        : molad.getSofZmanKidushLevana15Days();
      const night = (iso) => {
        const zmanim = new Zmanim(location, dateOf(iso), false);
        const dawn = customs.dawn === 16.1 ? zmanim.alotHaShachar() : zmanim.sunrise();
        return [dawnAt(dawn.getTime(), customs, zmanim.timeAtAngle(16, true).getTime(),
          zmanim.chatzot().getTime()),
          nightAt(zmanim.tzeit(7.083).getTime())];
      };
      times.push(...levanaTimes(this.name, place, from.epochMilliseconds, until.epochMilliseconds, night));
    }
    return times;
  }
}

module.exports = { Hebcal };
