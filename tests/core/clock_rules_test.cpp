#include "libraries/sun/clock_rules.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

namespace {

using sun::UtcOffsetSeconds;

constexpr int64_t kDay = 86400;

// From CPython's zoneinfo, tz release 2026f: the offset in the second before a change and at it.
struct Change {
  const char* zoneId;
  int64_t moment;
  int32_t before;
  int32_t after;
};

// clang-format off
constexpr Change kChanges[] = {
    {"Africa/Cairo", 10364400, 7200, 10800}, {"Africa/Cairo", 307584000, 10800, 7200},
    {"Africa/Cairo", 623203200, 10800, 7200}, {"Africa/Cairo", 938725200, 10800, 7200},
    {"Africa/Cairo", 1240524000, 7200, 10800}, {"Africa/Cairo", 1840485600, 7200, 10800},
    {"Africa/Cairo", 2124136800, 7200, 10800}, {"Africa/Cairo", 2140462800, 10800, 7200},
    {"Africa/Cairo", 2534796000, 7200, 10800}, {"Africa/Cairo", 2550517200, 10800, 7200},
    {"Africa/Cairo", 4112719200, 7200, 10800}, {"Africa/Cairo", 4128440400, 10800, 7200},
    {"Africa/Cairo", 16735500000, 7200, 10800}, {"Africa/Cairo", 16751221200, 10800, 7200},
    {"Africa/Cairo", 32482072800, 7200, 10800}, {"Africa/Cairo", 32498398800, 10800, 7200},
    {"Africa/Casablanca", 141264000, 0, 3600}, {"Africa/Casablanca", 1212278400, 0, 3600},
    {"Africa/Casablanca", 1345428000, 0, 3600}, {"Africa/Casablanca", 1434247200, 3600, 0},
    {"Africa/Casablanca", 1509242400, 3600, 0}, {"Africa/Casablanca", 1648346400, 3600, 0},
    {"Africa/Casablanca", 1774144800, 0, 3600}, {"Africa/Casablanca", 1789866000, 3600, 0},
    {"Africa/Monrovia", 63593070, -2670, 0}, {"America/Argentina/Buenos_Aires", 128142000, -10800, -7200},
    {"America/Argentina/Buenos_Aires", 596948400, -10800, -7200}, {"America/Argentina/Buenos_Aires", 636516000, -7200, -10800},
    {"America/Argentina/Buenos_Aires", 687927600, -10800, -7200}, {"America/Argentina/Buenos_Aires", 719377200, -10800, -7200},
    {"America/Argentina/Buenos_Aires", 1205632800, -7200, -10800}, {"America/Argentina/Buenos_Aires", 1224385200, -10800, -7200},
    {"America/Argentina/Buenos_Aires", 1237082400, -7200, -10800}, {"America/Asuncion", 86760000, -14400, -10800},
    {"America/Asuncion", 402292800, -14400, -10800}, {"America/Asuncion", 670474800, -10800, -14400},
    {"America/Asuncion", 938923200, -14400, -10800}, {"America/Asuncion", 1205031600, -10800, -14400},
    {"America/Asuncion", 1475380800, -14400, -10800}, {"America/Asuncion", 1711249200, -10800, -14400},
    {"America/Asuncion", 1728187200, -14400, -10800}, {"America/Caracas", 1197183600, -14400, -16200},
    {"America/Caracas", 1462086000, -16200, -14400}, {"America/Chicago", 9964800, -21600, -18000},
    {"America/Chicago", 357120000, -21600, -18000}, {"America/Chicago", 719996400, -18000, -21600},
    {"America/Chicago", 1081065600, -21600, -18000}, {"America/Chicago", 1425801600, -21600, -18000},
    {"America/Chicago", 1793516400, -18000, -21600}, {"America/Chicago", 2120112000, -21600, -18000},
    {"America/Chicago", 2140671600, -18000, -21600}, {"America/Chicago", 2530771200, -21600, -18000},
    {"America/Chicago", 2551330800, -18000, -21600}, {"America/Chicago", 4108694400, -21600, -18000},
    {"America/Chicago", 4129254000, -18000, -21600}, {"America/Chicago", 16731475200, -21600, -18000},
    {"America/Chicago", 16752034800, -18000, -21600}, {"America/Chicago", 32478048000, -21600, -18000},
    {"America/Chicago", 32498607600, -18000, -21600}, {"America/Edmonton", 73472400, -25200, -21600},
    {"America/Edmonton", 357123600, -25200, -21600}, {"America/Edmonton", 638960400, -25200, -21600},
    {"America/Edmonton", 923216400, -25200, -21600}, {"America/Edmonton", 1205053200, -25200, -21600},
    {"America/Edmonton", 1489309200, -25200, -21600}, {"America/Edmonton", 1762070400, -21600, -25200},
    {"America/Edmonton", 1772960400, -25200, -21600}, {"America/Havana", 9954000, -18000, -14400},
    {"America/Havana", 340171200, -14400, -18000}, {"America/Havana", 687330000, -14400, -18000},
    {"America/Havana", 1035694800, -14400, -18000}, {"America/Havana", 1425790800, -18000, -14400},
    {"America/Havana", 1772946000, -18000, -14400}, {"America/Havana", 2120101200, -18000, -14400},
    {"America/Havana", 2140664400, -14400, -18000}, {"America/Havana", 2530760400, -18000, -14400},
    {"America/Havana", 2551323600, -14400, -18000}, {"America/Havana", 4108683600, -18000, -14400},
    {"America/Havana", 4129246800, -14400, -18000}, {"America/Havana", 16731464400, -18000, -14400},
    {"America/Havana", 16752027600, -14400, -18000}, {"America/Havana", 32478037200, -18000, -14400},
    {"America/Havana", 32498600400, -14400, -18000}, {"America/Los_Angeles", 9972000, -28800, -25200},
    {"America/Los_Angeles", 357127200, -28800, -25200}, {"America/Los_Angeles", 720003600, -25200, -28800},
    {"America/Los_Angeles", 1081072800, -28800, -25200}, {"America/Los_Angeles", 1425808800, -28800, -25200},
    {"America/Los_Angeles", 1793523600, -25200, -28800}, {"America/Los_Angeles", 2120119200, -28800, -25200},
    {"America/Los_Angeles", 2140678800, -25200, -28800}, {"America/Los_Angeles", 2530778400, -28800, -25200},
    {"America/Los_Angeles", 2551338000, -25200, -28800}, {"America/Los_Angeles", 4108701600, -28800, -25200},
    {"America/Los_Angeles", 4129261200, -25200, -28800}, {"America/Los_Angeles", 16731482400, -28800, -25200},
    {"America/Los_Angeles", 16752042000, -25200, -28800}, {"America/Los_Angeles", 32478055200, -28800, -25200},
    {"America/Los_Angeles", 32498614800, -25200, -28800}, {"America/New_York", 9961200, -18000, -14400},
    {"America/New_York", 357116400, -18000, -14400}, {"America/New_York", 719992800, -14400, -18000},
    {"America/New_York", 1081062000, -18000, -14400}, {"America/New_York", 1425798000, -18000, -14400},
    {"America/New_York", 1793512800, -14400, -18000}, {"America/New_York", 2120108400, -18000, -14400},
    {"America/New_York", 2140668000, -14400, -18000}, {"America/New_York", 2530767600, -18000, -14400},
    {"America/New_York", 2551327200, -14400, -18000}, {"America/New_York", 4108690800, -18000, -14400},
    {"America/New_York", 4129250400, -14400, -18000}, {"America/New_York", 16731471600, -18000, -14400},
    {"America/New_York", 16752031200, -14400, -18000}, {"America/New_York", 32478044400, -18000, -14400},
    {"America/New_York", 32498604000, -14400, -18000}, {"America/Nuuk", 323845200, -10800, -7200},
    {"America/Nuuk", 622602000, -7200, -10800}, {"America/Nuuk", 922582800, -10800, -7200},
    {"America/Nuuk", 1224982800, -7200, -10800}, {"America/Nuuk", 1521939600, -10800, -7200},
    {"America/Nuuk", 1837645200, -7200, -3600}, {"America/Nuuk", 2121901200, -7200, -3600},
    {"America/Nuuk", 2140045200, -3600, -7200}, {"America/Nuuk", 2531955600, -7200, -3600},
    {"America/Nuuk", 2550704400, -3600, -7200}, {"America/Nuuk", 4109878800, -7200, -3600},
    {"America/Nuuk", 4128627600, -3600, -7200}, {"America/Nuuk", 16732659600, -7200, -3600},
    {"America/Nuuk", 16751408400, -3600, -7200}, {"America/Nuuk", 32479837200, -7200, -3600},
    {"America/Nuuk", 32497981200, -3600, -7200}, {"America/Santiago", 7527600, -10800, -14400},
    {"America/Santiago", 353473200, -10800, -14400}, {"America/Santiago", 700628400, -10800, -14400},
    {"America/Santiago", 1065931200, -14400, -10800}, {"America/Santiago", 1410062400, -14400, -10800},
    {"America/Santiago", 1788667200, -14400, -10800}, {"America/Santiago", 2122513200, -10800, -14400},
    {"America/Santiago", 2135822400, -14400, -10800}, {"America/Santiago", 2532567600, -10800, -14400},
    {"America/Santiago", 2545876800, -14400, -10800}, {"America/Santiago", 4110490800, -10800, -14400},
    {"America/Santiago", 4123800000, -14400, -10800}, {"America/Santiago", 16733271600, -10800, -14400},
    {"America/Santiago", 16746580800, -14400, -10800}, {"America/Santiago", 32480449200, -10800, -14400},
    {"America/Santiago", 32493758400, -14400, -10800}, {"America/Sao_Paulo", 499748400, -10800, -7200},
    {"America/Sao_Paulo", 666756000, -7200, -10800}, {"America/Sao_Paulo", 844570800, -10800, -7200},
    {"America/Sao_Paulo", 1036292400, -10800, -7200}, {"America/Sao_Paulo", 1203213600, -7200, -10800},
    {"America/Sao_Paulo", 1382238000, -10800, -7200}, {"America/Sao_Paulo", 1541300400, -10800, -7200},
    {"America/Sao_Paulo", 1550368800, -7200, -10800}, {"America/St_Johns", 9955800, -12600, -9000},
    {"America/St_Johns", 357111000, -12600, -9000}, {"America/St_Johns", 719980260, -9000, -12600},
    {"America/St_Johns", 1081049460, -12600, -9000}, {"America/St_Johns", 1425792600, -12600, -9000},
    {"America/St_Johns", 1793507400, -9000, -12600}, {"America/St_Johns", 2120103000, -12600, -9000},
    {"America/St_Johns", 2140662600, -9000, -12600}, {"America/St_Johns", 2530762200, -12600, -9000},
    {"America/St_Johns", 2551321800, -9000, -12600}, {"America/St_Johns", 4108685400, -12600, -9000},
    {"America/St_Johns", 4129245000, -9000, -12600}, {"America/St_Johns", 16731466200, -12600, -9000},
    {"America/St_Johns", 16752025800, -9000, -12600}, {"America/St_Johns", 32478039000, -12600, -9000},
    {"America/St_Johns", 32498598600, -9000, -12600}, {"America/Vancouver", 9972000, -28800, -25200},
    {"America/Vancouver", 294228000, -28800, -25200}, {"America/Vancouver", 594205200, -25200, -28800},
    {"America/Vancouver", 891770400, -28800, -25200}, {"America/Vancouver", 1194166800, -25200, -28800},
    {"America/Vancouver", 1489312800, -28800, -25200}, {"America/Vancouver", 1762074000, -25200, -28800},
    {"America/Vancouver", 1772964000, -28800, -25200}, {"Asia/Beirut", 78012000, 7200, 10800},
    {"Asia/Beirut", 546818400, 7200, 10800}, {"Asia/Beirut", 859672800, 7200, 10800},
    {"Asia/Beirut", 1193518800, 10800, 7200}, {"Asia/Beirut", 1509224400, 10800, 7200},
    {"Asia/Beirut", 1824930000, 10800, 7200}, {"Asia/Beirut", 2121890400, 7200, 10800},
    {"Asia/Beirut", 2140030800, 10800, 7200}, {"Asia/Beirut", 2531944800, 7200, 10800},
    {"Asia/Beirut", 2550690000, 10800, 7200}, {"Asia/Beirut", 4109868000, 7200, 10800},
    {"Asia/Beirut", 4128613200, 10800, 7200}, {"Asia/Beirut", 16732648800, 7200, 10800},
    {"Asia/Beirut", 16751394000, 10800, 7200}, {"Asia/Beirut", 32479826400, 7200, 10800},
    {"Asia/Beirut", 32497966800, 10800, 7200}, {"Asia/Gaza", 142380000, 7200, 10800},
    {"Asia/Gaza", 651618000, 10800, 7200}, {"Asia/Gaza", 956268000, 7200, 10800},
    {"Asia/Gaza", 1252015200, 10800, 7200}, {"Asia/Gaza", 1553810400, 7200, 10800},
    {"Asia/Gaza", 1856300400, 10800, 7200}, {"Asia/Gaza", 2121811200, 7200, 10800},
    {"Asia/Gaza", 2138742000, 10800, 7200}, {"Asia/Gaza", 2531865600, 7200, 10800},
    {"Asia/Gaza", 2536700400, 10800, 7200}, {"Asia/Gaza", 2540332800, 7200, 10800},
    {"Asia/Gaza", 2550610800, 10800, 7200}, {"Asia/Gaza", 4109788800, 7200, 10800},
    {"Asia/Gaza", 4128534000, 10800, 7200}, {"Asia/Gaza", 16732569600, 7200, 10800},
    {"Asia/Gaza", 16751314800, 10800, 7200}, {"Asia/Gaza", 32479747200, 7200, 10800},
    {"Asia/Gaza", 32497887600, 10800, 7200}, {"Asia/Jerusalem", 142380000, 7200, 10800},
    {"Asia/Jerusalem", 651618000, 10800, 7200}, {"Asia/Jerusalem", 955670400, 7200, 10800},
    {"Asia/Jerusalem", 1254006000, 10800, 7200}, {"Asia/Jerusalem", 1553817600, 7200, 10800},
    {"Asia/Jerusalem", 1856386800, 10800, 7200}, {"Asia/Jerusalem", 2121724800, 7200, 10800},
    {"Asia/Jerusalem", 2140038000, 10800, 7200}, {"Asia/Jerusalem", 2531779200, 7200, 10800},
    {"Asia/Jerusalem", 2550697200, 10800, 7200}, {"Asia/Jerusalem", 4109702400, 7200, 10800},
    {"Asia/Jerusalem", 4128620400, 10800, 7200}, {"Asia/Jerusalem", 16732483200, 7200, 10800},
    {"Asia/Jerusalem", 16751401200, 10800, 7200}, {"Asia/Jerusalem", 32479660800, 7200, 10800},
    {"Asia/Jerusalem", 32497974000, 10800, 7200}, {"Asia/Kathmandu", 504901800, 19800, 20700},
    {"Asia/Pyongyang", 1439564400, 32400, 30600}, {"Asia/Pyongyang", 1525446000, 30600, 32400},
    {"Asia/Tehran", 227820600, 12600, 16200}, {"Asia/Tehran", 701209800, 12600, 16200},
    {"Asia/Tehran", 890512200, 12600, 16200}, {"Asia/Tehran", 1064172600, 16200, 12600},
    {"Asia/Tehran", 1316633400, 16200, 12600}, {"Asia/Tehran", 1490128200, 12600, 16200},
    {"Asia/Tehran", 1647894600, 12600, 16200}, {"Asia/Tehran", 1663788600, 16200, 12600},
    {"Atlantic/Azores", 386125200, -3600, 0}, {"Atlantic/Azores", 686106000, 0, -3600},
    {"Atlantic/Azores", 954032400, -3600, 0}, {"Atlantic/Azores", 1256432400, 0, -3600},
    {"Atlantic/Azores", 1553994000, -3600, 0}, {"Atlantic/Azores", 1856394000, 0, -3600},
    {"Atlantic/Azores", 2121901200, -3600, 0}, {"Atlantic/Azores", 2140045200, 0, -3600},
    {"Atlantic/Azores", 2531955600, -3600, 0}, {"Atlantic/Azores", 2550704400, 0, -3600},
    {"Atlantic/Azores", 4109878800, -3600, 0}, {"Atlantic/Azores", 4128627600, 0, -3600},
    {"Atlantic/Azores", 16732659600, -3600, 0}, {"Atlantic/Azores", 16751408400, 0, -3600},
    {"Atlantic/Azores", 32479837200, -3600, 0}, {"Atlantic/Azores", 32497981200, 0, -3600},
    {"Australia/Adelaide", 57688200, 34200, 37800}, {"Australia/Adelaide", 404843400, 34200, 37800},
    {"Australia/Adelaide", 751998600, 34200, 37800}, {"Australia/Adelaide", 1099153800, 34200, 37800},
    {"Australia/Adelaide", 1443889800, 34200, 37800}, {"Australia/Adelaide", 1791045000, 34200, 37800},
    {"Australia/Adelaide", 2122475400, 37800, 34200}, {"Australia/Adelaide", 2138200200, 34200, 37800},
    {"Australia/Adelaide", 2532529800, 37800, 34200}, {"Australia/Adelaide", 2548254600, 34200, 37800},
    {"Australia/Adelaide", 4110453000, 37800, 34200}, {"Australia/Adelaide", 4126177800, 34200, 37800},
    {"Australia/Adelaide", 16733233800, 37800, 34200}, {"Australia/Adelaide", 16748958600, 34200, 37800},
    {"Australia/Adelaide", 32480411400, 37800, 34200}, {"Australia/Adelaide", 32496136200, 34200, 37800},
    {"Australia/Brisbane", 57686400, 36000, 39600}, {"Australia/Brisbane", 67968000, 39600, 36000},
    {"Australia/Brisbane", 625593600, 36000, 39600}, {"Australia/Brisbane", 657043200, 36000, 39600},
    {"Australia/Brisbane", 667929600, 39600, 36000}, {"Australia/Brisbane", 688492800, 36000, 39600},
    {"Australia/Brisbane", 699379200, 39600, 36000}, {"Australia/Lord_Howe", 352216800, 36000, 37800},
    {"Australia/Lord_Howe", 657041400, 37800, 39600}, {"Australia/Lord_Howe", 953996400, 39600, 37800},
    {"Australia/Lord_Howe", 1254583800, 37800, 39600}, {"Australia/Lord_Howe", 1554562800, 39600, 37800},
    {"Australia/Lord_Howe", 1853940600, 37800, 39600}, {"Australia/Lord_Howe", 2122470000, 39600, 37800},
    {"Australia/Lord_Howe", 2138196600, 37800, 39600}, {"Australia/Lord_Howe", 2532524400, 39600, 37800},
    {"Australia/Lord_Howe", 2548251000, 37800, 39600}, {"Australia/Lord_Howe", 4110447600, 39600, 37800},
    {"Australia/Lord_Howe", 4126174200, 37800, 39600}, {"Australia/Lord_Howe", 16733228400, 39600, 37800},
    {"Australia/Lord_Howe", 16748955000, 37800, 39600}, {"Australia/Lord_Howe", 32480406000, 39600, 37800},
    {"Australia/Lord_Howe", 32496132600, 37800, 39600}, {"Australia/Sydney", 57686400, 36000, 39600},
    {"Australia/Sydney", 404841600, 36000, 39600}, {"Australia/Sydney", 751996800, 36000, 39600},
    {"Australia/Sydney", 1099152000, 36000, 39600}, {"Australia/Sydney", 1443888000, 36000, 39600},
    {"Australia/Sydney", 1791043200, 36000, 39600}, {"Australia/Sydney", 2122473600, 39600, 36000},
    {"Australia/Sydney", 2138198400, 36000, 39600}, {"Australia/Sydney", 2532528000, 39600, 36000},
    {"Australia/Sydney", 2548252800, 36000, 39600}, {"Australia/Sydney", 4110451200, 39600, 36000},
    {"Australia/Sydney", 4126176000, 36000, 39600}, {"Australia/Sydney", 16733232000, 39600, 36000},
    {"Australia/Sydney", 16748956800, 36000, 39600}, {"Australia/Sydney", 32480409600, 39600, 36000},
    {"Australia/Sydney", 32496134400, 36000, 39600}, {"Europe/Berlin", 323830800, 3600, 7200},
    {"Europe/Berlin", 622602000, 7200, 3600}, {"Europe/Berlin", 922582800, 3600, 7200},
    {"Europe/Berlin", 1238288400, 3600, 7200}, {"Europe/Berlin", 1540688400, 7200, 3600},
    {"Europe/Berlin", 1837645200, 3600, 7200}, {"Europe/Berlin", 2121901200, 3600, 7200},
    {"Europe/Berlin", 2140045200, 7200, 3600}, {"Europe/Berlin", 2531955600, 3600, 7200},
    {"Europe/Berlin", 2550704400, 7200, 3600}, {"Europe/Berlin", 4109878800, 3600, 7200},
    {"Europe/Berlin", 4128627600, 7200, 3600}, {"Europe/Berlin", 16732659600, 3600, 7200},
    {"Europe/Berlin", 16751408400, 7200, 3600}, {"Europe/Berlin", 32479837200, 3600, 7200},
    {"Europe/Berlin", 32497981200, 7200, 3600}, {"Europe/Dublin", 57722400, 3600, 0},
    {"Europe/Dublin", 404269200, 3600, 0}, {"Europe/Dublin", 751424400, 3600, 0},
    {"Europe/Dublin", 1099184400, 3600, 0}, {"Europe/Dublin", 1445734800, 3600, 0},
    {"Europe/Dublin", 1792890000, 3600, 0}, {"Europe/Dublin", 2121901200, 0, 3600},
    {"Europe/Dublin", 2140045200, 3600, 0}, {"Europe/Dublin", 2531955600, 0, 3600},
    {"Europe/Dublin", 2550704400, 3600, 0}, {"Europe/Dublin", 4109878800, 0, 3600},
    {"Europe/Dublin", 4128627600, 3600, 0}, {"Europe/Dublin", 16732659600, 0, 3600},
    {"Europe/Dublin", 16751408400, 3600, 0}, {"Europe/Dublin", 32479837200, 0, 3600},
    {"Europe/Dublin", 32497981200, 3600, 0}, {"Europe/Istanbul", 107910000, 7200, 10800},
    {"Europe/Istanbul", 433893600, 14400, 10800}, {"Europe/Istanbul", 654649200, 10800, 7200},
    {"Europe/Istanbul", 859676400, 7200, 10800}, {"Europe/Istanbul", 1067122800, 10800, 7200},
    {"Europe/Istanbul", 1269738000, 7200, 10800}, {"Europe/Istanbul", 1446944400, 10800, 7200},
    {"Europe/Istanbul", 1459040400, 7200, 10800}, {"Europe/Kyiv", 354920400, 10800, 14400},
    {"Europe/Kyiv", 638319600, 10800, 14400}, {"Europe/Kyiv", 954032400, 7200, 10800},
    {"Europe/Kyiv", 1256432400, 10800, 7200}, {"Europe/Kyiv", 1553994000, 7200, 10800},
    {"Europe/Kyiv", 1856394000, 10800, 7200}, {"Europe/Kyiv", 2121901200, 7200, 10800},
    {"Europe/Kyiv", 2140045200, 10800, 7200}, {"Europe/Kyiv", 2531955600, 7200, 10800},
    {"Europe/Kyiv", 2550704400, 10800, 7200}, {"Europe/Kyiv", 4109878800, 7200, 10800},
    {"Europe/Kyiv", 4128627600, 10800, 7200}, {"Europe/Kyiv", 16732659600, 7200, 10800},
    {"Europe/Kyiv", 16751408400, 10800, 7200}, {"Europe/Kyiv", 32479837200, 7200, 10800},
    {"Europe/Kyiv", 32497981200, 10800, 7200}, {"Europe/Lisbon", 212544000, 3600, 0},
    {"Europe/Lisbon", 528253200, 3600, 0}, {"Europe/Lisbon", 877827600, 3600, 0},
    {"Europe/Lisbon", 1193533200, 3600, 0}, {"Europe/Lisbon", 1509238800, 3600, 0},
    {"Europe/Lisbon", 1824944400, 3600, 0}, {"Europe/Lisbon", 2121901200, 0, 3600},
    {"Europe/Lisbon", 2140045200, 3600, 0}, {"Europe/Lisbon", 2531955600, 0, 3600},
    {"Europe/Lisbon", 2550704400, 3600, 0}, {"Europe/Lisbon", 4109878800, 0, 3600},
    {"Europe/Lisbon", 4128627600, 3600, 0}, {"Europe/Lisbon", 16732659600, 0, 3600},
    {"Europe/Lisbon", 16751408400, 3600, 0}, {"Europe/Lisbon", 32479837200, 0, 3600},
    {"Europe/Lisbon", 32497981200, 3600, 0}, {"Europe/London", 57722400, 3600, 0},
    {"Europe/London", 404269200, 3600, 0}, {"Europe/London", 751424400, 3600, 0},
    {"Europe/London", 1099184400, 3600, 0}, {"Europe/London", 1445734800, 3600, 0},
    {"Europe/London", 1792890000, 3600, 0}, {"Europe/London", 2121901200, 0, 3600},
    {"Europe/London", 2140045200, 3600, 0}, {"Europe/London", 2531955600, 0, 3600},
    {"Europe/London", 2550704400, 3600, 0}, {"Europe/London", 4109878800, 0, 3600},
    {"Europe/London", 4128627600, 3600, 0}, {"Europe/London", 16732659600, 0, 3600},
    {"Europe/London", 16751408400, 3600, 0}, {"Europe/London", 32479837200, 0, 3600},
    {"Europe/London", 32497981200, 3600, 0}, {"Europe/Moscow", 354920400, 10800, 14400},
    {"Europe/Moscow", 512521200, 10800, 14400}, {"Europe/Moscow", 686102400, 10800, 7200},
    {"Europe/Moscow", 846370800, 14400, 10800}, {"Europe/Moscow", 1004223600, 14400, 10800},
    {"Europe/Moscow", 1162076400, 14400, 10800}, {"Europe/Moscow", 1301180400, 10800, 14400},
    {"Europe/Moscow", 1414274400, 14400, 10800}, {"Pacific/Apia", 1285498800, -39600, -36000},
    {"Pacific/Apia", 1325239200, -36000, 50400}, {"Pacific/Apia", 1380376800, 46800, 50400},
    {"Pacific/Apia", 1443276000, 46800, 50400}, {"Pacific/Apia", 1506175200, 46800, 50400},
    {"Pacific/Apia", 1569679200, 46800, 50400}, {"Pacific/Apia", 1601128800, 46800, 50400},
    {"Pacific/Apia", 1617458400, 50400, 46800}, {"Pacific/Auckland", 152632800, 43200, 46800},
    {"Pacific/Auckland", 478620000, 46800, 43200}, {"Pacific/Auckland", 812469600, 43200, 46800},
    {"Pacific/Auckland", 1142690400, 46800, 43200}, {"Pacific/Auckland", 1474725600, 43200, 46800},
    {"Pacific/Auckland", 1806760800, 46800, 43200}, {"Pacific/Auckland", 2122466400, 46800, 43200},
    {"Pacific/Auckland", 2137586400, 43200, 46800}, {"Pacific/Auckland", 2532520800, 46800, 43200},
    {"Pacific/Auckland", 2547640800, 43200, 46800}, {"Pacific/Auckland", 4110444000, 46800, 43200},
    {"Pacific/Auckland", 4125564000, 43200, 46800}, {"Pacific/Auckland", 16733224800, 46800, 43200},
    {"Pacific/Auckland", 16748344800, 43200, 46800}, {"Pacific/Auckland", 32480402400, 46800, 43200},
    {"Pacific/Auckland", 32495522400, 43200, 46800}, {"Pacific/Chatham", 152632800, 45900, 49500},
    {"Pacific/Chatham", 478620000, 49500, 45900}, {"Pacific/Chatham", 812469600, 45900, 49500},
    {"Pacific/Chatham", 1142690400, 49500, 45900}, {"Pacific/Chatham", 1474725600, 45900, 49500},
    {"Pacific/Chatham", 1806760800, 49500, 45900}, {"Pacific/Chatham", 2122466400, 49500, 45900},
    {"Pacific/Chatham", 2137586400, 45900, 49500}, {"Pacific/Chatham", 2532520800, 49500, 45900},
    {"Pacific/Chatham", 2547640800, 45900, 49500}, {"Pacific/Chatham", 4110444000, 49500, 45900},
    {"Pacific/Chatham", 4125564000, 45900, 49500}, {"Pacific/Chatham", 16733224800, 49500, 45900},
    {"Pacific/Chatham", 16748344800, 45900, 49500}, {"Pacific/Chatham", 32480402400, 49500, 45900},
    {"Pacific/Chatham", 32495522400, 45900, 49500}, {"Pacific/Fiji", 909842400, 43200, 46800},
    {"Pacific/Fiji", 1259416800, 43200, 46800}, {"Pacific/Fiji", 1327154400, 46800, 43200},
    {"Pacific/Fiji", 1414850400, 43200, 46800}, {"Pacific/Fiji", 1478354400, 43200, 46800},
    {"Pacific/Fiji", 1547301600, 46800, 43200}, {"Pacific/Fiji", 1608386400, 43200, 46800},
    {"Pacific/Fiji", 1610805600, 46800, 43200}, {"Pacific/Kiritimati", 307622400, -38400, -36000},
    {"Pacific/Kiritimati", 788868000, -36000, 50400},
};

// From CPython's zoneinfo, tz release 2026f: midnights of 1 January 1970, 16 January 2100, 16 July 2500, 16 January 2999.
struct Sample {
  const char* zoneId;
  int64_t moment;
  int32_t offset;
};

constexpr Sample kSamples[] = {
    {"Africa/Cairo", 0, 7200}, {"Africa/Cairo", 4103740800, 7200},
    {"Africa/Cairo", 16742160000, 10800}, {"Africa/Cairo", 32473440000, 7200},
    {"Africa/Casablanca", 0, 0}, {"Africa/Casablanca", 4103740800, 0},
    {"Africa/Casablanca", 16742160000, 0}, {"Africa/Casablanca", 32473440000, 0},
    {"Africa/Johannesburg", 0, 7200}, {"Africa/Johannesburg", 4103740800, 7200},
    {"Africa/Johannesburg", 16742160000, 7200}, {"Africa/Johannesburg", 32473440000, 7200},
    {"Africa/Monrovia", 0, -2670}, {"Africa/Monrovia", 4103740800, 0},
    {"Africa/Monrovia", 16742160000, 0}, {"Africa/Monrovia", 32473440000, 0},
    {"America/Argentina/Buenos_Aires", 0, -10800}, {"America/Argentina/Buenos_Aires", 4103740800, -10800},
    {"America/Argentina/Buenos_Aires", 16742160000, -10800}, {"America/Argentina/Buenos_Aires", 32473440000, -10800},
    {"America/Asuncion", 0, -14400}, {"America/Asuncion", 4103740800, -10800},
    {"America/Asuncion", 16742160000, -10800}, {"America/Asuncion", 32473440000, -10800},
    {"America/Caracas", 0, -14400}, {"America/Caracas", 4103740800, -14400},
    {"America/Caracas", 16742160000, -14400}, {"America/Caracas", 32473440000, -14400},
    {"America/Chicago", 0, -21600}, {"America/Chicago", 4103740800, -21600},
    {"America/Chicago", 16742160000, -18000}, {"America/Chicago", 32473440000, -21600},
    {"America/Edmonton", 0, -25200}, {"America/Edmonton", 4103740800, -21600},
    {"America/Edmonton", 16742160000, -21600}, {"America/Edmonton", 32473440000, -21600},
    {"America/Havana", 0, -18000}, {"America/Havana", 4103740800, -18000},
    {"America/Havana", 16742160000, -14400}, {"America/Havana", 32473440000, -18000},
    {"America/Los_Angeles", 0, -28800}, {"America/Los_Angeles", 4103740800, -28800},
    {"America/Los_Angeles", 16742160000, -25200}, {"America/Los_Angeles", 32473440000, -28800},
    {"America/New_York", 0, -18000}, {"America/New_York", 4103740800, -18000},
    {"America/New_York", 16742160000, -14400}, {"America/New_York", 32473440000, -18000},
    {"America/Nuuk", 0, -10800}, {"America/Nuuk", 4103740800, -7200},
    {"America/Nuuk", 16742160000, -3600}, {"America/Nuuk", 32473440000, -7200},
    {"America/Phoenix", 0, -25200}, {"America/Phoenix", 4103740800, -25200},
    {"America/Phoenix", 16742160000, -25200}, {"America/Phoenix", 32473440000, -25200},
    {"America/Santiago", 0, -10800}, {"America/Santiago", 4103740800, -10800},
    {"America/Santiago", 16742160000, -14400}, {"America/Santiago", 32473440000, -10800},
    {"America/Sao_Paulo", 0, -10800}, {"America/Sao_Paulo", 4103740800, -10800},
    {"America/Sao_Paulo", 16742160000, -10800}, {"America/Sao_Paulo", 32473440000, -10800},
    {"America/St_Johns", 0, -12600}, {"America/St_Johns", 4103740800, -12600},
    {"America/St_Johns", 16742160000, -9000}, {"America/St_Johns", 32473440000, -12600},
    {"America/Vancouver", 0, -28800}, {"America/Vancouver", 4103740800, -25200},
    {"America/Vancouver", 16742160000, -25200}, {"America/Vancouver", 32473440000, -25200},
    {"Asia/Beirut", 0, 7200}, {"Asia/Beirut", 4103740800, 7200},
    {"Asia/Beirut", 16742160000, 10800}, {"Asia/Beirut", 32473440000, 7200},
    {"Asia/Gaza", 0, 7200}, {"Asia/Gaza", 4103740800, 7200},
    {"Asia/Gaza", 16742160000, 10800}, {"Asia/Gaza", 32473440000, 7200},
    {"Asia/Jerusalem", 0, 7200}, {"Asia/Jerusalem", 4103740800, 7200},
    {"Asia/Jerusalem", 16742160000, 10800}, {"Asia/Jerusalem", 32473440000, 7200},
    {"Asia/Kathmandu", 0, 19800}, {"Asia/Kathmandu", 4103740800, 20700},
    {"Asia/Kathmandu", 16742160000, 20700}, {"Asia/Kathmandu", 32473440000, 20700},
    {"Asia/Kolkata", 0, 19800}, {"Asia/Kolkata", 4103740800, 19800},
    {"Asia/Kolkata", 16742160000, 19800}, {"Asia/Kolkata", 32473440000, 19800},
    {"Asia/Pyongyang", 0, 32400}, {"Asia/Pyongyang", 4103740800, 32400},
    {"Asia/Pyongyang", 16742160000, 32400}, {"Asia/Pyongyang", 32473440000, 32400},
    {"Asia/Tehran", 0, 12600}, {"Asia/Tehran", 4103740800, 12600},
    {"Asia/Tehran", 16742160000, 12600}, {"Asia/Tehran", 32473440000, 12600},
    {"Atlantic/Azores", 0, -3600}, {"Atlantic/Azores", 4103740800, -3600},
    {"Atlantic/Azores", 16742160000, 0}, {"Atlantic/Azores", 32473440000, -3600},
    {"Australia/Adelaide", 0, 34200}, {"Australia/Adelaide", 4103740800, 37800},
    {"Australia/Adelaide", 16742160000, 34200}, {"Australia/Adelaide", 32473440000, 37800},
    {"Australia/Brisbane", 0, 36000}, {"Australia/Brisbane", 4103740800, 36000},
    {"Australia/Brisbane", 16742160000, 36000}, {"Australia/Brisbane", 32473440000, 36000},
    {"Australia/Lord_Howe", 0, 36000}, {"Australia/Lord_Howe", 4103740800, 39600},
    {"Australia/Lord_Howe", 16742160000, 37800}, {"Australia/Lord_Howe", 32473440000, 39600},
    {"Australia/Sydney", 0, 36000}, {"Australia/Sydney", 4103740800, 39600},
    {"Australia/Sydney", 16742160000, 36000}, {"Australia/Sydney", 32473440000, 39600},
    {"Europe/Berlin", 0, 3600}, {"Europe/Berlin", 4103740800, 3600},
    {"Europe/Berlin", 16742160000, 7200}, {"Europe/Berlin", 32473440000, 3600},
    {"Europe/Dublin", 0, 3600}, {"Europe/Dublin", 4103740800, 0},
    {"Europe/Dublin", 16742160000, 3600}, {"Europe/Dublin", 32473440000, 0},
    {"Europe/Istanbul", 0, 7200}, {"Europe/Istanbul", 4103740800, 10800},
    {"Europe/Istanbul", 16742160000, 10800}, {"Europe/Istanbul", 32473440000, 10800},
    {"Europe/Kyiv", 0, 10800}, {"Europe/Kyiv", 4103740800, 7200},
    {"Europe/Kyiv", 16742160000, 10800}, {"Europe/Kyiv", 32473440000, 7200},
    {"Europe/Lisbon", 0, 3600}, {"Europe/Lisbon", 4103740800, 0},
    {"Europe/Lisbon", 16742160000, 3600}, {"Europe/Lisbon", 32473440000, 0},
    {"Europe/London", 0, 3600}, {"Europe/London", 4103740800, 0},
    {"Europe/London", 16742160000, 3600}, {"Europe/London", 32473440000, 0},
    {"Europe/Moscow", 0, 10800}, {"Europe/Moscow", 4103740800, 10800},
    {"Europe/Moscow", 16742160000, 10800}, {"Europe/Moscow", 32473440000, 10800},
    {"Pacific/Apia", 0, -39600}, {"Pacific/Apia", 4103740800, 46800},
    {"Pacific/Apia", 16742160000, 46800}, {"Pacific/Apia", 32473440000, 46800},
    {"Pacific/Auckland", 0, 43200}, {"Pacific/Auckland", 4103740800, 46800},
    {"Pacific/Auckland", 16742160000, 43200}, {"Pacific/Auckland", 32473440000, 46800},
    {"Pacific/Chatham", 0, 45900}, {"Pacific/Chatham", 4103740800, 49500},
    {"Pacific/Chatham", 16742160000, 45900}, {"Pacific/Chatham", 32473440000, 49500},
    {"Pacific/Fiji", 0, 43200}, {"Pacific/Fiji", 4103740800, 43200},
    {"Pacific/Fiji", 16742160000, 43200}, {"Pacific/Fiji", 32473440000, 43200},
    {"Pacific/Kiritimati", 0, -38400}, {"Pacific/Kiritimati", 4103740800, 50400},
    {"Pacific/Kiritimati", 16742160000, 50400}, {"Pacific/Kiritimati", 32473440000, 50400},
};
// clang-format on

TEST(ClockRules, AgreeWithAnIndependentReaderAroundChanges) {
  for (const Change& change : kChanges) {
    SCOPED_TRACE(std::string(change.zoneId) + " " + std::to_string(change.moment));
    EXPECT_EQ(UtcOffsetSeconds(change.zoneId, change.moment - 1), change.before);
    EXPECT_EQ(UtcOffsetSeconds(change.zoneId, change.moment), change.after);
  }
}

TEST(ClockRules, AgreeWithAnIndependentReaderFarFromChanges) {
  for (const Sample& sample : kSamples) {
    SCOPED_TRACE(std::string(sample.zoneId) + " " + std::to_string(sample.moment));
    EXPECT_EQ(UtcOffsetSeconds(sample.zoneId, sample.moment), sample.offset);
  }
}

// Israel's law of 2013: summer time from the Friday before the last Sunday of March, 2:00, to the last Sunday of
// October, 2:00 summer time.
TEST(ClockRules, IsraelsSummerTimeStartsOnFridayAndEndsOnSunday) {
  constexpr int64_t kStart = 1806019200;  // Friday 26 March 2027 0:00Z
  constexpr int64_t kEnd = 1824937200;    // Saturday 30 October 2027 23:00Z
  EXPECT_EQ(UtcOffsetSeconds("Asia/Jerusalem", kStart - 1), 7200);
  EXPECT_EQ(UtcOffsetSeconds("Asia/Jerusalem", kStart), 10800);
  EXPECT_EQ(UtcOffsetSeconds("Asia/Jerusalem", kEnd - 1), 10800);
  EXPECT_EQ(UtcOffsetSeconds("Asia/Jerusalem", kEnd), 7200);
}

TEST(ClockRules, SamoaJumpsAcrossTheDateLine) {
  constexpr int64_t kJump = 1325239200;  // 30 December 2011 10:00Z: the 30th, a Friday, was left out
  EXPECT_EQ(UtcOffsetSeconds("Pacific/Apia", kJump - 1), -10 * 3600);
  EXPECT_EQ(UtcOffsetSeconds("Pacific/Apia", kJump), 14 * 3600);
}

// Ireland's law calls the winter's clock the exception; the offsets are the neighbours' all the same.
TEST(ClockRules, DublinKeepsLondonsTime) {
  for (int64_t moment = 94694400; moment < 7258118400; moment += kDay) {  // 1973 to 2199
    ASSERT_EQ(UtcOffsetSeconds("Europe/Dublin", moment), UtcOffsetSeconds("Europe/London", moment)) << moment;
  }
}

TEST(ClockRules, KathmanduMovesByAQuarterOfAnHour) {
  constexpr int64_t kMove = 504901800;  // 1 January 1986 0:00 by the old clock
  EXPECT_EQ(UtcOffsetSeconds("Asia/Kathmandu", kMove - 1), 19800);
  EXPECT_EQ(UtcOffsetSeconds("Asia/Kathmandu", kMove), 20700);
}

TEST(ClockRules, LinksAnswerAsTheirTargets) {
  constexpr const char* kLinks[][2] = {{"Asia/Calcutta", "Asia/Kolkata"},   {"Israel", "Asia/Jerusalem"},
                                       {"Asia/Tel_Aviv", "Asia/Jerusalem"}, {"US/Eastern", "America/New_York"},
                                       {"America/Godthab", "America/Nuuk"}, {"Europe/Kiev", "Europe/Kyiv"}};
  for (const auto& [link, target] : kLinks) {
    ASSERT_TRUE(sun::IsKnownZone(link)) << link;
    for (int64_t moment = 0; moment < 99 * 365 * kDay; moment += 11 * kDay) {
      ASSERT_EQ(UtcOffsetSeconds(link, moment), UtcOffsetSeconds(target, moment)) << link << " " << moment;
    }
  }
}

TEST(ClockRules, ZoneNamesAreMatchedExactly) {
  EXPECT_TRUE(sun::IsKnownZone("America/Argentina/Buenos_Aires"));
  EXPECT_TRUE(sun::IsKnownZone("UTC"));
  for (const char* name : {"asia/jerusalem", "Asia/Jerusalem ", "Asia", "", "zzz"}) {
    EXPECT_FALSE(sun::IsKnownZone(name)) << name;
  }
}

TEST(ClockRules, UnknownZonesAndMomentsBefore1970HaveNoOffset) {
  EXPECT_EQ(UtcOffsetSeconds("Asia/Nowhere", 0), std::nullopt);
  EXPECT_EQ(UtcOffsetSeconds("Asia/Jerusalem", -1), std::nullopt);
  EXPECT_EQ(UtcOffsetSeconds("Asia/Jerusalem", std::numeric_limits<int64_t>::min()), std::nullopt);
}

// 292 277 026 596-12-04T15:30:07Z, by the 400-year cycle a 4 December like that of 2196: summer in Sydney.
TEST(ClockRules, TheRemotestMomentStillFollowsTheStandingRule) {
  EXPECT_EQ(UtcOffsetSeconds("Asia/Kolkata", std::numeric_limits<int64_t>::max()), 19800);
  EXPECT_EQ(UtcOffsetSeconds("Australia/Sydney", std::numeric_limits<int64_t>::max()), 39600);
}

TEST(NearestZone, IsTheZoneOfTheNearestPlaceOfThatOffset) {
  EXPECT_STREQ(sun::NearestZone(3147, 3513, 2, 0), "Asia/Jerusalem");
  EXPECT_STREQ(sun::NearestZone(3213, -11056, -7, 0), "America/Phoenix");  // Tucson
  EXPECT_STREQ(sun::NearestZone(3804, 1231, 1, 0), "Europe/Rome");         // Trapani, though Africa is nearer than Rome
  EXPECT_STREQ(sun::NearestZone(-2800, 15326, 10, 0), "Australia/Brisbane");  // the Gold Coast has no summer time
  EXPECT_STREQ(sun::NearestZone(-3352, 15112, 10, 0), "Australia/Sydney");
  EXPECT_STREQ(sun::NearestZone(4734, -5243, -3, -30), "America/St_Johns");
}

// Taveuni lies on the 180th meridian; Suva, at 178 degrees east, is near, the next place of this offset 2000 km away.
TEST(NearestZone, LooksAcrossTheDateLine) {
  EXPECT_STREQ(sun::NearestZone(-1650, -17945, 12, 0), "Pacific/Fiji");
}

TEST(NearestZone, AnOffsetThatNoPlaceHasGivesNone) {
  EXPECT_EQ(sun::NearestZone(5046, 605, 0, 20), nullptr);
  EXPECT_EQ(sun::NearestZone(5046, 605, 25, 0), nullptr);
}

TEST(NearestZone, SurvivesAnyNumbers) {
  constexpr int32_t kLeast = std::numeric_limits<int32_t>::min();
  constexpr int32_t kMost = std::numeric_limits<int32_t>::max();
  EXPECT_EQ(sun::NearestZone(kLeast, kLeast, kLeast, kLeast), nullptr);
  EXPECT_EQ(sun::NearestZone(kMost, kMost, kMost, kMost), nullptr);
  EXPECT_NE(sun::NearestZone(kLeast, kMost, 2, 0), nullptr);
}

}  // namespace
