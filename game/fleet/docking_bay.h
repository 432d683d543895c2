// The DOCKING BAY: the deck from which the player commands the fleet. Its
// screens are in files of their own: SELECT AN AIRCRAFT
// (view_ships_in_dock.cpp), Load Cargo And Crew (load_cargo_and_crew.cpp)
// and Assign Aircraft Missions (assign_aircraft_missions.cpp).
#pragma once

#include <cstdint>

void runDockingBay();

// SELECT AN AIRCRAFT: the ship's craft and their stat pages.
void viewShipsInDock();
// The stat page of the craft at that row of the ship's list.
void showCraftStats(std::int32_t row);

// Moves crew, one at a time, between a location and a craft standing there.
void loadCargoAndCrew();
