// What independent programs answer about the occasions of a Jewish year: Hebcal (@hebcal/core) and the JavaScript form of
// KosherJava (kosher-zmanim). Both reckon the sun by the formulas of NOAA. What neither offers (tekufot, tal umatar) is
// reckoned here from the Julian calendar, whose year is the one of Shmuel.
//
// A fact is "year-month-day occasion number", the ids being those of libraries/occasions. A time is { key, program,
// exact, shown, rounding, plus }: what it is of ("year-month-day moment", with the occasion or number where a day has
// several), the exact moment in milliseconds of UTC, the moment as the program itself shows it (undefined when it does
// not), and how ours is made of the exact one: rounded to the minute "down", "up" or "nearest", then so many minutes more.
"use strict";

const path = require("path");
const { pathToFileURL } = require("url");

const ADAR_OF_COMMON_YEAR = 14;
const DAY = 86400000;
const MINUTE = 60000;

const two = (number) => String(number).padStart(2, "0");
const isoOf = (date) => `${date.getFullYear()}-${two(date.getMonth() + 1)}-${two(date.getDate())}`;
const dateOf = (iso) => new Date(...iso.split("-").map((part, index) => (index === 1 ? part - 1 : Number(part))));
const plusDays = (iso, days) => {
  const date = dateOf(iso);
  date.setDate(date.getDate() + days);
  return isoOf(date);
};
const weekdayOf = (iso) => dateOf(iso).getDay();

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

  constructor(library) {
    this.library = library;
    this.name = "Hebcal";
    this.offers = new Set([...Object.values(HEBCAL_DAYS).map(([id]) => id), "rosh-hashana", "chol-hamoed-sukkot",
      "chol-hamoed-pesach", "chanukah", "omer", "rosh-chodesh", "shabbat-mevarchim", "behab"]);
  }

  typeOf(year) {
    const { HDate } = this.library;
    return `${new HDate(1, 7, year).getDay()} ${HDate.daysInYear(year)}`;
  }

  // The civil dates of the year, first and last.
  rangeOf(year) {
    const { HDate } = this.library;
    return [isoOf(new HDate(1, 7, year).greg()), plusDays(isoOf(new HDate(1, 7, year + 1).greg()), -1)];
  }

  monthOf(date, ahead) {
    const next = date.getDate() === 30 || ahead ? date.add(8, "day") : date;
    const isCommonAdar = next.getMonth() === 12 && !next.isLeapYear();
    return isCommonAdar ? ADAR_OF_COMMON_YEAR : next.getMonth();
  }

  factOf(event, iso, count) {
    const description = event.getDesc();
    if (description.startsWith("Rosh Hashana 5") || description.startsWith("Rosh Hashana 6")) return [iso, "rosh-hashana", 1];
    if (HEBCAL_DAYS[description]) return [iso, ...HEBCAL_DAYS[description]];
    const chol = /^(Sukkot|Pesach) ([IV]+) \(CH''M\)$/.exec(description);
    if (chol) return [iso, `chol-hamoed-${chol[1].toLowerCase()}`, ROMAN[chol[2]]];
    const light = /^Chanukah: (\d) Candle/.exec(description);
    if (light) return [plusDays(iso, 1), "chanukah", Number(light[1])];  // told on the evening, kept on the day after
    if (description.startsWith("Omer ")) return [iso, "omer", Number(description.slice(5))];
    if (description.startsWith("Rosh Chodesh ")) return [iso, "rosh-chodesh", this.monthOf(event.getDate(), false)];
    if (description.startsWith("Shabbat Mevarchim")) return [iso, "shabbat-mevarchim", this.monthOf(event.getDate(), true)];
    if (description === "Ta'anit BeHaB") return [iso, "behab", (count.behab++ % 3) + 1];
    return null;
  }

  facts(year, isIsrael) {
    const events = this.library.HebrewCalendar.calendar({ year, isHebrewYear: true, il: isIsrael, omer: true,
      shabbatMevarchim: true, behab: true });
    const count = { behab: 0 };
    const facts = new Set();
    for (const event of events) {
      const fact = this.factOf(event, isoOf(event.getDate().greg()), count);
      if (fact) facts.add(fact.join(" "));
    }
    return facts;
  }

  locationOf(place, isIsrael) {
    return new this.library.Location(place.latitude, place.longitude, isIsrael, place.zone, place.name);
  }

  times(year, isIsrael, place, customs) {
    const { HebrewCalendar, Zmanim } = this.library;
    const location = this.locationOf(place, isIsrael);
    const events = HebrewCalendar.calendar({ year, isHebrewYear: true, il: isIsrael, location, candlelighting: true,
      candleLightingMins: place.candleMinutes, fastEndDeg: 7.083,
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
      if (description === "Fast begins" && linked.startsWith("Erev Tish")) add("fast-begins tisha-beav", zmanim.sunset(), "nearest");
      else if (description === "Fast begins" && customs.dawn === 16.1) {
        add(`fast-begins ${HEBCAL_DAYS[linked][0]}`, zmanim.alotHaShachar(), "down");
      }
      if (description === "Fast ends") {
        const isAv = linked.startsWith("Tish");
        add(`fast-ends ${HEBCAL_DAYS[linked][0]}`, zmanim.tzeit(isAv ? customs.nightfallOfAv : 7.083), "up", 0,
          isAv && customs.nightfallOfAv !== 6.45 ? null : event.eventTime);
      }
      if (description === "Finish eating chametz" && customs.chametz === "gra") add("eating-ends", zmanim.sofZmanTfilla(), "down");
      if (description === "Biur Chametz" && customs.chametz === "gra") add("burning-ends", zmanim.sofZmanBiurChametzGRA(), "down");
      const light = /^Chanukah: (\d) Candle/.exec(description);
      if (light && weekdayOf(iso) < 5 && customs.chanukah === "HalfTwilight") add(`lights ${light[1]}`, zmanim.beinHaShmashos(), "up");
      if (light && weekdayOf(iso) === 6) end(`lights ${light[1]}`);
    }
    return times.concat(this.moonTimes(year, place, location, customs));
  }

  // After the molad, at night.
  moonTimes(year, place, location, customs) {
    const { Molad, HDate, Zmanim } = this.library;
    const times = [];
    for (let month = 1; month <= HDate.monthsInYear(year); ++month) {
      const molad = new Molad(year, month);
      const from = customs.levanaDays === 7 ? molad.getTchilasZmanKidushLevana7Days() : molad.getTchilasZmanKidushLevana3Days();
      const until = customs.levanaHalf ? molad.getSofZmanKidushLevanaBetweenMoldos() : molad.getSofZmanKidushLevana15Days();
      const night = (iso) => {
        const zmanim = new Zmanim(location, dateOf(iso), false);
        return [customs.dawn === 16.1 ? zmanim.alotHaShachar().getTime() : zmanim.sunrise().getTime() - customs.dawn * MINUTE,
          zmanim.tzeit(7.083).getTime()];
      };
      times.push(...levanaTimes(this.name, place, from.epochMilliseconds, until.epochMilliseconds, night));
    }
    return times;
  }
}

