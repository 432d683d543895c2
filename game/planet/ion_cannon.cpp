#include "game/planet/ion_cannon.h"

#include <cmath>
#include <cstdint>
#include <string>

#include "game/art/ion_feed.h"
#include "game/console/console.h"
#include "game/console/widgets.h"
#include "game/messages/message_log.h"
#include "game/planet/ground_map.h"
#include "game/planet/planet.h"
#include "game/shell/endings.h"
#include "game/shell/mothership.h"
#include "game/shell/status_bar.h"

namespace {

constexpr int kHiddenFuel = 100000;
constexpr int kChargeStepMs = 500;
constexpr int kFireMs = 250;
constexpr int kBeamStepMs = 2;
constexpr int kBlastFrameMs = 50;
constexpr int kNoiseFrameMs = 10;
constexpr int kBeamRows = 14;
constexpr int kBlastFrames = 27;
constexpr int kStatusRow = 22;
constexpr char kCitySign[] = "HQ";  // on the capital's tallest block

// The land's scene in the feed.
const Picture& sceneFor(int land) {
  switch (land) {
    case kCity: return kCityScene;
    case kMilitaryBase: return kBaseScene;
    case kMountains: return kMountainScene;
    case kDesert: return kDesertScene;
    case kNuclearWasteland: return kWastelandScene;
    case kRubble:
    case kRuins: return kRubbleScene;
    default: return kFarmScene;
  }
}

struct ShotNews {
  const char* opening;
  const char* closing;
};

ShotNews newsFor(int land, bool mapped) {
  if (!mapped) {
    return {"A SubSector of an unknown land type in Sector ",
            " has been leveled by your Ion Cannon. Whatever was there before isn't there now."};
  }
  switch (land) {
    case kFarmLand:
    case kFarmLandStrewn:
      return {"A Farming Region in Sector ",
              " has been eradicated by your \"Slash and Burn\" Ion Cannon techniques."};
    case kCity: return {"A City in Sector ", " has been decimated by your glorious Ion Cannon."};
    case kMilitaryBase:
      return {"A Military Base in Sector ",
              " is now a distant memory, all thanks to the Ion Cannon."};
    case kMountains:
      return {"A Mountain Region in Sector ",
              " has been flattened by your destructive Ion Cannon."};
    case kDesert:
      return {"A Desert Region in Sector ",
              " has been destroyed by your accurate Ion Cannon skills."};
    case kNuclearWasteland:
      return {"The Radioactive Elements in a Nuclear Wasteland in Sector ",
              " have been obliterated by the environmentally friendly Ion Cannon."};
    default:
      return {"A SubSector that has already been destroyed by your hands in Sector ",
              " has been given a lethal dose of destruction from the Ion Cannon."};
  }
}

void drawAt(const Picture& picture, FeedPlace place, int colour = 15) {
  drawPicture(picture, kFeedOrigin.column + place.column, kFeedOrigin.row + place.row, colour);
}

void drawTileStage(int stage, int k) {
  const FeedPlace at = kTileStagePlaces[stage];
  drawPicture(kTileStages[stage], tileColumn(k) + at.column, tileRow(k) + at.row, kTileStageColour);
}

void drawFeedCaption(const char* caption) {
  Console::putText("<<", 54, kStatusRow, 14);
  Console::putText(caption, 56, kStatusRow, 12);
  Console::putText(">>", 65, kStatusRow, 14);
}

void drawLiveFeedFrame() {
  drawAt(kFeedFrame, kFramePlace, 14);
  drawFeedCaption("LIVE FEED");
}

void drawChargingBar() {
  Console::putText("CHARGING", 3, kStatusRow, 12);
  Console::putText(std::string(10, '\xB0'), 12, kStatusRow, 9);
}

void chargeBarStep(int i) { Console::putChar(178, 12 + i, kStatusRow, 9); }

void drawBeamRow(int i) {
  const int column = kFeedOrigin.column + 13;
  const int row = kFeedOrigin.row + 1 + i;
  Console::putChar(176, column, row, 19);
  Console::putChar(177, column + 1, row, 59);
  Console::putChar(176, column + 2, row, 19);
}

void eraseBeamRow(int i) {
  Console::putText("    ", kFeedOrigin.column + 13, kFeedOrigin.row + 1 + i, 15);
}

void drawBlast(int which) {
  if (which == 0) drawAt(kBlastA, kBlastAPlace);
  if (which == 1) drawAt(kBlastB, kBlastBPlace);
  if (which == 2) drawAt(kBlastC, kBlastCPlace);
}

// The feed of a target the ship can see: charge, beam, blast, withdrawal.
void playLiveFeed(const SubSector& target, int sector, int k) {
  drawLiveFeedFrame();
  drawAt(sceneFor(target.landType()), kScenePlace);
  if (sector == 1 && k == 5 && target.landType() == kCity) {
    Console::putText(kCitySign, kFeedOrigin.column + kCitySignPlace.column,
                     kFeedOrigin.row + kCitySignPlace.row, kCitySignColour);
  }
  drawChargingBar();
  Console::sleep(kChargeStepMs);
  for (int i = 0; i < 10; ++i) {
    chargeBarStep(i);
    Console::sleep(kChargeStepMs);
  }
  Console::putText("<<FIRE>>", 23, kStatusRow, 12);
  Console::sleep(kFireMs);
  for (int i = 0; i < kBeamRows; ++i) {
    drawBeamRow(i);
    Console::sleep(kBeamStepMs);
  }
  // The dome swells and falls back: A, B, C, B, A, B, C, B, ...
  static constexpr int kBlastCycle[4] = {0, 1, 2, 1};
  for (int frame = 0; frame < kBlastFrames; ++frame) {
    drawBlast(kBlastCycle[frame % 4]);
    if (frame % 7 == 0) drawTileStage(frame / 7, k);
    Console::sleep(kBlastFrameMs);
  }
  for (int i = 0; i < kBeamRows; ++i) {
    eraseBeamRow(i);
    if (i == 7) drawBlast(1);
    if (i == 13) drawBlast(0);
    Console::sleep(kBeamStepMs);
  }
  Console::sleep(kBlastFrameMs);
}

// The feed of a target the ship cannot see: a dead channel.
void playDeadChannel(int k) {
  int noise = 0;
  auto nextNoise = [&noise] {
    drawAt(kNoise[noise], kNoisePlace, kNoiseColour);
    noise = (noise + 1) % 3;
    Console::sleep(kNoiseFrameMs);
  };
  drawAt(kEmptyFrame, kFramePlace, 14);
  drawAt(kNoise[2], kNoisePlace, kNoiseColour);
  drawFeedCaption("NO VISUAL");
  drawChargingBar();
  for (int i = 0; i < 10; ++i) {
    chargeBarStep(i);
    for (int frame = 0; frame < 10; ++frame) nextNoise();
  }
  Console::putText("<<FIRE IN PROGRESS>>", 23, kStatusRow, 12);
  for (int frame = 0; frame < 20; ++frame) {
    if (frame % 5 == 0) drawTileStage(frame / 5, k);
    nextNoise();
  }
  drawLiveFeedFrame();
}

void blankQuestion() {
  Console::putText(std::string(16, ' '), 45, 10, 15);
  Console::putText(std::string(10, ' '), 44, 11, 15);
}

void clearFeed() {
  const std::string feedRow(31, ' ');
  for (int row = 5; row <= 21; ++row) Console::putText(feedRow, 45, row, 14);
  Console::putText(std::string(40, ' '), 3, kStatusRow, 12);
  Console::putText(feedRow, 45, kStatusRow, 14);
}

// After the picture: the shot's fuel. True if the tank is now dry.
bool chargeShot() {
  Mothership& ship = theMothership();
  ship.chargeFuel(kIonShotFuel);
  return ship.fuel() == 0;
}

}  // namespace

