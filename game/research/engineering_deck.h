// The ENGINEERING deck: where the Mothership's energy shield is switched.
// Its assignments, projects and chat have nothing behind them.
#pragma once

void runEngineeringDeck();

// The shield's start-up charge.
inline constexpr int kShieldStartFuel = 50;