// From and until as they are when they are at night, else at its edge; night answers a date's dawn and nightfall.
function levanaTimes(program, place, from, until, night) {
  const time = (what, exact, rounding) => ({ key: `${place.dateAt(exact)} ${what}`, program, exact, rounding, plus: 0 });
  const [fromDawn, fromNight] = night(place.dateAt(from));
  const [untilDawn, untilNight] = night(place.dateAt(until));
  return [time("from kiddush-levana", from > fromDawn && from < fromNight ? fromNight : from, "up"),
    time("until kiddush-levana", until > untilDawn && until < untilNight ? untilDawn : until, "down")];
}

class KosherJava {
  constructor(folder) {
    this.library = require(path.resolve(folder, "node_modules", "kosher-zmanim"));
    this.name = "KosherJava";
    this.offers = new Set(["rosh-hashana", "yom-kippur", "sukkot", "chol-hamoed-sukkot", "hoshana-rabba",
      "shemini-atzeret", "simchat-torah", "pesach", "chol-hamoed-pesach", "shavuot", "fast-of-gedaliah", "10-tevet",
      "fast-of-esther", "fast-of-firstborn", "17-tammuz", "tisha-beav", "chanukah", "purim", "shushan-purim",
      "purim-katan", "shushan-purim-katan", "tu-bishvat", "pesach-sheni", "lag-baomer", "tu-beav", "omer",
      "rosh-chodesh", "shabbat-mevarchim", "shabbat-shekalim", "shabbat-zachor", "shabbat-parah", "shabbat-hachodesh",
      "shabbat-hagadol", "shabbat-chazon", "shabbat-nachamu", "shabbat-shuva", "shabbat-shira", "yom-hashoah",
      "yom-hazikaron", "yom-haatzmaut", "yom-yerushalayim", "blessing-of-the-sun", "behab"]);
  }

