// What independent programs answer about occasions, in the form in which it is compared with ours.
//
// A fact is "year-month-day occasion number", the ids being those of libraries/occasions. A time is { key, program,
// exact, shown, rounding, plus }: what it is of ("year-month-day moment", with the occasion or number where a day has
// several), the exact moment in milliseconds of UTC (null where the sun does not get so low), the moment as the program
// itself shows it (undefined when it does not), and how ours is made of the exact one: rounded to the minute "down",
// "up" or "nearest", then so many minutes more.
"use strict";

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

// number: the month's, undefined where only the moment is told.
const moladTime = (program, exact, number) => ({ key: "molad", program, exact, rounding: "nearest", plus: 0, number });

// A dawn of degrees is exact, one of minutes counted from the sunrise as it is shown. Where the sun does not get so low
// its lowest point, half a day before noon. isBarely: a tenth of a degree less would have had a dawn.
const dawnAt = (exact, customs, brighter, noon) => (!exact ?
  { exact: noon - DAY / 2, rounding: "down", plus: 0, isLowest: true, isBarely: Boolean(brighter) } :
  customs.dawn === 16.1 ? { exact, rounding: "down", plus: 0 } : { exact, rounding: "nearest", plus: -customs.dawn });
const nightAt = (exact) => (exact ? { exact, rounding: "up", plus: 0 } : null);

// From and until as they are when they are at night, else at its edge; night answers a date's dawn and nightfall
// (moments with how they are rounded). isNearEdge: the limit is less than two minutes
// from one of them.
function levanaTimes(program, place, from, until, night) {
  return [levanaTime("from", from, "up"), levanaTime("until", until, "down")];

  function levanaTime(what, limit, rounding) {
    const [dawn, nightfall] = night(place.dateAt(limit));
    if (!nightfall) return { key: `${place.dateAt(limit)} ${what} kiddush-levana`, program, exact: null };
    const isDay = limit > dawn.exact + dawn.plus * MINUTE && limit < nightfall.exact;
    const edge = what === "from" ? nightfall : dawn;
    const time = isDay ? edge : { exact: limit, rounding, plus: 0 };
    const isNearEdge = [dawn, nightfall].some((one) => Math.abs(limit - one.exact - one.plus * MINUTE) < 2 * MINUTE);
    const date = place.dateAt(time.exact + (rounding === "up" ? MINUTE : 0));
    return { ...time, key: `${date} ${what} kiddush-levana`, program, isNearEdge };
  }
}

module.exports = { ADAR_OF_COMMON_YEAR, DAY, MINUTE, isoOf, dateOf, plusDays, weekdayOf, simchatTorahIn, moladTime,
  dawnAt, nightAt, levanaTimes };
