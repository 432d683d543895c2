// The program from its first screen to its end: sets up the console, runs
// the title menu until EXIT, and puts the console back. main is only this.
#pragma once

int runProgram();
