// The LIBRARY: the captain's room, and the only place from which a day is
// ended. It also shows the personnel picture. Interglactanet and Summon Crew
// Member have nothing behind them.
#pragma once

void runLibraryDeck();
