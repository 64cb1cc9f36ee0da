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

// In Israel Shemini Atzeret, which is Simchat Torah there, has the number 1.
const simchatTorahIn = ([date, occasion, number], isIsrael) =>
  [date, occasion, isIsrael && occasion === "shemini-atzeret" ? 1 : number];

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
      if (fact) facts.add(simchatTorahIn(fact, isIsrael).join(" "));
    }
    return facts;
  }

  locationOf(place, isIsrael) {
    return new this.library.Location(place.latitude, place.longitude, isIsrael, place.zone, place.name);
  }

  times(year, isIsrael, place, customs) {
    const { HebrewCalendar, Zmanim } = this.library;
    const location = this.locationOf(place, isIsrael);
    const events = HebrewCalendar.calendar({ year, isHebrewYear: true, il: isIsrael, location, candlelighting: true, omer: true,
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
      if (event.omer) {
        const eve = sun(event.getDate().prev());
        times.push({ key: `${plusDays(iso, -1)} count ${event.omer}`, program: this.name, exact: eve.tzeit(7.083).getTime(),
          rounding: "up", plus: 0 });
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
    const { Molad, HDate, Zmanim } = this.library;
    const times = [];
    const months = Array.from({ length: HDate.monthsInYear(year) }, (_, index) => [year, index + 1]);
    for (const [moladYear, month] of [...months, [year + 1, 7]]) {
      const molad = new Molad(moladYear, month);
      times.push({ key: "molad", program: this.name, exact: molad.getInstant().epochMilliseconds, rounding: "nearest", plus: 0 });
      const from = customs.levanaDays === 7 ? molad.getTchilasZmanKidushLevana7Days() : molad.getTchilasZmanKidushLevana3Days();
      const until = customs.levanaHalf ? molad.getSofZmanKidushLevanaBetweenMoldos() : molad.getSofZmanKidushLevana15Days();
      const night = (iso) => {
        const zmanim = new Zmanim(location, dateOf(iso), false);
        const dawn = customs.dawn === 16.1 ? zmanim.alotHaShachar() : zmanim.sunrise();
        return [dawnAt(dawn.getTime(), customs, zmanim.timeAtAngle(16, true).getTime()), nightAt(zmanim.tzeit(7.083).getTime())];
      };
      times.push(...levanaTimes(this.name, place, from.epochMilliseconds, until.epochMilliseconds, night));
    }
    return times;
  }
}

// A dawn of degrees is exact, one of minutes counted from the sunrise as it is shown. Null where it does not occur.
const dawnAt = (exact, customs, brighter) => (!exact ? { isBarely: Boolean(brighter) } : customs.dawn === 16.1 ?
  { exact, rounding: "down", plus: 0 } : { exact, rounding: "nearest", plus: -customs.dawn });
const nightAt = (exact) => (exact ? { exact, rounding: "up", plus: 0 } : null);

// From and until as they are when they are at night, else at its edge; night answers a date's dawn and nightfall
// (moments with how they are rounded). isNearEdge: the limit is less than two minutes
// from one of them. isBarely: a tenth of a degree less would have had a dawn.
function levanaTimes(program, place, from, until, night) {
  return [levanaTime("from", from, "up"), levanaTime("until", until, "down")];

  function levanaTime(what, limit, rounding) {
    const [dawn, nightfall] = night(place.dateAt(limit));
    if (!dawn?.exact || !nightfall?.exact) {
      return { key: `${place.dateAt(limit)} ${what} kiddush-levana`, program, exact: null, isBarely: dawn?.isBarely };
    }
    const isDay = limit > dawn.exact + dawn.plus * MINUTE && limit < nightfall.exact;
    const edge = what === "from" ? nightfall : dawn;
    const time = isDay ? edge : { exact: limit, rounding, plus: 0 };
    const isNearEdge = [dawn, nightfall].some((one) => Math.abs(limit - one.exact - one.plus * MINUTE) < 2 * MINUTE);
    return { ...time, key: `${place.dateAt(time.exact + (rounding === "up" ? MINUTE : 0))} ${what} kiddush-levana`, program, isNearEdge };
  }
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
        const fact = [iso, occasion, occasion === "behab" ? (behab++ % 3) + 1 : number];
        facts.add(simchatTorahIn(fact, isIsrael).join(" "));
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

  // Of the days that the facts name.
  times(facts, range, isIsrael, place, customs) {
    const times = [];
    for (const fact of facts) {
      const [iso, occasion, number] = fact.split(" ");
      const add = (date, what, zman, rounding, plus = 0) => times.push({ key: `${date} ${what}`, program: this.name,
        exact: zman?.toMillis() ?? null, rounding, plus });
      const zmanim = (date) => this.zmanimAt(place, date);
      if (["fast-of-gedaliah", "10-tevet", "fast-of-esther", "17-tammuz", "fast-of-firstborn"].includes(occasion)) {
        if (customs.dawn === 16.1) add(iso, `fast-begins ${occasion}`, zmanim(iso).getAlos16Point1Degrees(), "down");
        else add(iso, `fast-begins ${occasion}`, zmanim(iso).getSunrise(), "nearest", -customs.dawn);
        const isUntilSeder = occasion === "fast-of-firstborn" && facts.has(`${plusDays(iso, 1)} pesach 1`);
        if (!isUntilSeder) add(iso, `fast-ends ${occasion}`, zmanim(iso).getTzaisGeonim7Point083Degrees(), "up");
      }
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
      if (occasion === "omer") add(evening, `count ${number}`, zmanim(evening).getTzaisGeonim7Point083Degrees(), "up");
      if (occasion === "pesach" && number === "1") times.push(...this.chametzTimes(plusDays(iso, -1), place, customs));
    }
    return times.concat(this.moonTimes(range, place, customs));
  }

  chametzTimes(eve, place, customs) {
    const zmanim = this.zmanimAt(place, eve);
    const isGra = customs.chametz === "gra";
    const eating = isGra ? zmanim.getSofZmanAchilasChametzGRA() : zmanim.getSofZmanAchilasChametzMGA72Minutes();
    const burning = () => (isGra ? zmanim.getSofZmanBiurChametzGRA() : zmanim.getSofZmanBiurChametzMGA72Minutes());
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
    for (let iso = range[0]; iso <= plusDays(range[1], 1); iso = plusDays(iso, 1)) {
      const calendar = new JewishCalendar(dateOf(iso));
      if (calendar.getJewishDayOfMonth() !== 1) continue;
      times.push({ key: "molad", program: this.name, exact: calendar.getMoladAsDate().toMillis(), rounding: "nearest", plus: 0 });
      const from = customs.levanaDays === 7 ? calendar.getTchilasZmanKidushLevana7Days() : calendar.getTchilasZmanKidushLevana3Days();
      const until = customs.levanaHalf ? calendar.getSofZmanKidushLevanaBetweenMoldos() : calendar.getSofZmanKidushLevana15Days();
      const night = (date) => {
        const zmanim = this.zmanimAt(place, date);
        const dawn = customs.dawn === 16.1 ? zmanim.getAlos16Point1Degrees() : zmanim.getSunrise();
        return [dawnAt(dawn?.toMillis(), customs, zmanim.getSunriseOffsetByDegrees(106)), nightAt(zmanim.getTzaisGeonim7Point083Degrees()?.toMillis())];
      };
      times.push(...levanaTimes(this.name, place, from.toMillis(), until.toMillis(), night));
    }
    return times;
  }
}

// The seasons of Shmuel: in the Julian calendar the one of Tishri is always on 24 September, at 3:00 of Jerusalem's mean
// time in leap years and six hours later from year to year; the others are 91 days 7.5 hours apart.
class JulianCalendar {
  constructor() {
    this.name = "the Julian calendar";
    this.offers = new Set(["tal-umatar"]);
  }

  // Milliseconds of Jerusalem's mean time as if it were UTC. From March 1900 to February 2100 the calendars are 13 days
  // apart.
  static tekufa(civilYear, number) {
    const tishri = Date.UTC(civilYear, 8, 24 + 13, 3 + 6 * (civilYear % 4));
    return tishri + number * (91 * DAY + 7.5 * 60 * MINUTE);
  }

  // The evening before the 60th day, the tekufa's own day, which begins at 18:00, counted first; 7 Cheshvan in Israel.
  facts(year, isIsrael, hebcal) {
    const { HDate } = hebcal.library;
    if (isIsrael) return new Set([`${plusDays(isoOf(new HDate(7, 8, year).greg()), -1)} tal-umatar 0`]);
    const dayOfTekufa = new Date(JulianCalendar.tekufa(year - 3761, 0) + 6 * 60 * MINUTE).toISOString().slice(0, 10);
    return new Set([`${plusDays(dayOfTekufa, 58)} tal-umatar 0`]);
  }

  times(year) {
    const meanTime = 35.235 * 4 * MINUTE;
    return [0, 1, 2, 3].map((number) => ({ key: "tekufa", program: this.name,
      exact: JulianCalendar.tekufa(year - 3761, number) - meanTime, rounding: "nearest", plus: 0 }));
  }
}

module.exports = { Hebcal, KosherJava, JulianCalendar, DAY, MINUTE, isoOf, dateOf, plusDays, weekdayOf };
