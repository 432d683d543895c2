// Ground Campaign Status: the sector map with what is known of each sector,
// and the zoomed view of one sector in which the player maps sub-sectors.
#pragma once

void runGroundCampaignStatus();
void runSectorView(int sector);

// The sector reached from `sector` by an arrow on this map: rows and columns
// wrap, and there is no orbit box.
int groundCursorAfter(int sector, int virtualKey);
