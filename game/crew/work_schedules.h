// Change Work Schedules: five schedules, from a party (+5 morale a night) to
// a regime that costs 15 a night. The schedule moves morale and nothing
// else.
#pragma once

// The schedule screen; `cursor` is the current schedule + 1. Enter and
// Escape alike set the schedule the cursor points to.
void chooseWorkSchedule(int cursor);