  // Its index of a day, with what the number of ours is.
  static holidayOf(calendar, day) {
    const { constructor: c } = calendar;
    const chanukah = calendar.getDayOfChanukah();
    const names = { [c.YOM_KIPPUR]: "yom-kippur", [c.HOSHANA_RABBA]: "hoshana-rabba", [c.SHEMINI_ATZERES]: "shemini-atzeret",
      [c.SIMCHAS_TORAH]: "simchat-torah", [c.FAST_OF_GEDALYAH]: "fast-of-gedaliah", [c.TENTH_OF_TEVES]: "10-tevet",
      [c.FAST_OF_ESTHER]: "fast-of-esther", [c.SEVENTEEN_OF_TAMMUZ]: "17-tammuz", [c.TISHA_BEAV]: "tisha-beav",
      [c.PURIM]: "purim", [c.SHUSHAN_PURIM]: "shushan-purim", [c.PURIM_KATAN]: "purim-katan",
      [c.SHUSHAN_PURIM_KATAN]: "shushan-purim-katan", [c.TU_BESHVAT]: "tu-bishvat", [c.PESACH_SHENI]: "pesach-sheni",
      [c.LAG_BAOMER]: "lag-baomer", [c.TU_BEAV]: "tu-beav", [c.YOM_HASHOAH]: "yom-hashoah",
      [c.YOM_HAZIKARON]: "yom-hazikaron", [c.YOM_HAATZMAUT]: "yom-haatzmaut", [c.YOM_YERUSHALAYIM]: "yom-yerushalayim" };
    const numbered = { [c.ROSH_HASHANA]: ["rosh-hashana", day], [c.SUCCOS]: ["sukkot", day - 14],
      [c.CHOL_HAMOED_SUCCOS]: ["chol-hamoed-sukkot", day - 14], [c.PESACH]: ["pesach", day - 14],
      [c.CHOL_HAMOED_PESACH]: ["chol-hamoed-pesach", day - 14], [c.SHAVUOS]: ["shavuot", day - 5],
      [c.CHANUKAH]: ["chanukah", chanukah] };
    const index = calendar.getYomTovIndex();
    return numbered[index] ?? (names[index] ? [names[index], 0] : null);
  }

  factsOf(calendar) {
    const { Parsha } = this.library;
    const day = calendar.getJewishDayOfMonth();
    const facts = [];
    const holiday = KosherJava.holidayOf(calendar, day);
    if (holiday) facts.push(holiday);
    const shabbat = { [Parsha.SHKALIM]: "shekalim", [Parsha.ZACHOR]: "zachor", [Parsha.PARA]: "parah",
      [Parsha.HACHODESH]: "hachodesh", [Parsha.HAGADOL]: "hagadol", [Parsha.CHAZON]: "chazon",
      [Parsha.NACHAMU]: "nachamu", [Parsha.SHUVA]: "shuva", [Parsha.SHIRA]: "shira" }[calendar.getSpecialShabbos()];
    if (shabbat) facts.push([`shabbat-${shabbat}`, 0]);
    if (calendar.isTaanisBechoros()) facts.push(["fast-of-firstborn", 0]);
    if (calendar.getDayOfOmer() > 0) facts.push(["omer", calendar.getDayOfOmer()]);
    if (calendar.isBirkasHachamah()) facts.push(["blessing-of-the-sun", 0]);
    if (calendar.isRoshChodesh()) facts.push(["rosh-chodesh", this.monthAfter(calendar, 7)]);
    if (calendar.isShabbosMevorchim()) facts.push(["shabbat-mevarchim", this.monthAfter(calendar, 8)]);
    if (calendar.isBeHaB()) facts.push(["behab", calendar.getDayOfWeek() === 5 ? 2 : day < 14 ? 1 : 3]);
    return facts;
  }

  // The month that is so many days later, unless the day is its first.
  monthAfter(calendar, days) {
    const { JewishCalendar } = this.library;
    const iso = plusDays(isoOf(calendar.getDate().toJSDate()), calendar.getJewishDayOfMonth() === 1 ? 0 : days);
    const later = new JewishCalendar(dateOf(iso));
    const isCommonAdar = later.getJewishMonth() === 12 && !later.isJewishLeapYear();
    return isCommonAdar ? ADAR_OF_COMMON_YEAR : later.getJewishMonth();
  }

  facts(range, isIsrael) {
    const { JewishCalendar } = this.library;
    const facts = new Set();
    let behab = 0;
    for (let iso = range[0]; iso <= range[1]; iso = plusDays(iso, 1)) {
      const calendar = new JewishCalendar(dateOf(iso));
      calendar.setInIsrael(isIsrael);
      calendar.setUseModernHolidays(true);
      for (const [occasion, number] of this.factsOf(calendar)) {
        facts.add(`${iso} ${occasion} ${occasion === "behab" ? (behab++ % 3) + 1 : number}`);
      }
    }
    return facts;
  }

