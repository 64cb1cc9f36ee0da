/* kinship.dll: birthdays and yahrzeit. */
#ifndef TIMES_READINGS_COMPANION_KINSHIP_H
#define TIMES_READINGS_COMPANION_KINSHIP_H

#ifdef __cplusplus
extern "C" {
#endif

/* Called once at start-up, before any other operation. Shows no window, writes no file. */
void KinshipInit(void);

/* Called once at shut-down: releases what KinshipInit and the windows since made. */
void KinshipDone(void);

#ifdef __cplusplus
}
#endif

#endif
