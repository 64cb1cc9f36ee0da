/* hours.dll: the zmanim that the user has chosen. */
#ifndef TIMES_READINGS_COMPANION_HOURS_H
#define TIMES_READINGS_COMPANION_HOURS_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The number of zmanim in the user's selection. */
uint32_t HoursGetCount(void);

#ifdef __cplusplus
}
#endif

#endif
