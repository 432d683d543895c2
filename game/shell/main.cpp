#include "game/shell/program.h"

int main() { return runProgram(); }