void fireIonCannon(int k) {
  const int sector = theMothership().currentSector();
  SubSector& target = thePlanet().subSector(sector, k);
  // What the news tells is what stood there before the shot.
  const int land = target.landType();
  const bool mapped = target.mapped();
  blankQuestion();
  if (mapped) {
    playLiveFeed(target, sector, k);
  } else {
    playDeadChannel(k);
  }
  Console::putText("<<FIRE COMPLETED>>  ", 23, kStatusRow, 12);
  drawLandTile(kRubble, tileColumn(k), tileRow(k));
  drawAt(kAftermath, kAftermathPlace);

  const ShotNews news = newsFor(land, mapped);
  std::string text = news.opening;
  text += thePlanet().sector(sector).letter();
  text += news.closing;
  theMessageLog().post(text, 4);

  target.addPopulation(-static_cast<std::int32_t>(std::trunc(target.population())));
  target.addTroops(-static_cast<std::int32_t>(std::trunc(target.troops())));
  target.setLandType(kRubble);
  target.markMapped();
  drawSubSectorPanel(k, sector);
  Console::waitAnyKey();
  clearFeed();
}

void runIonCannonControl() {
  Mothership& ship = theMothership();
  drawFrame(kWarFrameColour, false);
  if (ship.currentSector() == 0) {
    Console::putText("You are currently in orbit.", 10, 10, 14);
    Console::putText("The Mothership must be hovering", 10, 11, 14);
    Console::putText("above a sector to fire the Ion Cannon.", 10, 12, 14);
    Console::putText("<< Press Any Key To Go Back To The Navigation Menu >>", 5, 14, 15);
    Console::waitAnyKey();
    return;
  }
  const int sector = ship.currentSector();
  drawSectorView(sector);
  int cursor = 0;
  for (;;) {
    drawSubSectorPanel(cursor, sector);
    KeyEvent key = Console::readKey();
    if (key.isKey && key.keyDown && !moveSubSectorCursor(cursor, key.virtualKey)) {
      switch (key.virtualKey) {
        case kKeyEnter:
          if (askYesNo("Fire Ion Cannon?", 45, 10, 44)) {
            fireIonCannon(cursor);
            if (chargeShot()) {
              showCannonFuelEnding();
              setGameOver(true);
              return;
            }
          } else {
            blankQuestion();
          }
          refreshFuel(kWarFrameColour);
          break;
        case kKeyTab:  // hidden: a tank of fuel for testing the war
          ship.addFuel(kHiddenFuel);
          refreshFuel(kWarFrameColour);
          break;
        case kKeyEscape: Console::flushKeys(); return;
        default: break;
      }
    }
    Console::flushKeys();
  }
}
