// The seam between the console model and a platform. Exactly one backend is
// linked into a program: the terminal backend (backend_terminal.cpp) into
// the game, the scripted backend (backend_scripted.cpp) into the tests.
// Console calls these and nothing else reaches the platform.
#pragma once

#include "game/console/console.h"

namespace backend {

void open();
void close();

// Makes the platform's screen show the model, then marks the model shown.
// Called whenever the game is about to wait.
void show(ScreenModel& screen);

// True if the input queue holds a key-down of a key that counts (a
// character or an extended key); takes nothing from the queue. May wait a
// few milliseconds for one to arrive, and once the screen has stood still
// for a while, until input comes (nothing on a still screen moves until the
// player acts).
bool keyWaiting();

// Blocks until an input event is there and takes it.
KeyEvent readKey();

// Discards everything in the input queue.
void flushKeys();

void sleep(int milliseconds);

}  // namespace backend
