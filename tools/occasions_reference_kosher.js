// What the JavaScript form of KosherJava (kosher-zmanim) answers about occasions, and what the Julian calendar does.
// The program reckons the sun by the formulas of NOAA.
"use strict";

const path = require("path");
const { ADAR_OF_COMMON_YEAR, DAY, MINUTE, isoOf, dateOf, plusDays, weekdayOf, simchatTorahIn, moladTime, dawnAt,
  nightAt, levanaTimes } = require("./occasions_reference_facts.js");

class KosherJava {
  constructor(folder) {
    this.kosher = require(path.resolve(folder, "node_modules", "kosher-zmanim"));
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
    const names = { [c.YOM_KIPPUR]: "yom-kippur", [c.HOSHANA_RABBA]: "hoshana-rabba",
      [c.SHEMINI_ATZERES]: "shemini-atzeret", [c.SIMCHAS_TORAH]: "simchat-torah",
      [c.FAST_OF_GEDALYAH]: "fast-of-gedaliah", [c.TENTH_OF_TEVES]: "10-tevet",
      [c.FAST_OF_ESTHER]: "fast-of-esther", [c.SEVENTEEN_OF_TAMMUZ]: "17-tammuz", [c.TISHA_BEAV]: "tisha-beav",
      [c.PURIM]: "purim", [c.SHUSHAN_PURIM]: "shushan-purim", [c.PURIM_KATAN]: "purim-katan",
      [c.SHUSHAN_PURIM_KATAN]: "shushan-purim-katan", [c.TU_BESHVAT]: "tu-bishvat", [c.PESACH_SHENI]: "pesach-sheni",
      [c.LAG_BAOMER]: "lag-baomer", [c.TU_BEAV]: "tu-beav", [c.YOM_HASHOAH]: "yom-hashoah",
      [c.YOM_HAZIKARON]: "yom-hazikaron", [c.YOM_HAATZMAUT]: "yom-haatzmaut",
      [c.YOM_YERUSHALAYIM]: "yom-yerushalayim" };
    const numbered = { [c.ROSH_HASHANA]: ["rosh-hashana", day], [c.SUCCOS]: ["sukkot", day - 14],
      [c.CHOL_HAMOED_SUCCOS]: ["chol-hamoed-sukkot", day - 14], [c.PESACH]: ["pesach", day - 14],
      [c.CHOL_HAMOED_PESACH]: ["chol-hamoed-pesach", day - 14], [c.SHAVUOS]: ["shavuot", day - 5],
      [c.CHANUKAH]: ["chanukah", chanukah] };
    const index = calendar.getYomTovIndex();
    return numbered[index] ?? (names[index] ? [names[index], 0] : null);
  }

  factsOf(calendar) {
    const { Parsha } = this.kosher;
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
    const { JewishCalendar } = this.kosher;
    const iso = plusDays(isoOf(calendar.getDate().toJSDate()), calendar.getJewishDayOfMonth() === 1 ? 0 : days);
    const later = new JewishCalendar(dateOf(iso));
    const isCommonAdar = later.getJewishMonth() === 12 && !later.isJewishLeapYear();
    return isCommonAdar ? ADAR_OF_COMMON_YEAR : later.getJewishMonth();
  }

  facts(range, isIsrael) {
    const { JewishCalendar } = this.kosher;
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
    const { ComplexZmanimCalendar, GeoLocation } = this.kosher;
    place.kosherCalendar ??= new ComplexZmanimCalendar(
      new GeoLocation(place.name, place.latitude, place.longitude, 0, place.zone));
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
        const lights = customs.chanukah === "HalfTwilight" ? night.minus({ seconds: 810 }) : night;
        add(evening, `lights ${number}`, lights, "up");
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
    const time = (date, what, zman) => ({ key: `${date} ${what}`, program: this.name, exact: zman.toMillis(),
      rounding: "down", plus: 0 });
    const times = [time(eve, "eating-ends", eating), time(eve, "burning-ends", burning())];
    if (weekdayOf(eve) === 6) {
      const friday = plusDays(eve, -1);
      this.zmanimAt(place, friday);
      times.push(time(friday, "burning-ends", burning()));
    }
    return times;
  }

  moonTimes(range, place, customs) {
    const { JewishCalendar } = this.kosher;
    const times = [];
    for (let iso = range[0]; iso <= plusDays(range[1], 1); iso = plusDays(iso, 1)) {
      const calendar = new JewishCalendar(dateOf(iso));
      if (calendar.getJewishDayOfMonth() !== 1) continue;
      times.push(moladTime(this.name, calendar.getMoladAsDate().toMillis()));
      const from = customs.levanaDays === 7 ? calendar.getTchilasZmanKidushLevana7Days()
        : calendar.getTchilasZmanKidushLevana3Days();
      const until = customs.levanaHalf ? calendar.getSofZmanKidushLevanaBetweenMoldos()
        : calendar.getSofZmanKidushLevana15Days();
      const night = (date) => {
        const zmanim = this.zmanimAt(place, date);
        const dawn = customs.dawn === 16.1 ? zmanim.getAlos16Point1Degrees() : zmanim.getSunrise();
        return [dawnAt(dawn?.toMillis(), customs, zmanim.getSunriseOffsetByDegrees(106),
          zmanim.getSunTransit().toMillis()),
          nightAt(zmanim.getTzaisGeonim7Point083Degrees()?.toMillis())];
      };
      times.push(...levanaTimes(this.name, place, from.toMillis(), until.toMillis(), night));
    }
    return times;
  }
}

// What neither program offers. The seasons of Shmuel: in the Julian calendar, whose year is his, the one of Tishri is
// always on 24 September, at 3:00 of Jerusalem's mean time in leap years and six hours later from year to year; the
// others are 91 days 7.5 hours apart.
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
    const { HDate } = hebcal.core;
    if (isIsrael) return new Set([`${plusDays(isoOf(new HDate(7, 8, year).greg()), -1)} tal-umatar 0`]);
    const dayOfTekufa = new Date(JulianCalendar.tekufa(year - 3761, 0) + 6 * 60 * MINUTE).toISOString().slice(0, 10);
    return new Set([`${plusDays(dayOfTekufa, 58)} tal-umatar 0`]);
  }

  times(year) {
    const meanTime = 35.235 * 4 * MINUTE;
    return [7, 10, 1, 4].map((month, index) => ({ key: "tekufa", program: this.name,
      exact: JulianCalendar.tekufa(year - 3761, index) - meanTime, rounding: "nearest", plus: 0, number: month }));
  }
}

module.exports = { KosherJava, JulianCalendar };
