// The LIVING QUARTERS deck: crew jobs, the work schedule and coffee with
// Emerson. Auto Assign/Sort Crew is on the menu and does nothing.
#pragma once

void runLivingQuarters();