  zmanimAt(place, iso) {
    const { ComplexZmanimCalendar, GeoLocation } = this.library;
    place.kosherCalendar ??= new ComplexZmanimCalendar(new GeoLocation(place.name, place.latitude, place.longitude, 0, place.zone));
    place.kosherCalendar.setDate(iso);
    return place.kosherCalendar;
  }

  static dawnOf(zmanim, customs) {
    return customs.dawn === 16.1 ? zmanim.getAlos16Point1Degrees() : zmanim.getAlos72();
  }

  // Of the days that the facts name.
  times(facts, range, isIsrael, place, customs) {
    const times = [];
    for (const fact of facts) {
      const [iso, occasion, number] = fact.split(" ");
      const add = (date, what, zman, rounding, plus = 0) => times.push({ key: `${date} ${what}`, program: this.name,
        exact: zman.toMillis(), rounding, plus });
      const zmanim = (date) => this.zmanimAt(place, date);
      if (["fast-of-gedaliah", "10-tevet", "fast-of-esther", "17-tammuz"].includes(occasion)) {
        add(iso, `fast-begins ${occasion}`, KosherJava.dawnOf(zmanim(iso), customs), "down");
        add(iso, `fast-ends ${occasion}`, zmanim(iso).getTzaisGeonim7Point083Degrees(), "up");
      }
      if (occasion === "fast-of-firstborn") add(iso, `fast-begins ${occasion}`, KosherJava.dawnOf(zmanim(iso), customs), "down");
      if (occasion === "tisha-beav") {
        const eve = plusDays(iso, -1);
        add(eve, `fast-begins ${occasion}`, zmanim(eve).getSunset(), "nearest");
        add(iso, `fast-ends ${occasion}`, customs.nightfallOfAv === 6.45 ? zmanim(iso).getTzaisGeonim6Point45Degrees()
          : zmanim(iso).getTzaisGeonim7Point083Degrees(), "up");
      }
      const evening = plusDays(iso, -1);
      if (occasion === "chanukah" && weekdayOf(evening) < 5) {
        const night = zmanim(evening).getTzaisGeonim7Point083Degrees();
        add(evening, `lights ${number}`, customs.chanukah === "HalfTwilight" ? night.minus({ seconds: 810 }) : night, "up");
      }
      if (occasion === "pesach" && number === "1") times.push(...this.chametzTimes(plusDays(iso, -1), place, customs));
    }
    return times.concat(this.moonTimes(range, place, customs));
  }

  chametzTimes(eve, place, customs) {
    const zmanim = this.zmanimAt(place, eve);
    const isGra = customs.chametz === "gra";
    const eating = isGra ? zmanim.getSofZmanAchilasChametzGRA() : zmanim.getSofZmanAchilasChametzMGA72Minutes();
    const burning = () => (isGra ? zmanim.getSofZmanTfilaGRA() && zmanim.getSofZmanBiurChametzGRA() : zmanim.getSofZmanBiurChametzMGA72Minutes());
    const time = (date, what, zman) => ({ key: `${date} ${what}`, program: this.name, exact: zman.toMillis(), rounding: "down", plus: 0 });
    const times = [time(eve, "eating-ends", eating), time(eve, "burning-ends", burning())];
    if (weekdayOf(eve) === 6) {
      const friday = plusDays(eve, -1);
      this.zmanimAt(place, friday);
      times.push(time(friday, "burning-ends", burning()));
    }
    return times;
  }

  moonTimes(range, place, customs) {
    const { JewishCalendar } = this.library;
    const times = [];
    for (let iso = range[0]; iso <= range[1]; iso = plusDays(iso, 1)) {
      const calendar = new JewishCalendar(dateOf(iso));
      if (calendar.getJewishDayOfMonth() !== 1) continue;
      const from = customs.levanaDays === 7 ? calendar.getTchilasZmanKidushLevana7Days() : calendar.getTchilasZmanKidushLevana3Days();
      const until = customs.levanaHalf ? calendar.getSofZmanKidushLevanaBetweenMoldos() : calendar.getSofZmanKidushLevana15Days();
      const night = (date) => {
        const zmanim = this.zmanimAt(place, date);
        return [KosherJava.dawnOf(zmanim, customs).toMillis(), zmanim.getTzaisGeonim7Point083Degrees().toMillis()];
      };
      times.push(...levanaTimes(this.name, place, from.toMillis(), until.toMillis(), night));
    }
    return times;
  }
}

module.exports = { Hebcal, KosherJava, DAY, MINUTE, isoOf, dateOf, plusDays, weekdayOf };
