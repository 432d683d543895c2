#include "game/research/research_station.h"

#include <string>
#include <vector>

#include "game/console/box_lines.h"
#include "game/console/list_box.h"
#include "game/console/widgets.h"
#include "game/research/tech_tree.h"
#include "game/shell/mothership.h"

namespace {

constexpr int kPlain = 15;
constexpr int kBoxColour = 2;
constexpr int kShareHighlight = 241;
constexpr int kAssignmentsButton = 1;
constexpr int kCompletedButton = 2;
// More rows than can ever be open at once (16).
constexpr int kMaxRows = 24;
constexpr int kVisibleRows = 15;
constexpr int kTurnsColumn = 72;
constexpr int kFiguresRow = 21;
// Shown when the crew's share is too small to make any headway.
constexpr int kNeverTurns = 999;

void drawAssignmentsBox() {
  drawDoubleLines(
      {
          // The three title boxes.
          {3, 1, 17, 1},
          {3, 1, 3, 3},
          {17, 1, 17, 3},
          {33, 1, 46, 1},
          {33, 1, 33, 3},
          {46, 1, 46, 3},
          {49, 1, 66, 1},
          {49, 1, 49, 3},
          {66, 1, 66, 3},
          // The table, its three columns and the figures below them.
          {3, 3, 76, 3},
          {3, 19, 76, 19},
          {3, 22, 76, 22},
          {3, 3, 3, 22},
          {33, 3, 33, 19},
          {49, 3, 49, 19},
          {76, 3, 76, 22},
      },
      kBoxColour);
}

std::string percentText(std::int32_t value) { return formatNumber(value, 4, false) + "%"; }

}  // namespace

std::int32_t researchersAboard() {
  const CrewList& crew = theMothership().crew();
  std::int32_t count = 0;
  for (std::int32_t i = 0; i < crew.getCount(); ++i) count += crew.at(i).getJob() == kJobResearch;
  return count;
}

void clearResearchPanel() {
  for (int row = 1; row <= 22; ++row) Console::putText(std::string(34, ' '), 4, row, kPlain);
}

void drawResearchPanel() {
  TechTree& tree = theTechTree();
  if (researchersAboard() > 0) {
    clearResearchPanel();
    Console::putText("Total Research Capablility: ", 4, 3, kPlain);
    Console::putNumber(tree.researchCapability(), 32, 3, kPlain);
    Console::putText("Total available assignments: ", 4, 5, kPlain);
    Console::putNumber(tree.researchableCount(), 33, 5, kPlain);
  } else {
    Console::putText("Go assign crew members to research", 4, 3, kPlain);
    Console::putText("then come back to assign them to a", 4, 5, kPlain);
    Console::putText("tech to research!", 4, 7, kPlain);
  }
  if (tree.researchableCount() <= 0) Console::putText("No assignments to research.", 4, 5, kPlain);
}

void researchAssignments() {
  TechTree& tree = theTechTree();
  drawFrame(kDeckFrameColour, true);
  drawAssignmentsBox();
  // Worked out once for the whole visit.
  const std::int32_t capability = tree.researchCapability();
  const std::int32_t openItems = tree.researchableCount();
  Console::putText("Technology", 5, 2, kPlain);
  Console::putText("% of Crew", 35, 2, kPlain);
  Console::putText("Description", 51, 2, kPlain);
  Console::putText("Total Research Capablility: ", 5, 20, kPlain);
  Console::putNumber(capability, 33, 20, kPlain);
  Console::putText("Total available assignments: ", 45, 20, kPlain);
  Console::putNumber(openItems, 74, 20, kPlain);
  Console::putText("Number of turns until done: ", 44, 21, kPlain);
  Console::putText("Percent Completed: ", 5, 21, kPlain);

  ListBoxState namesState, sharesState;
  ListRow names[kMaxRows], shares[kMaxRows], progressTexts[kMaxRows];
  int key = 0;
  while (key != kListEscape) {
    std::vector<TechItem*> items = tree.researchableItems();
    if (items.size() > kMaxRows) items.resize(kMaxRows);
    const int count = static_cast<int>(items.size());
    for (int i = 0; i < count; ++i) {
      names[i].text.assign(items[i]->getName());
      shares[i].text.assign(percentText(items[i]->getPercentOfCrew()));
      progressTexts[i].text.assign(percentText(static_cast<std::int32_t>(items[i]->getProgress())));
    }
    // An empty list still shows one row saying so.
    const int rows = count > 0 ? count : 1;
    if (count == 0) shares[0].text.assign("N/A ");
    ListBox::run(shares, 35, 4, 13, kVisibleRows, rows, false, sharesState, true, false);

    const int sel = namesState.top + namesState.cursor;
    TechItem* selected = sel < count ? items[sel] : nullptr;
    const std::int32_t share = selected != nullptr ? selected->getPercentOfCrew() : 0;
    const std::int32_t left = selected != nullptr ? selected->getPointsLeft() : 0;

    std::int32_t turns = 0;
    if (share > 0 && capability > 0 && left > 0) {
      const std::int32_t perTurn = capability * share / 100;
      turns = perTurn > 0 ? left / perTurn : kNeverTurns;
      Console::putNumberPadded(turns, kTurnsColumn, kFiguresRow, kPlain, 3);
    } else {
      Console::putText("N/A", kTurnsColumn, kFiguresRow, kPlain);
    }
    Console::putText(shares[sel < rows ? sel : 0].text.view(), 35, namesState.cursor + 4,
                     kShareHighlight);
    if (count == 0) progressTexts[0].text.assign(" N/A  ");
    Console::putText(progressTexts[sel < rows ? sel : 0].text.view(), 23, kFiguresRow, kPlain);
    if (turns != 0) {
      Console::putNumberPadded(turns, kTurnsColumn, kFiguresRow, kPlain, 3);
    } else if (share != 0) {
      Console::putTextPadded("1", kTurnsColumn, kFiguresRow, kPlain, 3);
    } else {
      Console::putText("N/A ", kTurnsColumn, kFiguresRow, kPlain);
    }
    if (count == 0) names[0].text.assign("List is empty.");

    key = ListBox::run(names, 4, 4, 28, kVisibleRows, rows, true, namesState, false, true);
    sharesState.top = namesState.top;

    if (selected == nullptr) continue;
    if (key == kListLeft) {
      selected->changePercentOfCrew(-5);
    } else if (key == kListRight) {
      std::int32_t total = 0;
      for (const TechItem* item : items) total += item->getPercentOfCrew();
      if (total < 100) selected->changePercentOfCrew(5);
    } else if (key == kListStepEnter) {
      selected->setProgress(100.0);
      tree.finishItem(*selected);
    }
  }
}

void runResearchStation() {
  DeckMenu menu{{"  Research Assignments     ", "  View Completed Research  ",
                 "  Chat with Hyde           ", "  Biology Reports          ", kReturnLabel}};
  menu.onSelect = [](DeckMenu& m) {
    if (m.selected == kAssignmentsButton) {
      drawResearchPanel();
    } else {
      clearResearchPanel();
    }
  };
  menu.onEnter = [](DeckMenu&, int button) {
    if (button == kAssignmentsButton) {
      if (researchersAboard() > 0 && theTechTree().researchableCount() > 0) researchAssignments();
      return MenuResult::Redraw;
    }
    return button == kCompletedButton ? MenuResult::Redraw : MenuResult::Stay;
  };
  showMenu(menu);
}
